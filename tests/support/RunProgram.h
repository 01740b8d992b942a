#pragma once

#include <string>
#include <vector>

namespace ls::test {

/// What a program that ran to its end left.
struct ProgramRun
{
    int status = -1; ///< its exit status; -1 when it did not start, or did not come to its end by itself
    std::string out;
    std::string err;
};

/// Runs a program in a folder, with nothing on its standard input, and waits for it. The arguments, in UTF-8,
/// reach it as they are; no shell has a say in it.
[[nodiscard]] ProgramRun RunProgram(const std::string& program, const std::vector<std::string>& arguments,
                                    const std::string& folder);

} // namespace ls::test
