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

/// A made-up rule base over 40 variables with 4 values each. Each rule has 6 conditions and its own advice.
/// The reader has an answer for every variable, and exactly one rule agrees with these answers.
struct AdvisorBase
{
    std::vector<BaseRule> rules;
    std::vector<Setting> reader; ///< the reader's answers, one for each variable
    std::string advice;          ///< of the rule that agrees with the reader

    [[nodiscard]] const std::string& AnswerTo(const std::string& var) const;
};

/// Makes the base with that many rules. It is the same in every run.
[[nodiscard]] AdvisorBase MakeAdvisorBase(int ruleCount);

/// Writes a book with one topic, "Advice", and returns its path. The topic's logic block is that base, with a
/// question for each variable and the text of the reader's advice.
[[nodiscard]] std::string WriteAdvisorBook(const AdvisorBase& base, const std::string& folder);

} // namespace ls::bench
