#pragma once

#include <string>
#include <vector>

namespace ls::test {

/// The result of a program that has ended.
struct ProgramRun
{
    int status = -1; ///< its exit status; -1 when it did not start or was ended from outside
    std::string out;
    std::string err;
};

/// Runs a program in a folder, with empty standard input, and waits for it. The arguments (UTF-8) reach it
/// unchanged, without a shell.
[[nodiscard]] ProgramRun RunProgram(const std::string& program, const std::vector<std::string>& arguments,
                                    const std::string& folder);

} // namespace ls::test
