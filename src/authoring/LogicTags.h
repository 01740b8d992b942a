#pragma once

#include <string_view>

namespace ls::logic {

inline constexpr std::string_view LineEnd = "\r\n";
inline constexpr std::string_view BlockOpening = "<IXML>";
inline constexpr std::string_view BlockClosing = "</IXML>";
inline constexpr std::string_view LogicOpening = "<LOGIC>";
inline constexpr std::string_view LogicClosing = "</LOGIC>";
inline constexpr std::string_view DefinitionsOpening = "<DEFINITIONS>";
inline constexpr std::string_view DefinitionsClosing = "</DEFINITIONS>";

/// How an entry of the definitions is tagged.
struct EntryTags
{
    std::string_view opening; ///< up to the identifier; found in any letter case
    std::string_view closing; ///< as written: "</q>" closes nothing
};

inline constexpr EntryTags QuestionTags = {"<Q ID=", "</Q>"};
inline constexpr EntryTags AdviceTags = {"<AV ID=", "</AV>"};

/// A text of one line that is shorter than this stands on the line of its tags.
inline constexpr std::size_t OwnLinesLength = 60;

/// An entry's text that is longer is cut by the advisor.
inline constexpr std::size_t ShownLength = 32000;

/// Whether an entry's text stands on lines of its own between its tags.
[[nodiscard]] inline bool OnOwnLines(std::string_view text)
{
    return text.size() >= OwnLinesLength || text.find(LineEnd) != std::string_view::npos;
}

/// Whether a line in upper case, or several, hold the beginning of an entry.
[[nodiscard]] inline bool HoldsOpening(std::string_view upper)
{
    return upper.find(QuestionTags.opening) != std::string_view::npos ||
           upper.find(AdviceTags.opening) != std::string_view::npos;
}

} // namespace ls::logic
