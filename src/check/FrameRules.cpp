#include "base/CodePage.h"
#include "base/Count16.h"
#include "check/BlockRules.h"

namespace ls {

namespace {

void CheckLogicTag(const CheckedBlock& block, Findings& findings)
{
    if (block.logicLine == 0) {
        findings.Error(
            "ixml-without-logic", block.line,
            "No \"<LOGIC>\" line follows this one, so the Advisor button leads the reader to an error "
            "box only: write it on the next line, or remove this one.");
    } else if (!block.logicIsNext) {
        findings.Error("ixml-without-logic", block.line,
                       "\"<LOGIC>\" does not stand on the next line, so the logic editor does not open this "
                       "block, though the reader's advisor works: remove what stands between.");
    }
}

void CheckDefinitionsTag(const CheckedBlock& block, Findings& findings)
{
    if (block.logicLine != 0 && block.definitionsLine == 0) {
        findings.Error(
            "no-definitions", block.logicLine,
            "The block has no \"<DEFINITIONS>\" line, so the reader gets an error box instead of a "
            "question: add it behind the rules, and \"</DEFINITIONS>\" at the end.");
    } else if (block.definitionsLine != 0 && block.definitionsTag && !block.definitionsAlone) {
        findings.Warning("definitions-in-line", block.definitionsLine,
                         "What stands beside \"<DEFINITIONS>\" on its line is passed over, so the reader may "
                         "miss it: write each on a line of its own.");
    } else if (block.definitionsLine != 0 && !block.definitionsAlone) {
        findings.Error(
            "definitions-in-line", block.definitionsLine,
            "\"<DEFINITIONS>\" opens the definitions wherever it stands, so what follows this line is "
            "not read as rules and the reader misses them: keep the word out of comments and rules.");
    }
}

void CheckClosed(const CheckedBlock& block, Findings& findings)
{
    const auto report = [&findings](int line, const std::string& name) {
        findings.Warning("not-closed", line,
                         "\"<" + name +
                             ">\" is not closed; readers notice nothing, but the editor may take what "
                             "follows for a part of it: add \"</" +
                             name + ">\".");
    };
    if (block.logicLine != 0 && block.logicEnd == 0) {
        report(block.logicLine, "LOGIC");
    }
    if (block.definitionsLine != 0 && block.definitionsEnd == 0) {
        report(block.definitionsLine, "DEFINITIONS");
    }
    if (block.blockEnd == 0) {
        report(block.line, "IXML");
    }
}

void CheckBracketLine(const CheckedBlock& block, Findings& findings)
{
    if (block.bracketLine != 0) {
        findings.Error(
            "bracket-in-block", block.bracketLine,
            "A line that begins with \"[\" ends the search for questions, so the reader is told that "
            "those behind it cannot be found: begin the line with something else.");
    }
}

void CheckTextAfter(const CheckedBlock& block, Findings& findings)
{
    if (block.textAfter != 0) {
        findings.Warning(
            "text-never-shown", block.textAfter,
            "Text behind the logic block is never shown to the reader: move it before \"<IXML>\".");
    }
}

void CheckTargetPlace(const CheckedBlock& block, Findings& findings)
{
    if (block.targetInDefinitions != 0) {
        findings.Warning("target-ignored", block.targetInDefinitions,
                         "A TARGET line among the definitions is passed over, so the reader's dialogue has "
                         "another goal: move it before the rules.");
    }
}

void CheckLimits(const CheckedBlock& block, Findings& findings)
{
    const std::size_t limit = Count16::Max;
    if (block.rules.size() > limit) {
        findings.Error(
            "too-many", block.rules[limit].line,
            "The block has more than 32,767 rules, so the reader gets the box \"Overflow\" instead of "
            "a question: spread them over several topics.");
    }
    std::size_t registered = 0;
    for (const BlockEntry& entry : block.entries) {
        if (entry.registered && ++registered == limit + 1) {
            findings.Error(
                "too-many", entry.line,
                "The block has more than 32,767 questions, so the reader gets the box \"Overflow\" "
                "instead of one: spread them over several topics.");
        }
    }
}

} // namespace

void CheckBlockFrame(const RuleBase& base, Findings& findings)
{
    const CheckedBlock& block = base.Own();
    CheckLogicTag(block, findings);
    CheckDefinitionsTag(block, findings);
    CheckClosed(block, findings);
    CheckBracketLine(block, findings);
    CheckTextAfter(block, findings);
    CheckTargetPlace(block, findings);
    CheckLimits(block, findings);
}

} // namespace ls
