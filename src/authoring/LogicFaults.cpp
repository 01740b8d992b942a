#include "authoring/LogicFaults.h"

#include "advisor/LogicLine.h"
#include "authoring/LogicTags.h"
#include "authoring/SpecialLines.h"
#include "base/CodePage.h"
#include "base/ItemAt.h"
#include "base/Messages.h"
#include "base/Quoted.h"
#include "base/Text.h"

#include <algorithm>
#include <utility>

namespace ls {

namespace {

using namespace logic;

constexpr std::size_t None = std::string_view::npos;
constexpr std::size_t NamedFaults = 5;

// Calls `take(line, number)` for each line.
template <typename Take>
void ForEachLine(std::string_view text, Take take)
{
    int number = 1;
    for (std::size_t at = 0; at <= text.size(); ++number) {
        const std::size_t end = std::min(text.find(LineEnd, at), text.size());
        take(text.substr(at, end - at), number);
        at = end + LineEnd.size();
    }
}

class Finder
{
public:
    explicit Finder(const LogicBlock& block) : m_block(block) {}

    std::vector<LogicFault> Run()
    {
        CheckLogicText();
        // Choices of one variable are adjacent, in the order of the variables.
        std::size_t choice = 0;
        for (std::size_t v = 0; v < m_block.variables.size(); ++v) {
            const LogicVariable& variable = m_block.variables[v];
            m_place = {LogicBox::Question, static_cast<int>(v), -1, 0, {}};
            m_owner = "The question for " + Quoted(variable.name);
            CheckEntry(QuestionTags, variable.name, variable.question);
            for (int c = 0;
                 choice < m_block.choices.size() && m_block.choices[choice].variable == variable.name;
                 ++choice, ++c) {
                const LogicChoice& entry = m_block.choices[choice];
                const std::string identifier = entry.variable + "(" + entry.choice + ")";
                m_place = {LogicBox::Advice, static_cast<int>(v), c, 0, {}};
                m_owner = "The advice for " + Quoted(identifier);
                CheckEntry(AdviceTags, identifier, entry.advice);
            }
        }
        return std::move(m_faults);
    }

private:
    void Add(int line, std::string what)
    {
        m_place.line = line;
        m_place.what = std::move(what);
        m_faults.push_back(m_place);
    }

    void AddLine(int line, std::string_view text, std::string_view consequence)
    {
        Add(line, m_owner + ", line " + std::to_string(line) + ": " + Quoted(Trim(text)) + " " +
                      std::string(consequence) + ".");
    }

    // Finds lines that have a meaning for the scan of a book, in any part of the block.
    void CheckScan(std::string_view text)
    {
        if (!Contains(text, "[") && !Contains(text, "<")) {
            return;
        }
        for (const SpecialLine& line : FindSpecialLines(text)) {
            if (line.meaning == LineMeaning::HidesRest) {
                AddLine(line.line, line.text, "would end the block");
            } else if (line.meaning != LineMeaning::BeginsLogic) {
                AddLine(line.line, line.text, Consequence(line.meaning));
            }
        }
    }

    void CheckLogicText()
    {
        m_place = {};
        m_owner = "The logic text";
        CheckScan(m_block.logicText);
        ForEachLine(m_block.logicText, [this](std::string_view line, int number) {
            if (!Contains(line, "<")) {
                return;
            }
            switch (ClassifyLogicLine(UpperCase(Trim(line)))) {
            case LogicLine::Definitions:
                AddLine(number, line, "would open the definitions");
                break;
            case LogicLine::LogicEnd:
                AddLine(number, line, "would end the logic text and not be kept");
                break;
            case LogicLine::BlockStart:
            case LogicLine::LogicStart:
            case LogicLine::BlockEnd:
                AddLine(number, line, "is no logic line, so the advisor would refuse the block");
                break;
            default:
                break;
            }
        });
    }

    void CheckEntry(const EntryTags& tags, std::string_view identifier, std::string_view text)
    {
        CheckIdentifier(identifier);
        if (text.size() > ShownLength) {
            Add(0, m_owner + " has more than 32,000 characters: the advisor would show its beginning only.");
        }
        const bool ownLines = OnOwnLines(text);
        if (ownLines) {
            CheckScan(text);
        }
        if (!Contains(text, "<") && !Contains(text, "[")) {
            return;
        }
        ForEachLine(text, [&](std::string_view line, int number) {
            const std::string upper = UpperCase(Trim(line));
            if (Contains(line, tags.closing)) {
                AddLine(number, line, "would end it");
            } else if (Contains(upper, DefinitionsClosing)) {
                AddLine(number, line, "would end the definitions");
            } else if (HoldsOpening(upper) && !(ownLines && upper.starts_with('*'))) {
                AddLine(number, line, "would open another entry");
            } else if (ownLines && upper.starts_with('[') && !line.starts_with('[')) {
                AddLine(number, line, "would hide the questions behind it from the advisor");
            }
        });
    }

    // The name of a question ends at the first ">". That of a choice may contain ">" inside its parentheses.
    void CheckIdentifier(std::string_view identifier)
    {
        const std::size_t close = identifier.find('>');
        const std::string_view before = identifier.substr(0, close);
        const std::size_t open = before.find('(');
        const bool advice = m_place.box == LogicBox::Advice;
        const bool inside = advice && open != None && !Contains(before.substr(open), ")") &&
                            !Contains(identifier.substr(before.size()), ")>");
        if (close != None && !inside) {
            Add(0, m_owner + " would be read as that for " + Quoted(before) + ", since \">\" ends a name.");
        } else if (advice && identifier.find('(') != VariableName().size()) {
            Add(0, m_owner + " would be read as that for a choice of " +
                       Quoted(identifier.substr(0, identifier.find('('))) + ", since \"(\" ends its name.");
        }
    }

    [[nodiscard]] const std::string& VariableName() const
    {
        return ItemAt(m_block.variables, m_place.variable)->name;
    }

    const LogicBlock& m_block;
    std::vector<LogicFault> m_faults;
    LogicFault m_place;
    std::string m_owner;
};

} // namespace

std::vector<LogicFault> FindLogicFaults(const LogicBlock& block)
{
    return Finder(block).Run();
}

std::string LogicFaultsQuestion(const std::vector<LogicFault>& faults)
{
    std::string question = "Not everything here would be read back as it stands:\n";
    for (std::size_t i = 0; i < std::min(faults.size(), NamedFaults); ++i) {
        question += "\n" + faults[i].what;
    }
    if (faults.size() > NamedFaults) {
        question += "\n(" + std::to_string(faults.size() - NamedFaults) + " more)";
    }
    return question + "\n\nKeep the logic as it is?";
}

} // namespace ls
