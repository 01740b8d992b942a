#pragma once

#include <string>
#include <string_view>

namespace ls {

/// The kind of a line between "<LOGIC>" and the definitions. The loader, the check and the logic editor each
/// decide what to do with it.
enum class LogicLine
{
    Empty,
    Comment,     ///< begins with "*"
    Rule,        ///< contains "="
    Command,     ///< any other line, known to the loader or not
    Definitions, ///< contains "<DEFINITIONS>", even in a comment or, with blanks, in a rule
    BlockStart,  ///< "<IXML>"
    LogicStart,  ///< "<LOGIC>"
    LogicEnd,    ///< "</LOGIC>"
    BlockEnd,    ///< "</IXML>"
};

/// Classifies a line that is trimmed and in upper case.
[[nodiscard]] LogicLine ClassifyLogicLine(std::string_view line);

/// Removes the blanks from a rule, as the rule table requires.
void RemoveBlanks(std::string& rule);

/// A command, split at its first blank. The argument is not trimmed and refers to the line.
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

/// Splits a command that is trimmed and in upper case.
[[nodiscard]] LogicCommand SplitCommand(std::string_view line);

} // namespace ls
