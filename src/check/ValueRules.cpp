#include "advisor/ValueList.h"
#include "base/CodePage.h"
#include "check/BlockRules.h"

#include <unordered_map>
#include <unordered_set>

namespace ls {

namespace {

void CheckOneValue(const RuleBase& base, const VariableUse& variable, Findings& findings)
{
    if (variable.conditionLine == 0 || base.Question(variable.name) == nullptr ||
        base.Values(variable).size() != 1) {
        return;
    }
    const std::string var = FromBook(variable.name);
    if (variable.conclusions.empty()) {
        findings.Warning(
            "one-value", variable.conditionLine,
            "The rules know one value only of " + var +
                ", so the reader is never asked and it is taken as given: add a rule for another "
                "value, or remove the condition.");
    } else {
        findings.Warning("concluded-one-value", variable.conditionLine,
                         "The rules know one value only of " + var +
                             ", so it is taken as given and the rules that conclude it are never used: add a "
                             "rule for another value, or remove the condition.");
    }
}

// Reports values that are missing in the choices. The list of choices is one text, and a value counts as
// known if an earlier value ends in it.
void CheckHiddenValues(const RuleBase& base, const VariableUse& variable, Findings& findings)
{
    if (!variable.condition || !base.HasQuestionText(variable.name)) {
        return;
    }
    ValueList list;
    std::unordered_set<std::string> known;
    for (const PlacedRule& placed : variable.rules) {
        const std::string* const value = ValueIn(*placed.rule, variable.name);
        if (value == nullptr || value->empty() || !known.insert(*value).second || list.Add(*value) ||
            placed.block != &base.Own()) {
            continue;
        }
        findings.Warning("value-ends-value", placed.rule->line,
                         "An earlier value of " + FromBook(variable.name) + " ends in " + Quoted(*value) +
                             ", so the reader is not offered this one: give it another name.");
    }
}

// Reports a name that is the end of a longer name. The engine searches "NAME(" in the text of the rules, so
// it finds the longer name too.
void CheckNames(const RuleBase& base, Findings& findings)
{
    std::unordered_map<std::string_view, const VariableUse*> asked;
    for (const VariableUse& variable : base.Variables()) {
        if (variable.condition) {
            asked.emplace(variable.name, &variable);
        }
    }
    for (const VariableUse& longer : base.Variables()) {
        const std::string_view name = longer.name;
        for (std::size_t from = 1; from < name.size(); ++from) {
            const auto found = asked.find(name.substr(from));
            if (found == asked.end()) {
                continue;
            }
            const VariableUse& shorter = *found->second;
            const int line = shorter.line != 0 ? shorter.line : longer.line;
            if (line != 0) {
                findings.Error(
                    "name-ends-name", line,
                    "The name " + FromBook(shorter.name) + " ends the name " + FromBook(longer.name) +
                        ", so what a reader answers for the one also decides rules about the other: "
                        "rename one of them.");
            }
        }
    }
}

} // namespace

void CheckValues(const RuleBase& base, Findings& findings)
{
    for (const VariableUse& variable : base.Variables()) {
        CheckOneValue(base, variable, findings);
        CheckHiddenValues(base, variable, findings);
    }
    CheckNames(base, findings);
}

} // namespace ls
