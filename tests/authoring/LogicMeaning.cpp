#include "LogicMeaning.h"

#include "authoring/LogicTags.h"
#include "base/CodePage.h"
#include "base/Text.h"

#include <algorithm>

namespace ls::test {

namespace {

std::string OneLine(const std::string& bookText)
{
    std::string shown;
    for (const char c : FromBook(bookText)) {
        if (c == '\n') {
            shown += "\\n";
        } else if (c != '\r') {
            shown += c;
        }
    }
    return shown;
}

std::string OpeningTag(std::string_view opening, const std::string& identifier)
{
    return UpperCase(std::string(opening) + identifier + ">");
}

} // namespace

std::vector<std::string> TagsOf(const LogicBlock& block)
{
    std::vector<std::string> tags;
    for (const LogicVariable& variable : block.variables) {
        tags.push_back(OpeningTag(logic::QuestionTags.opening, variable.name));
    }
    for (const LogicChoice& choice : block.choices) {
        tags.push_back(OpeningTag(logic::AdviceTags.opening, choice.variable + "(" + choice.choice + ")"));
    }
    for (const BareEntry& entry : block.bareEntries) {
        tags.push_back(OpeningTag(logic::AdviceTags.opening, entry.identifier));
    }
    return tags;
}

Meaning MeaningOf(const std::string& block, const std::vector<std::string>& tags)
{
    AdvisorWorld world;
    world.Open("[Topic]\r\ntext\r\n" + block + "\r\n[Other]\r\nx\r\n");
    return MeaningOfTopic(world, 1, tags);
}

Meaning MeaningOfTopic(AdvisorWorld& world, int topic, const std::vector<std::string>& tags)
{
    world.Show(WithoutBrackets(world.book.TopicNames(topic)));
    world.tables = {};
    AdvisorReader reader(world);
    Meaning meaning;
    meaning.loads = reader.Load(topic);
    meaning.rules = Rules(world.tables);
    meaning.targets = Targets(world.tables);
    for (const VarTopic& entry : Counted(world.tables.VarTopics, world.tables.VarTopicCount)) {
        const bool own = entry.Topic == topic;
        meaning.variables.push_back(entry.Name + "@" + (own ? "1" : "other " + std::to_string(entry.Topic)));
    }
    for (const std::string& tag : tags) {
        if (world.tables.DefinitionsPos != 0) {
            reader.cursor.Seek(world.tables.DefinitionsPos);
            meaning.texts[tag] = reader.definitions.ReadTaggedText(tag);
        }
    }
    world.seams.messages.Take();
    return meaning;
}

Meaning WithoutPlaceholders(Meaning meaning, const LogicBlock& read)
{
    for (const LogicVariable& variable : read.variables) {
        // A load that fails does not reach the entries.
        if (variable.inBlock || !meaning.loads) {
            continue;
        }
        const auto last =
            std::find(meaning.variables.rbegin(), meaning.variables.rend(), UpperCase(variable.name) + "@1");
        if (last != meaning.variables.rend()) {
            meaning.variables.erase(last.base() - 1);
        }
    }
    return meaning;
}

std::string Describe(const LogicBlock& block)
{
    std::string text = "logic: " + OneLine(block.logicText) + "\n";
    for (const LogicVariable& variable : block.variables) {
        text += (variable.inBlock ? "variable " : "placeholder ") + OneLine(variable.name) + ": " +
                OneLine(variable.question) + "\n";
    }
    for (const LogicChoice& choice : block.choices) {
        text += "choice " + OneLine(choice.variable) + "(" + OneLine(choice.choice) +
                "): " + OneLine(choice.advice) + "\n";
    }
    for (const BareEntry& entry : block.bareEntries) {
        text += "bare " + OneLine(entry.identifier) + ": " + OneLine(entry.text) + "\n";
    }
    for (const LostPart& lost : block.lost) {
        text += "lost " + std::to_string(lost.line) + ": " + lost.what + "\n";
    }
    return text;
}

std::string BookLines(const std::string& text)
{
    std::string lines;
    for (const char c : text) {
        lines += c == '\n' ? "\r\n" : std::string(1, c);
    }
    return lines;
}

} // namespace ls::test
