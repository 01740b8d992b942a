#include "authoring/LogicBlock.h"

#include "authoring/LogicBlockReader.h"
#include "authoring/LogicTags.h"
#include "base/Quoted.h"
#include "base/Text.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace ls {

namespace {

using logic::LogicEntry;

// An identifier of the form VAR(CHOICE).
struct Identifier
{
    std::string_view variable;
    std::string_view choice;
};

bool IsWhole(std::string_view part)
{
    return !part.empty() && Trim(part) == part;
}

// Whether any line of the entry but the first begins with "[", after blanks.
bool HidesQuestions(std::string_view raw)
{
    for (std::size_t end = raw.find(LineEnd); end != std::string_view::npos;
         end = raw.find(LineEnd, end + 1)) {
        if (TrimLeft(raw.substr(end + LineEnd.size())).starts_with('[')) {
            return true;
        }
    }
    return false;
}

// Sorts the entries of a block into its tables.
class Tables
{
public:
    explicit Tables(LogicBlock& block) : m_block(block) {}

    void Fill(std::vector<LogicEntry>& entries)
    {
        for (const LogicEntry& entry : entries) {
            if (entry.question) {
                m_asked.insert(UpperCase(entry.identifier));
                m_finalQuestion = entry.line;
            }
        }
        for (LogicEntry& entry : entries) {
            if (entry.question) {
                TakeQuestion(entry);
            } else if (const std::optional<Identifier> identifier = Split(entry.identifier)) {
                TakeChoice(entry, *identifier);
            } else {
                TakeBare(entry);
            }
        }
        GroupChoices();
    }

private:
    [[nodiscard]] std::optional<Identifier> Split(std::string_view identifier) const
    {
        const std::size_t open = identifier.find('(');
        if (open == std::string_view::npos || identifier.back() != ')') {
            return std::nullopt;
        }
        const Identifier parts = {identifier.substr(0, open),
                                  identifier.substr(open + 1, identifier.size() - open - 2)};
        const bool known = IsWhole(parts.variable) || m_asked.count(UpperCase(parts.variable)) != 0;
        return known && IsWhole(parts.choice) ? std::optional(parts) : std::nullopt;
    }

    void TakeQuestion(LogicEntry& entry)
    {
        std::size_t& place = m_places.emplace(UpperCase(entry.identifier), Unlisted).first->second;
        if (place != Unlisted) {
            Lose(entry.line, "The second question for " + Quoted(entry.identifier) +
                                 " would be dropped; the advisor asks the first.");
            return;
        }
        m_questionBefore = entry.line;
        place = m_block.variables.size();
        m_block.variables.push_back({std::move(entry.identifier), std::move(entry.text), true});
    }

    void TakeChoice(LogicEntry& entry, const Identifier& identifier)
    {
        if (!m_identifiers.insert(UpperCase(entry.identifier)).second) {
            Lose(entry.line, "The second advice for " + Quoted(entry.identifier) +
                                 " would be dropped; the advisor shows the first.");
            return;
        }
        const std::string key = UpperCase(identifier.variable);
        std::size_t& place = m_places.emplace(key, Unlisted).first->second;
        if (place == Unlisted && m_asked.count(key) == 0) {
            place = m_block.variables.size();
            m_block.variables.push_back({std::string(identifier.variable), {}, false});
        }
        m_choices.push_back({&place, {{}, std::string(identifier.choice), std::move(entry.text)}});
    }

    // If questions come between two equal entries, the advisor shows one or the other, depending on the
    // question asked last. If both come after all questions, it always shows the first.
    void TakeBare(LogicEntry& entry)
    {
        const auto [earlier, first] = m_bare.emplace(UpperCase(entry.identifier), entry.line);
        if (!first && m_questionBefore > earlier->second) {
            Lose(entry.line, "The second advice for " + Quoted(entry.identifier) +
                                 " would move behind all questions, where the first is shown.");
        }
        if (HidesQuestions(entry.raw) && entry.line < m_finalQuestion) {
            Lose(entry.line, "The advice for " + Quoted(entry.identifier) +
                                 " holds a line beginning with \"[\", which hides the questions behind it "
                                 "from the advisor; it would move behind all questions.");
        }
        if (logic::HoldsOpening(UpperCase(entry.text))) {
            Lose(entry.line, "The advice for " + Quoted(entry.identifier) +
                                 " holds another entry, which would move with it behind all questions.");
        }
        m_block.bareEntries.push_back({std::move(entry.identifier), std::move(entry.raw)});
    }

    void GroupChoices()
    {
        std::stable_sort(m_choices.begin(), m_choices.end(),
                         [](const Placed& a, const Placed& b) { return *a.variable < *b.variable; });
        m_block.choices.reserve(m_choices.size());
        for (Placed& placed : m_choices) {
            placed.choice.variable = m_block.variables[*placed.variable].name;
            m_block.choices.push_back(std::move(placed.choice));
        }
    }

    void Lose(int line, std::string what) { m_block.lost.push_back({line, std::move(what)}); }

    static constexpr std::size_t Unlisted = static_cast<std::size_t>(-1);

    // A choice and the place of its variable, which is known only after all entries are taken.
    struct Placed
    {
        const std::size_t* variable;
        LogicChoice choice;
    };

    LogicBlock& m_block;
    std::vector<Placed> m_choices;
    std::unordered_set<std::string> m_asked;               ///< variables that have a question entry
    std::unordered_map<std::string, std::size_t> m_places; ///< of each variable in the list
    std::unordered_set<std::string> m_identifiers;         ///< of the choices
    std::unordered_map<std::string, int> m_bare;           ///< the line of the first of equal entries
    int m_finalQuestion = 0;                               ///< the line of the last question in the block
    int m_questionBefore = 0;                              ///< the line of the last question taken so far
};

} // namespace

LogicBlock ParseLogicBlock(std::string_view text)
{
    LogicBlock block;
    std::vector<LogicEntry> entries = logic::ReadLogicBlock(text, block.logicText, block.lost);
    Tables(block).Fill(entries);
    std::stable_sort(block.lost.begin(), block.lost.end(),
                     [](const LostPart& a, const LostPart& b) { return a.line < b.line; });
    return block;
}

} // namespace ls
