#pragma once

#include <string>
#include <string_view>

namespace ls {

/// What a line of a logic block is, between "<LOGIC>" and the definitions. The loader, the check and the
/// logic editor decide for themselves what follows from it.
enum class LogicLine
{
    Empty,
    Comment,     ///< begins with "*"
    Rule,        ///< holds "="
    Command,     ///< any other line, known to the loader or not
    Definitions, ///< holds "<DEFINITIONS>", be it in a comment or, between blanks, in a rule
    BlockOpening,
    LogicOpening,
    LogicClosing,
    BlockClosing,
};

/// Classifies a line that is trimmed and in upper case.
[[nodiscard]] LogicLine ClassifyLogicLine(std::string_view line);

/// Brings a rule into the form of the rule table, which has no blanks.
void RemoveBlanks(std::string& rule);

/// A command taken apart at its first blank. The argument is not trimmed; it refers to the line.
struct LogicCommand
{
    enum class Kind
    {
        Assume,
        Target,
        Define,
        Unknown,
    };

    Kind kind = Kind::Unknown;
    std::string_view argument;
};

/// Takes a command apart that is trimmed and in upper case.
[[nodiscard]] LogicCommand SplitCommand(std::string_view line);

} // namespace ls
