#include "base/CodePage.h"
#include "check/BlockRules.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <set>
#include <unordered_map>
#include <utility>
#include <vector>

namespace ls {

namespace {

using TermSet = std::set<std::pair<std::string, std::string>>;

TermSet ConditionsOf(const BlockRule& rule)
{
    TermSet terms;
    for (const BlockTerm& term : rule.conditions) {
        terms.emplace(term.var, term.value);
    }
    return terms;
}

// Reports a rule that needs two values of one variable.
bool CheckContradiction(const BlockRule& rule, const TermSet& conditions, Findings& findings)
{
    const auto twice =
        std::adjacent_find(conditions.begin(), conditions.end(), [](const auto& a, const auto& b) {
            return a.first == b.first && a.second != b.second;
        });
    if (twice == conditions.end()) {
        return false;
    }
    // Either answer removes only one of the conditions. The other one is still open.
    findings.Warning(
        "contradictory-rule", rule.line,
        Fact(twice->first, twice->second) + " and " + Fact(twice->first, std::next(twice)->second) +
            " never hold together, but the program takes either answer and then asks the reader for " +
            FromBook(twice->first) +
            " again, or takes the other value as given: remove one of them (ASSUME puts conditions "
            "in, too).");
    return true;
}

// Reports a condition that occurs twice. The answer removes only one of them; the program then takes the
// other one as given.
void CheckDoubledCondition(const BlockRule& rule, const TermSet& conditions, Findings& findings)
{
    if (conditions.size() == rule.conditions.size()) {
        return;
    }
    std::set<std::pair<std::string, std::string>> known;
    for (const BlockTerm& term : rule.conditions) {
        if (!known.emplace(term.var, term.value).second) {
            findings.Warning("doubled-condition", rule.line,
                             "The rule has the condition " + Fact(term.var, term.value) +
                                 " twice, which counts double when the reader's next question is chosen: "
                                 "remove one of them (ASSUME puts conditions in, too).");
            return;
        }
    }
}

// The conditions of a rule as numbers. For tens of thousands of rules, only comparing numbers is fast enough,
// not texts.
struct Needs
{
    std::vector<std::uint32_t> numbers; ///< ascending
    std::uint64_t mask = 0;             ///< one bit for each number: the number modulo 64

    [[nodiscard]] bool Include(const Needs& fewer) const
    {
        return (fewer.mask & ~mask) == 0 &&
               std::includes(numbers.begin(), numbers.end(), fewer.numbers.begin(), fewer.numbers.end());
    }
};

// Finds an earlier rule for the same variable with the same conditions or fewer.
class Earlier
{
public:
    // Returns the earlier rule, nullptr for none, and adds this rule to the earlier ones.
    const BlockRule* Take(const BlockRule& rule, const TermSet& conditions)
    {
        Group& group = m_groups[rule.conclusion.var];
        Needs needs = NeedsOf(conditions);
        const BlockRule* const found = group.Find(conditions, needs);
        group.Add(rule, conditions, std::move(needs));
        return found;
    }

private:
    // A rule is listed under its first condition in order. Every set that includes all its conditions has
    // that one too.
    struct Group
    {
        const BlockRule* withoutConditions = nullptr;
        std::map<std::pair<std::string, std::string>, std::vector<std::pair<Needs, const BlockRule*>>>
            byLeast;

        const BlockRule* Find(const TermSet& conditions, const Needs& needs) const
        {
            if (withoutConditions != nullptr) {
                return withoutConditions;
            }
            for (const auto& term : conditions) {
                const auto list = byLeast.find(term);
                if (list == byLeast.end()) {
                    continue;
                }
                std::size_t tries = 0;
                for (const auto& [fewer, rule] : list->second) {
                    if (++tries > MostTries) {
                        break;
                    }
                    if (needs.Include(fewer)) {
                        return rule;
                    }
                }
            }
            return nullptr;
        }

        void Add(const BlockRule& rule, const TermSet& conditions, Needs needs)
        {
            if (!conditions.empty()) {
                byLeast[*conditions.begin()].emplace_back(std::move(needs), &rule);
            } else if (withoutConditions == nullptr) {
                withoutConditions = &rule;
            }
        }
    };

    Needs NeedsOf(const TermSet& conditions)
    {
        Needs needs;
        for (const auto& term : conditions) {
            const auto next = static_cast<std::uint32_t>(m_numbers.size());
            const std::uint32_t number = m_numbers.emplace(term, next).first->second;
            needs.numbers.push_back(number);
            needs.mask |= std::uint64_t{1} << number % 64;
        }
        std::sort(needs.numbers.begin(), needs.numbers.end());
        return needs;
    }

    static constexpr std::size_t MostTries = 2000; ///< limits the time for tens of thousands of rules

    std::unordered_map<std::string, Group> m_groups;
    std::map<std::pair<std::string, std::string>, std::uint32_t> m_numbers;
};

void ReportEarlier(const BlockRule& rule, const TermSet& conditions, const BlockRule& earlier,
                   Findings& findings)
{
    const std::string line = std::to_string(earlier.line);
    if (earlier.conclusion.value == rule.conclusion.value && ConditionsOf(earlier) == conditions) {
        findings.Warning("doubled-rule", rule.line,
                         "The rule says the same as the one in line " + line +
                             " and changes nothing for the reader: remove one of them.");
        return;
    }
    findings.Warning(
        "preceded-rule", rule.line,
        "The rule in line " + line + " concludes " + FromBook(rule.conclusion.var) +
            " whenever this one could, so no reader comes to this one: move it before that line, "
            "or add a condition there.");
}

// Reports a condition on a value that no rule concludes, if the reader is never asked for the variable.
void CheckConcluded(const RuleBase& base, const BlockRule& rule, Findings& findings)
{
    for (const BlockTerm& term : rule.conditions) {
        const VariableUse* const use = base.Find(term.var);
        if (use == nullptr || use->conclusions.empty() || base.Question(term.var) == nullptr ||
            base.HasQuestionText(term.var) ||
            std::any_of(use->conclusions.begin(), use->conclusions.end(), [&](const PlacedRule& placed) {
                return placed.rule->conclusion.value == term.value;
            })) {
            continue;
        }
        findings.Warning("value-not-concluded", rule.line,
                         "The rule can never fire, since " + FromBook(term.var) +
                             " is never asked and no rule concludes " + Fact(term.var, term.value) +
                             ": add such a rule, or a question that the reader can answer.");
    }
}

} // namespace

std::string Fact(const std::string& var, const std::string& value)
{
    return FromBook(var + "(" + value + ")");
}

void CheckOverlaps(const RuleBase& base, Findings& findings)
{
    Earlier earlier;
    for (const BlockRule& rule : base.Own().rules) {
        if (rule.fault != RuleFault::None) {
            continue;
        }
        const TermSet conditions = ConditionsOf(rule);
        if (CheckContradiction(rule, conditions, findings)) {
            continue;
        }
        CheckDoubledCondition(rule, conditions, findings);
        CheckConcluded(base, rule, findings);
        if (const BlockRule* const other = earlier.Take(rule, conditions)) {
            ReportEarlier(rule, conditions, *other, findings);
        }
    }
}

} // namespace ls
