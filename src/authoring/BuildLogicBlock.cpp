#include "authoring/LogicBlock.h"

#include "authoring/LogicTags.h"
#include "base/Messages.h"
#include "base/Text.h"

#include <algorithm>
#include <unordered_map>

namespace ls {

namespace {

using namespace logic;

constexpr std::size_t NamedParts = 5;
// Intended: a logic text of one or two characters gets no line end.
constexpr std::size_t ShortestEnded = 3;

void AppendEntry(std::string& out, const EntryTags& tags, std::string_view identifier, std::string_view text)
{
    out.append(tags.opening).append(identifier).append(">");
    if (OnOwnLines(text)) {
        out.append(LineEnd).append(text).append(LineEnd);
    } else {
        out.append(text);
    }
    out.append(tags.closing).append(LineEnd).append(LineEnd);
}

// The choices of each variable, in list order. The key is the variable's name in upper case.
using ChoicesOf = std::unordered_map<std::string, std::vector<const LogicChoice*>>;

ChoicesOf GroupChoices(const LogicBlock& block)
{
    ChoicesOf groups;
    for (const LogicChoice& choice : block.choices) {
        groups[UpperCase(choice.variable)].push_back(&choice);
    }
    return groups;
}

void AppendLogic(std::string& out, std::string_view logicText)
{
    out.append(BlockOpening).append(LineEnd).append(LogicOpening).append(LineEnd).append(logicText);
    if (logicText.size() >= ShortestEnded && !logicText.ends_with(LineEnd)) {
        out.append(LineEnd);
    }
    out.append(LogicClosing).append(LineEnd);
}

} // namespace

std::optional<std::string> BuildLogicBlock(const LogicBlock& block, const Seams& seams)
{
    if (block.logicText.empty()) {
        seams.messages.MsgBox(NoLogicMessage, Icon::Exclamation);
        return std::nullopt;
    }
    std::string out;
    AppendLogic(out, block.logicText);
    out.append(DefinitionsOpening).append(LineEnd).append(LineEnd);
    const ChoicesOf choices = GroupChoices(block);
    for (const LogicVariable& variable : block.variables) {
        AppendEntry(out, QuestionTags, variable.name, variable.question);
        const auto own = choices.find(UpperCase(variable.name));
        if (own == choices.end()) {
            continue;
        }
        for (const LogicChoice* choice : own->second) {
            AppendEntry(out, AdviceTags, variable.name + "(" + choice->choice + ")", choice->advice);
        }
    }
    for (const BareEntry& entry : block.bareEntries) {
        out.append(entry.text).append(LineEnd).append(LineEnd);
    }
    out.append(DefinitionsClosing).append(LineEnd).append(BlockClosing).append(LineEnd);
    return out;
}

std::string LostPartsQuestion(const std::vector<LostPart>& lost)
{
    std::string question = "Not everything in this topic's logic can be kept as it was read:\n";
    for (std::size_t i = 0; i < std::min(lost.size(), NamedParts); ++i) {
        question += "\nLine " + std::to_string(lost[i].line) + " of the block: " + lost[i].what;
    }
    if (lost.size() > NamedParts) {
        question += "\n(" + std::to_string(lost.size() - NamedParts) + " more)";
    }
    return question + "\n\nGo on all the same?";
}

} // namespace ls
