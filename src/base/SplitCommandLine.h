#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace ls {

/// Splits a command line at blanks into the program and its arguments. No shell takes part: only the double
/// quote is special.
///
/// A word that begins with a double quote ends at the next double quote that a blank or the line's end
/// follows. If there is none, the word ends with the line. Both quotes are dropped. Every other quote is an
/// ordinary character, so that a file named `my "best" page.htm`, wrapped in quotes, stays one word.
[[nodiscard]] std::vector<std::string> SplitCommandLine(std::string_view commandLine);

} // namespace ls
