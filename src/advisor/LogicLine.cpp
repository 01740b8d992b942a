#include "advisor/LogicLine.h"

#include "base/Text.h"
#include "book/BookWords.h"

#include <algorithm>

namespace ls {

namespace {

// Blanks in a rule do not count: "A=< DEFINITIONS >" opens the definitions too.
bool OpensDefinitions(std::string_view line, bool rule)
{
    if (!Contains(line, "<")) {
        return false;
    }
    if (!rule) {
        return Contains(line, DefinitionsOpening);
    }
    std::string squeezed(line);
    RemoveBlanks(squeezed);
    return Contains(squeezed, DefinitionsOpening);
}

LogicLine ClassifyWord(std::string_view line)
{
    if (line == LogicClosing) {
        return LogicLine::LogicEnd;
    }
    if (line == BlockClosing) {
        return LogicLine::BlockEnd;
    }
    if (line == LogicOpening) {
        return LogicLine::LogicStart;
    }
    return line == BlockOpening ? LogicLine::BlockStart : LogicLine::Command;
}

LogicCommand::Kind KindOf(std::string_view word)
{
    if (word == AssumeWord) {
        return LogicCommand::Kind::Assume;
    }
    if (word == TargetWord) {
        return LogicCommand::Kind::Target;
    }
    return word == DefineWord ? LogicCommand::Kind::Define : LogicCommand::Kind::Unknown;
}

} // namespace

LogicLine ClassifyLogicLine(std::string_view line)
{
    const bool comment = line.starts_with('*');
    const bool rule = !comment && Contains(line, "=");
    if (OpensDefinitions(line, rule)) {
        return LogicLine::Definitions;
    }
    if (comment) {
        return LogicLine::Comment;
    }
    if (rule) {
        return LogicLine::Rule;
    }
    return line.empty() ? LogicLine::Empty : ClassifyWord(line);
}

void RemoveBlanks(std::string& rule)
{
    rule.erase(std::remove(rule.begin(), rule.end(), ' '), rule.end());
}

LogicCommand SplitCommand(std::string_view line)
{
    const std::size_t blank = line.find(' ');
    const bool alone = blank == std::string_view::npos;
    return {KindOf(line.substr(0, blank)), alone ? std::string_view() : line.substr(blank + 1)};
}

} // namespace ls
