#pragma once

#include "advisor/LogicLine.h"

#include <cstddef>
#include <string>
#include <vector>

namespace ls {

/// `NAME(VALUE)` in a rule, in upper case and without blanks.
struct BlockTerm
{
    std::string var;
    std::string value;
    std::string words; ///< the name as written, if it has several words; else empty
};

/// The fault that keeps a rule from having the form `VAR(VALUE)=A(X)B(Y)`.
enum class RuleFault
{
    None,
    Conclusion, ///< the part before the "=" is not `VAR(VALUE)`
    Brackets,   ///< unbalanced, nested, or without a name before them
    Equals,     ///< more than one "="
    Stray,      ///< other text between or after the conditions
};

/// A rule line. If its form is broken, the terms are what the author probably means, so that one slip does
/// not cause findings about everything in the rule.
struct BlockRule
{
    int line = 0;
    std::string text; ///< as in the rule table, with the assumption inserted
    BlockTerm conclusion;
    std::vector<BlockTerm> conditions; ///< those of the ASSUME line first
    std::size_t assumed = 0;           ///< the number of conditions from the ASSUME line
    RuleFault fault = RuleFault::None;
    std::string stray; ///< the text that is in excess, for `RuleFault::Stray`
};

/// A line of the logic section that is no rule. It is split as the loader splits it: the argument is
/// untrimmed.
struct BlockCommand
{
    using Kind = LogicCommand::Kind;

    int line = 0;
    Kind kind = Kind::Unknown;
    std::string text; ///< the whole line, trimmed and in upper case
    std::string argument;
    std::string var;              ///< of a DEFINE: the part before the "@", untrimmed
    std::string title;            ///< of a DEFINE: the part after the "@", trimmed; empty without an "@"
    std::vector<BlockTerm> terms; ///< of an ASSUME
    std::string stray;            ///< of an ASSUME: text that is no condition
};

/// `<Q ID=...>` or `<AV ID=...>` in the definitions.
struct BlockEntry
{
    int line = 0;
    bool question = false;
    std::string id;          ///< in upper case, untrimmed
    bool atStart = false;    ///< it begins its line
    bool registered = false; ///< it is a question in a place where the loader finds it
    bool searched = false;   ///< it is in a place where its text is found
    bool hasText = false;
    bool closed = false;
    bool closedInLowerCase = false; ///< "</q>" or "</av>" instead of the closing tag
    bool tooLong = false;           ///< the text is cut when it is shown
};

/// A logic block as the loader and the reader of definitions see it, with line numbers. The number 0 means
/// that there is no such line.
struct CheckedBlock
{
    int topic = 0;
    int line = 0;                  ///< "<IXML>"
    int logicLine = 0;             ///< "<LOGIC>"
    bool logicIsNext = false;      ///< "<LOGIC>" is the next line after "<IXML>"
    int logicEnd = 0;              ///< "</LOGIC>"
    int definitionsLine = 0;       ///< the line that opens the definitions
    bool definitionsAlone = false; ///< that line holds nothing else
    bool definitionsTag = false;   ///< that line begins with a tag, so it is no comment and no rule
    int definitionsEnd = 0;        ///< "</DEFINITIONS>" alone on its line
    int blockEnd = 0;              ///< "</IXML>"
    int bracketLine = 0;           ///< the first line of the definitions that has "[" after blanks
    int textAfter = 0;             ///< the first text after "</IXML>"
    int targetInDefinitions = 0;   ///< a TARGET line among the entries
    std::vector<BlockRule> rules;
    std::vector<BlockCommand> commands;
    std::vector<BlockEntry> entries;

    /// The goal of a dialogue that starts in this block.
    [[nodiscard]] std::string Target() const;

    /// The TARGET line that counts; nullptr if there is none and the goal is "AV".
    [[nodiscard]] const BlockCommand* TargetCommand() const;

    /// The first entry with that opening tag, where its text is searched; nullptr for none.
    [[nodiscard]] const BlockEntry* FindEntry(bool question, const std::string& id) const;
};

} // namespace ls
