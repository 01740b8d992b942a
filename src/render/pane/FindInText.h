#pragma once

#include "render/text/TopicText.h"

#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace ls {

/// All matches of `sought` in a text, in order and without overlaps. Case does not matter. A blank in
/// `sought` also matches several blanks, a TAB, and a row's end with the indent after it, so words are found
/// across broken lines. An empty `sought` has no matches.
[[nodiscard]] std::vector<TextRange> FindAll(std::string_view text, std::string_view sought);

/// The index of the first match that begins at `from` or later; after the last match, the first one.
[[nodiscard]] std::optional<std::size_t> NextMatch(std::span<const TextRange> matches, std::size_t from);

/// The index of the last match that begins before `from`; before the first match, the last one.
[[nodiscard]] std::optional<std::size_t> PreviousMatch(std::span<const TextRange> matches, std::size_t from);

} // namespace ls
