#include "advisor/RuleText.h"

namespace ls {

namespace {

constexpr std::size_t None = std::string_view::npos;

} // namespace

std::optional<LeftHandSide> ParseLeftHandSide(std::string_view rule)
{
    const std::size_t open = rule.find('(');
    const std::size_t close = rule.find(')');
    if (open == None || close == None || close < open) {
        return std::nullopt;
    }
    return LeftHandSide{rule.substr(0, open), rule.substr(open + 1, close - open - 1)};
}

bool Concludes(std::string_view rule, std::string_view var)
{
    // A variable with "(" in its name could pass the first two tests, but is not what the rule concludes.
    return rule.size() > var.size() && rule[var.size()] == '(' && rule.substr(0, var.size()) == var &&
           var.find('(') == None;
}

bool HasFired(std::string_view rule)
{
    return !rule.empty() && rule.back() == '=' && rule.find('=') == rule.size() - 1;
}

void ReduceRule(std::string& rule, std::string_view head, std::string_view fact)
{
    const std::size_t at = rule.find(head);
    if (at == None) {
        return;
    }
    // `head` is "VAR(" and `fact` is "VAR(VALUE)", so the fact cannot come before the first head.
    if (at < rule.find('=') || rule.find(fact, at) == None) {
        rule.clear();
        return;
    }
    const std::size_t close = rule.find(')', at);
    rule.erase(at, close - at + 1);
}

} // namespace ls
