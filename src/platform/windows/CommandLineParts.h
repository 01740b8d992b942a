#pragma once

#include <string>
#include <string_view>

namespace ls {

/// What follows the program's own name in the line that a process was started with, without the blanks
/// between. The name ends at the first blank or TAB that does not stand between two double quotes.
[[nodiscard]] std::string BehindProgramName(std::string_view line);

/// The line with each parameter that stands in quotes as a whole ("/INIDIR=C:\My Settings" in quotes, as
/// shells and scripts write it) quoted in its value instead: /INIDIR="C:\My Settings". The quote in front
/// would otherwise count as a part of the book's path.
[[nodiscard]] std::string WithQuotedValues(std::string_view line);

/// A command line that is to be started.
struct LaunchLine
{
    std::string program; ///< its first word, without quotes; empty when there is none
    std::string line;    ///< the whole line with the program in quotes, all else as it was written
};

/// Takes a command line apart by the program's own quoting. The system would guess where an unquoted program
/// ends ("C:\Program" or "C:\Program Files\Web.exe"): with the quotes it starts the first word or nothing.
[[nodiscard]] LaunchLine ToLaunchLine(std::string_view commandLine);

/// Whether a program is a batch file. The system runs those in its shell, which would carry out what stands
/// in a document's name or in a web address behind a "&".
[[nodiscard]] bool IsBatchFile(std::string_view program);

} // namespace ls
