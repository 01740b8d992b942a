#include "base/CodePage.h"
#include "check/BlockRules.h"

#include <algorithm>

namespace ls {

namespace {

constexpr std::size_t None = std::string::npos;

// A readable form of the text between conditions.
std::string StrayText(const std::string& stray)
{
    return stray == "\t" ? "a TAB" : Quoted(stray);
}

void CheckConclusion(const BlockRule& rule, Findings& findings)
{
    if (rule.fault == RuleFault::Conclusion) {
        findings.Error(
            "bad-conclusion", rule.line,
            "What stands before the \"=\" is not of the form VARIABLE(VALUE), so the rule concludes "
            "nothing and may stop the reader's dialogue with a box: write it in that form.");
    }
}

void CheckBrackets(const BlockRule& rule, Findings& findings)
{
    if (rule.fault == RuleFault::Brackets) {
        findings.Error("brackets", rule.line,
                       "The brackets of the conditions do not pair up, or no name stands before them, so the "
                       "rule may never hold for any reader: write each condition as VARIABLE(VALUE).");
    }
}

void CheckEquals(const BlockRule& rule, Findings& findings)
{
    if (rule.fault == RuleFault::Equals) {
        findings.Error(
            "two-equals", rule.line,
            "The rule has more than one \"=\", so it never holds for any reader: write each rule on "
            "a line of its own, as VARIABLE(VALUE) = CONDITION CONDITION.");
    }
}

void CheckStray(const BlockRule& rule, Findings& findings)
{
    if (rule.fault == RuleFault::Stray) {
        findings.Error("stray-text", rule.line,
                       "The rule never holds for any reader because " + StrayText(rule.stray) +
                           " stands among its conditions: part conditions by a blank alone.");
    }
}

// Reports an empty value. The list of choices skips it or shows it as a blank choice.
void CheckEmptyValue(const BlockTerm& term, int line, Findings& findings)
{
    if (term.value.empty()) {
        findings.Error("empty-value", line,
                       Fact(term.var, term.value) +
                           " has no value, so no reader can choose it: write a value between the "
                           "brackets.");
    }
}

void CheckValueCharacters(const BlockTerm& term, int line, Findings& findings)
{
    if (term.value.find(',') != None) {
        findings.Error(
            "value-comma", line,
            "The value of " + Fact(term.var, term.value) +
                " holds a comma, at which the list of choices cuts it, so no reader can choose it: "
                "write a hyphen instead.");
    }
    if (term.value.find('(') != None) {
        findings.Error(
            "value-bracket", line,
            "The value of " + Fact(term.var, term.value) +
                ") holds a bracket, so its rule may never hold for any reader: leave the bracket out.");
    }
}

void CheckTerm(const BlockTerm& term, int line, Findings& findings)
{
    CheckEmptyValue(term, line, findings);
    CheckValueCharacters(term, line, findings);
}

} // namespace

void CheckRuleForm(const RuleBase& base, Findings& findings)
{
    for (const BlockRule& rule : base.Own().rules) {
        CheckConclusion(rule, findings);
        CheckBrackets(rule, findings);
        CheckEquals(rule, findings);
        CheckStray(rule, findings);
        if (rule.fault != RuleFault::Conclusion) {
            CheckTerm(rule.conclusion, rule.line, findings);
        }
        for (std::size_t i = rule.assumed; i < rule.conditions.size(); ++i) {
            CheckTerm(rule.conditions[i], rule.line, findings);
        }
    }
    for (const BlockCommand& command : base.Own().commands) {
        for (const BlockTerm& term : command.terms) {
            CheckTerm(term, command.line, findings);
        }
    }
}

} // namespace ls
