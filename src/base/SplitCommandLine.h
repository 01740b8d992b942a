#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace ls {

/// The words of a command line: the program and its arguments, parted by blanks. No shell has a say in it:
/// nothing but the double quote is special.
///
/// A word that begins with a double quote runs to the next one that stands before a blank or at the end (to
/// the end when there is none), and loses both. Every other quote is an ordinary character, so that a file
/// named `my "best" page.htm`, once it is wrapped in quotes, stays one word.
[[nodiscard]] std::vector<std::string> SplitCommandLine(std::string_view commandLine);

} // namespace ls
