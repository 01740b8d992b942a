#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace ls {

/// Splits a command line at blanks into the program and its arguments. No shell takes part: only the double
/// quote is special.
///
/// A word that begins with a double quote runs to the next double quote before a blank or at the line's end;
/// without one it runs to the line's end. Both quotes are dropped. Every other quote is an ordinary
/// character, so that a file named `my "best" page.htm`, wrapped in quotes, stays one word.
[[nodiscard]] std::vector<std::string> SplitCommandLine(std::string_view commandLine);

} // namespace ls
