#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace ls {

/// The conclusion of a rule: `VAR(VALUE)` before its "=".
struct LeftHandSide
{
    std::string_view var;   ///< before the rule's first "("
    std::string_view value; ///< from there to the rule's first ")"
};

/// The conclusion of a rule. Nothing if the rule has no "(", or no ")" after the first "(".
[[nodiscard]] std::optional<LeftHandSide> ParseLeftHandSide(std::string_view rule);

/// Whether the text before the rule's first "(" is `var`.
[[nodiscard]] bool Concludes(std::string_view rule, std::string_view var);

/// Whether nothing is left after the rule's "=".
[[nodiscard]] bool HasFired(std::string_view rule);

/// Applies the fact `VAR(VALUE)` to a rule.
///
/// The first condition on that variable is removed if the rule contains the fact. Otherwise the rule
/// contradicts the fact and becomes empty. A rule that concludes the variable is no longer needed and becomes
/// empty too.
///
/// Intended: `head` is "VAR(" and is searched as plain text, so "AGE(" is also found in "PAGE(X)". A book
/// must not use a variable whose name is the end of another one's.
void ReduceRule(std::string& rule, std::string_view head, std::string_view fact);

/// Passes each condition variable of a rule to `take`, which returns false to stop.
///
/// A variable is all text between the end of the last condition and the next "(", so a stray character
/// between conditions becomes part of a name.
template <typename Take>
bool ForEachConditionVar(std::string_view rule, Take take)
{
    constexpr std::size_t none = std::string_view::npos;
    std::size_t from = rule.find('=');
    from = from == none ? 0 : from + 1;
    for (;;) {
        const std::size_t open = rule.find('(', from);
        if (open == none) {
            return true;
        }
        if (!take(rule.substr(from, open - from))) {
            return false;
        }
        const std::size_t close = rule.find(')', open);
        if (close == none) {
            return true;
        }
        from = close + 1;
    }
}

} // namespace ls
