#pragma once

#include "base/Text.h"
#include "book/BookWords.h"

#include <string_view>

namespace ls::logic {

/// The tags of an entry in the definitions.
struct EntryTags
{
    std::string_view opening; ///< up to the identifier; found in any letter case
    std::string_view closing; ///< case matters: "</q>" closes nothing
};

inline constexpr EntryTags QuestionTags = {QuestionOpening, QuestionClosing};
inline constexpr EntryTags AdviceTags = {AdviceOpening, AdviceClosing};

/// A one-line text below this length shares the line of its tags.
inline constexpr std::size_t OwnLinesLength = 60;

/// The advisor cuts longer texts of entries.
inline constexpr std::size_t ShownLength = 32000;

/// Whether an entry's text is on lines of its own between its tags.
[[nodiscard]] inline bool OnOwnLines(std::string_view text)
{
    return text.size() >= OwnLinesLength || Contains(text, LineEnd);
}

/// Whether `upper`, one or more lines in upper case, contains the beginning of an entry.
[[nodiscard]] inline bool HoldsOpening(std::string_view upper)
{
    return Contains(upper, QuestionTags.opening) || Contains(upper, AdviceTags.opening);
}

} // namespace ls::logic
