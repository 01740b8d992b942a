#pragma once

#include "base/Seams.h"

#include <string>
#include <string_view>
#include <vector>

namespace ls {

/// What the command line asks for.
struct CommandLine
{
    std::string bookPath;   ///< in the system's own bytes
    std::string iniDir;     ///< in the system's own bytes
    std::string startTopic; ///< book text
    bool valid = true;      ///< false: invalid parameters were ignored
    std::string text;       ///< the whole line, as the warning shows it (UTF-8)
};

/// Parses a command line given as one string, as Windows passes it.
[[nodiscard]] CommandLine ParseCommandLine(std::string_view line);

/// Parses a command line given as separate arguments, as Unix passes it. An argument is a parameter only if
/// it begins like one ("/NAME=...") and names no existing file; all others belong to the path or to a value.
[[nodiscard]] CommandLine ParseArguments(const std::vector<std::string>& arguments, const Seams& seams);

/// Shows the warning if there were invalid parameters.
void ReportInvalidParameters(const CommandLine& commandLine, const Seams& seams);

} // namespace ls
