#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace ls {

/// The conclusion of a rule, `VAR(VALUE)` in front of its "=".
struct LeftHandSide
{
    std::string_view var;   ///< before the rule's first "("
    std::string_view value; ///< between that and the rule's first ")"
};

/// The conclusion of a rule; nothing when the rule has no "(" or its first ")" does not come behind it.
[[nodiscard]] std::optional<LeftHandSide> ParseLeftHandSide(std::string_view rule);

/// Whether the text before the rule's first "(" is `var`.
[[nodiscard]] bool Concludes(std::string_view rule, std::string_view var);

/// Whether nothing is left behind the rule's "=".
[[nodiscard]] bool HasFired(std::string_view rule);

/// Applies the fact `VAR(VALUE)` to a rule.
///
/// A condition on that variable is cut out when the rule holds the fact, and otherwise contradicts the rule;
/// a rule that concludes the variable is needed no more. In both of these cases the rule becomes empty.
/// `head` is "VAR(" and is searched as it stands: "AGE(" is found in "PAGE(X)" too. Kept so: a book must not
/// use a variable whose name ends another one's.
void ReduceRule(std::string& rule, std::string_view head, std::string_view fact);

/// Hands each condition variable of a rule to `take`, which returns false to stop the walk.
///
/// A variable is everything between the end of the last condition and the next "(", so a stray character
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
