#pragma once

#include <string>
#include <string_view>

namespace ls {

/// The command line after the program's own name and the blanks that follow it. The name ends at the first
/// blank or TAB outside double quotes.
[[nodiscard]] std::string BehindProgramName(std::string_view line);

/// Moves quotes around a whole parameter to its value: "/INIDIR=C:\My Settings" becomes /INIDIR="C:\My
/// Settings". Shells and scripts write the first form; its quote would count as part of the book's path.
[[nodiscard]] std::string WithQuotedValues(std::string_view line);

/// A command line to start.
struct LaunchLine
{
    std::string program; ///< its first word, without quotes; may be empty
    std::string line;    ///< the whole line with the program in quotes, the rest unchanged
};

/// Splits off the first word, by this program's rules for quotes, and quotes it. Without quotes the system
/// would guess where the program ends ("C:\Program" or "C:\Program Files\Web.exe"); with them it starts the
/// first word or nothing.
[[nodiscard]] LaunchLine ToLaunchLine(std::string_view commandLine);

/// Whether a program is a batch file. The system runs those in its shell, which would execute text after a
/// "&" in a document's name or a web address.
[[nodiscard]] bool IsBatchFile(std::string_view program);

} // namespace ls
