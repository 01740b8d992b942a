#pragma once

#include <string>
#include <string_view>

namespace ls {

/// Text (UTF-8) as a stream gets it. On a terminal control characters other than a TAB and a line end become
/// their pictures, so that what stands in a book can never give the terminal an order.
[[nodiscard]] std::string ForStream(std::string_view utf8, bool terminal);

/// The same for one line, in which a line end is no more than a character.
[[nodiscard]] std::string LineForStream(std::string_view utf8, bool terminal);

/// Lines parted by CR LF, as books have them, as lines of the running system's streams.
[[nodiscard]] std::string WithNewlines(std::string_view crLfText);

} // namespace ls
