#pragma once

#include "base/Seams.h"

#include <string>
#include <string_view>
#include <vector>

namespace ls {

/// What the command line asks for.
struct CommandLine
{
    std::string bookPath;   ///< the system's own bytes
    std::string iniDir;     ///< likewise
    std::string startTopic; ///< book text
    bool valid = true;      ///< false: invalid parameters were ignored
    std::string text;       ///< the whole line, as the warning shows it (UTF-8)
};

/// Parses a command line given as one string, as Windows hands it over.
[[nodiscard]] CommandLine ParseCommandLine(std::string_view line);

/// Builds the one string from separate arguments, as Unix hands them over, and parses it. A slash begins a
/// parameter only where an argument reads like one ("/NAME=...") and names no existing file; all else belongs
/// to the path or the value.
[[nodiscard]] CommandLine ParseArguments(const std::vector<std::string>& arguments, const Seams& seams);

/// Shows the warning for invalid parameters, if there were any.
void ReportInvalidParameters(const CommandLine& commandLine, const Seams& seams);

} // namespace ls
