#pragma once

#include "advisor/LogicLine.h"

#include <cstddef>
#include <string>
#include <vector>

namespace ls {

/// `NAME(VALUE)` of a rule, in upper case and without blanks.
struct BlockTerm
{
    std::string var;
    std::string value;
    std::string words; ///< the name as it was written, when it has more than one word; else empty
};

/// What keeps a rule from having the form `VAR(VALUE)=A(X)B(Y)`.
enum class RuleFault
{
    None,
    Conclusion, ///< what stands before the "=" is not `VAR(VALUE)`
    Brackets,   ///< unbalanced, nested, or without a name before them
    Equals,     ///< more than one "="
    Stray,      ///< something between or behind the conditions
};

/// A rule line. Where its form is broken, the terms are read as the author seems to mean them, so that one
/// slip does not bring findings about everything it touches.
struct BlockRule
{
    int line = 0;
    std::string text; ///< as the rule table holds it, the assumption put in
    BlockTerm conclusion;
    std::vector<BlockTerm> conditions; ///< those assumed first
    std::size_t assumed = 0;           ///< how many of them come from an ASSUME line
    RuleFault fault = RuleFault::None;
    std::string stray; ///< the text that is too much, when that is the fault
};

/// Another line of the logic section. The parts are as the loader takes them: argument untrimmed.
struct BlockCommand
{
    using Kind = LogicCommand::Kind;

    int line = 0;
    Kind kind = Kind::Unknown;
    std::string text; ///< the whole line, trimmed and in upper case
    std::string argument;
    std::string var;              ///< of a DEFINE: before the "@", untrimmed
    std::string title;            ///< of a DEFINE: behind the "@", trimmed; empty when the line is malformed
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
    bool registered = false; ///< a question that stands where the loader looks for it
    bool searched = false;   ///< its text can be found
    bool hasText = false;
    bool closed = false;
    bool closedInLowerCase = false; ///< "</q>" or "</av>" stands where the closing tag should
    bool tooLong = false;           ///< the text is cut when it is shown
};

/// A logic block as the loader and the definitions' reader take it, with the lines where things stand. A
/// line number of 0 means that there is no such line.
struct CheckedBlock
{
    int topic = 0;
    int line = 0;                  ///< of "<IXML>"
    int logicLine = 0;             ///< of "<LOGIC>"
    bool logicIsNext = false;      ///< "<LOGIC>" follows right behind
    int logicEnd = 0;              ///< of "</LOGIC>"
    int definitionsLine = 0;       ///< of the line that opens the definitions
    bool definitionsAlone = false; ///< that line holds nothing else
    bool definitionsTag = false;   ///< it begins with a tag, so it is no comment and no rule
    int definitionsEnd = 0;        ///< of "</DEFINITIONS>" alone on its line
    int blockEnd = 0;              ///< of "</IXML>"
    int bracketLine = 0;           ///< the first line of the definitions that begins with blanks and "["
    int textBehind = 0;            ///< the first text behind "</IXML>"
    int targetInDefinitions = 0;   ///< a TARGET line that stands among the entries
    std::vector<BlockRule> rules;
    std::vector<BlockCommand> commands;
    std::vector<BlockEntry> entries;

    /// The goal of a dialogue that begins with this block.
    [[nodiscard]] std::string Target() const;

    /// The TARGET line that counts; nullptr when the goal is "AV" for want of one.
    [[nodiscard]] const BlockCommand* TargetCommand() const;

    /// The first entry in which the text for an opening tag is searched; nullptr when there is none.
    [[nodiscard]] const BlockEntry* FindEntry(bool question, const std::string& id) const;
};

} // namespace ls
