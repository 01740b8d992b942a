#pragma once

#include <string_view>

namespace ls {

/// The hanging indent, in characters, of a source line's continuation lines: how a list item is recognised
/// from its start, behind one leading tag of at most 4 characters.
[[nodiscard]] int ListIndent(std::string_view line);

} // namespace ls
