#pragma once

#include "base/Text.h"
#include "book/BookWords.h"

#include <string_view>

namespace ls::logic {

/// How an entry of the definitions is tagged.
struct EntryTags
{
    std::string_view opening; ///< up to the identifier; found in any letter case
    std::string_view closing; ///< as written: "</q>" closes nothing
};

inline constexpr EntryTags QuestionTags = {QuestionOpening, QuestionClosing};
inline constexpr EntryTags AdviceTags = {AdviceOpening, AdviceClosing};

/// A text of one line that is shorter than this stands on the line of its tags.
inline constexpr std::size_t OwnLinesLength = 60;

/// An entry's text that is longer is cut by the advisor.
inline constexpr std::size_t ShownLength = 32000;

/// Whether an entry's text stands on lines of its own between its tags.
[[nodiscard]] inline bool OnOwnLines(std::string_view text)
{
    return text.size() >= OwnLinesLength || Contains(text, LineEnd);
}

/// Whether a line in upper case, or several, hold the beginning of an entry.
[[nodiscard]] inline bool HoldsOpening(std::string_view upper)
{
    return Contains(upper, QuestionTags.opening) || Contains(upper, AdviceTags.opening);
}

} // namespace ls::logic
