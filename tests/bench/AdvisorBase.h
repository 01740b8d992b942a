#pragma once

#include <string>
#include <vector>

namespace ls::bench {

/// A variable of a rule base with one of its values, in upper case.
struct Setting
{
    std::string var;
    std::string value;
};

struct BaseRule
{
    std::string advice;
    std::vector<Setting> conditions;
};

/// A made-up rule base: each rule has 6 conditions over 40 variables with 4 values each and an advice of its
/// own, and exactly one rule agrees with a reader who has an answer for every variable.
struct AdvisorBase
{
    std::vector<BaseRule> rules;
    std::vector<Setting> reader; ///< the reader's answers, one for each variable
    std::string advice;          ///< of the rule that agrees with all of them

    [[nodiscard]] const std::string& AnswerTo(const std::string& var) const;
};

/// The same base for the same number of rules, in every run.
[[nodiscard]] AdvisorBase MakeAdvisorBase(int ruleCount);

/// Writes a book with one topic, "Advice", whose logic block is that base with a question for each variable
/// and the text of the one advice that the reader gets. Gives its path.
[[nodiscard]] std::string WriteAdvisorBook(const AdvisorBase& base, const std::string& folder);

} // namespace ls::bench
