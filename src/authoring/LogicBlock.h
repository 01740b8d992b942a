#pragma once

#include "base/Seams.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ls {

/// A variable with the question that the advisor asks for it; without a question it is a placeholder.
struct LogicVariable
{
    std::string name; ///< as written; the advisor takes it in upper case
    std::string question;
    bool inBlock = true; ///< false: the block has choices for it but no entry of its own

    friend bool operator==(const LogicVariable&, const LogicVariable&) = default;
};

/// One choice of a variable, with the advice that is shown when the advisor ends on it.
struct LogicChoice
{
    std::string variable; ///< spelled as in the list of variables
    std::string choice;
    std::string advice;

    friend bool operator==(const LogicChoice&, const LogicChoice&) = default;
};

/// An advice entry whose identifier is not of the form `VAR(CHOICE)`, such as `<AV ID=GO>`.
struct BareEntry
{
    std::string identifier;
    std::string text; ///< the whole entry as read, from its opening tag to its closing one

    friend bool operator==(const BareEntry&, const BareEntry&) = default;
};

/// Something of a block that its tables cannot hold, or that would mean something else once it is written
/// from them.
struct LostPart
{
    int line = 0;     ///< in the block, from 1: its "<IXML>" line
    std::string what; ///< a whole sentence, as UTF-8: "The comment \"* old\" would be dropped."

    friend bool operator==(const LostPart&, const LostPart&) = default;
};

/// A topic's logic block taken apart. Texts are book text, lines within them are parted by CR LF.
struct LogicBlock
{
    std::string logicText; ///< the logic lines, each with its line end when it was read
    std::vector<LogicVariable> variables;
    std::vector<LogicChoice> choices; ///< those of one variable together when they were read
    std::vector<BareEntry> bareEntries;
    std::vector<LostPart> lost;
};

/// Takes a block apart, from its "<IXML>" line on, the way the advisor reads it: entries end at their closing
/// tag, the first of equal entries counts, an entry's lines are trimmed, tags and names match in any case.
///
/// Every variable that a choice names is listed. What has no place in the tables is described in `lost`, in
/// the order of its lines, so that nothing goes silently.
[[nodiscard]] LogicBlock ParseLogicBlock(std::string_view text);

/// What is said where there are no logic lines to build a block from.
inline constexpr char NoLogicMessage[] = "There is no logic information to save.";

/// The block's text: the logic lines as they stand, then each variable with its choices, then the bare
/// entries. A text of 60 characters and more, or of several lines, stands on lines of its own between its
/// tags. Choices whose variable is not listed are left out.
///
/// Empty logic lines are refused with `NoLogicMessage`; nothing is returned then.
[[nodiscard]] std::optional<std::string> BuildLogicBlock(const LogicBlock& block, const Seams& seams);

/// What the author is asked before such parts are dropped, as UTF-8; it names the first five of them.
[[nodiscard]] std::string LostPartsQuestion(const std::vector<LostPart>& lost);

} // namespace ls
