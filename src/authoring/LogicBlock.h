#pragma once

#include "base/Seams.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ls {

/// A variable and the question that the advisor asks for it. Without a question it is a placeholder.
struct LogicVariable
{
    std::string name; ///< as written; the advisor uses it in upper case
    std::string question;
    bool inBlock = true; ///< false: the block has choices for it, but no entry

    friend bool operator==(const LogicVariable&, const LogicVariable&) = default;
};

/// A choice of a variable, with the advice that is shown if the advisor ends on it.
struct LogicChoice
{
    std::string variable; ///< spelled as in `variables`
    std::string choice;
    std::string advice;

    friend bool operator==(const LogicChoice&, const LogicChoice&) = default;
};

/// An advice entry whose identifier is not of the form `VAR(CHOICE)`, such as `<AV ID=GO>`.
struct BareEntry
{
    std::string identifier;
    std::string text; ///< the whole entry as read, from opening tag to closing tag

    friend bool operator==(const BareEntry&, const BareEntry&) = default;
};

/// A part of a block that `LogicBlock` cannot hold, or that would change its meaning when the block is
/// written again.
struct LostPart
{
    int line = 0;     ///< in the block; 1 is its "<IXML>" line
    std::string what; ///< a whole sentence, as UTF-8: "The comment \"* old\" would be dropped."

    friend bool operator==(const LostPart&, const LostPart&) = default;
};

/// The parts of a topic's logic block. Texts are book text with CR LF between lines.
struct LogicBlock
{
    std::string logicText; ///< the logic lines; as read, each has its line end
    std::vector<LogicVariable> variables;
    std::vector<LogicChoice> choices; ///< as read, those of one variable are adjacent
    std::vector<BareEntry> bareEntries;
    std::vector<LostPart> lost;
};

/// Parses a block from its "<IXML>" line on, as the advisor reads it. An entry ends at its closing tag, and
/// its lines are trimmed. The first of equal entries counts. Tags and names match in any case.
///
/// `variables` has every variable that a choice names. `lost` describes, in line order, what the tables have
/// no place for, so that nothing is dropped silently.
[[nodiscard]] LogicBlock ParseLogicBlock(std::string_view text);

/// The message when there are no logic lines to build a block from.
inline constexpr char NoLogicMessage[] = "There is no logic information to save.";

/// The block's text: the logic lines unchanged, each variable with its choices, then the bare entries. A text
/// of 60 characters or more, or of several lines, is put on lines of its own between its tags. Choices of
/// unlisted variables are left out.
///
/// Returns nothing, after `NoLogicMessage`, if the logic lines are empty.
[[nodiscard]] std::optional<std::string> BuildLogicBlock(const LogicBlock& block, const Seams& seams);

/// The question before such parts are dropped, UTF-8. It names the first five of them.
[[nodiscard]] std::string LostPartsQuestion(const std::vector<LostPart>& lost);

} // namespace ls
