#pragma once

#include "render/text/TopicText.h"

#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace ls {

/// Every place where a text holds what is sought, in order and without overlaps, small and capital letters
/// being the same. A blank also stands for several, for a TAB, and for the end of a row with the indent
/// behind it: words are found wherever their line was broken. Nothing is found for an empty `sought`.
[[nodiscard]] std::vector<TextRange> FindAll(std::string_view text, std::string_view sought);

/// The first match, as an index, that begins at `from` or behind it; from the start again behind the last.
[[nodiscard]] std::optional<std::size_t> NextMatch(std::span<const TextRange> matches, std::size_t from);

/// The last match that begins before `from`; from the end again before the first.
[[nodiscard]] std::optional<std::size_t> PreviousMatch(std::span<const TextRange> matches, std::size_t from);

} // namespace ls
