#pragma once

#include <string_view>

namespace ls {

/// The hanging indent of a source line's continuation lines, in characters. The start of the line shows
/// whether it is a list item; one leading tag of at most 4 characters is skipped.
[[nodiscard]] int ListIndent(std::string_view line);

} // namespace ls
