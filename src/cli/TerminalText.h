#pragma once

#include <string>
#include <string_view>

namespace ls {

/// Text (UTF-8) for a stream. On a terminal, control characters other than TAB and line end become their
/// pictures, so that a book's text can never control the terminal.
[[nodiscard]] std::string ForStream(std::string_view utf8, bool terminal);

/// Like `ForStream`, for one line: a line end becomes its picture too.
[[nodiscard]] std::string LineForStream(std::string_view utf8, bool terminal);

/// Converts a book's line ends, CR LF, to those of the running system's streams.
[[nodiscard]] std::string WithNewlines(std::string_view crLfText);

} // namespace ls
