#pragma once

#include "advisor/AdvisorTables.h"
#include "base/Seams.h"

#include <optional>
#include <string>
#include <string_view>

namespace ls {

/// The choices of a variable, from the rules.
struct CollectedValues
{
    std::string Values; ///< each value followed by ","
    int Count = 0;
    bool IsDerived = false; ///< a rule concludes the variable
};

/// The reasons for which the advisor ends the program: faults of a book's rules that leave nothing to do.
namespace fault {
inline constexpr std::string_view Circular = "circular definition";
inline constexpr std::string_view NoValue = "variable with no value in any rule";
inline constexpr std::string_view NoNextVariable = "no next variable after an automatic one-value answer";
inline constexpr std::string_view NoRules = "answer given while the rule table is empty";
inline constexpr std::string_view UnsureWithoutRule = "unsure for a variable that no rule concludes";
} // namespace fault

/// Reasons over the rules by rewriting their texts: each answer cuts out the conditions that it satisfies and
/// empties the rules that it contradicts, and a rule fires when nothing is left behind its "=".
///
/// Every operation is a pass over the rules, in which the rules' index tells what there is to do; texts are
/// searched only in rules of an odd form. An advice identifier is the value of the goal "AV",
/// and `GOAL(VALUE)` for any other goal; empty stands for no advice.
class Inference
{
public:
    Inference(AdvisorTables& tables, const Seams& seams) : m_tables(tables), m_seams(seams) {}

    /// Applies the fact to every rule and drops the rules that it emptied. `UnsureAnswer` is no value: it
    /// changes nothing.
    void ReduceRules(std::string_view var, std::string_view value);

    /// Makes the fact known and draws the conclusions, from the goal pursued down to the dialogue's own.
    /// Returns the advice when that one has fired.
    std::string AssertFact(const std::string& var, Count16 topic, const std::string& value);

    /// Stores the reader's answer and asserts it; `UnsureAnswer` makes the variable a goal instead.
    std::string RecordAnswer(const std::string& var, const std::string& value, Count16 topic);

    /// Counts the condition variables of the rules for the goal being pursued.
    void BuildCandidates();

    /// The variable that most conditions wait for, the first of equals; empty when there is none. One that is
    /// a goal already is a circular definition, which ends the program.
    std::string PickNextVariable();

    [[nodiscard]] CollectedValues CollectValues(std::string_view var) const;

    /// Whether a table or a count passed its limit. The "Overflow" box was shown then, and the dialogue
    /// cannot go on.
    [[nodiscard]] bool Overflowed() const { return m_overflowed; }

private:
    struct Conclusion;

    std::optional<Conclusion> FirstConclusion(int highestTarget);
    bool NoteConclusion(const std::string& var, const std::string& value, Count16 topic);
    void ReportMalformed(const std::string& rule);
    [[nodiscard]] bool IsTarget(const std::string& name) const;
    RuleIndex& Index() const;
    void ReduceByTerms(int number, const RuleIndex::Matches& matches, std::string_view var,
                       std::string_view value);
    bool CountCandidates(std::string_view goal);
    void Overflow();

    AdvisorTables& m_tables;
    Seams m_seams;
    bool m_overflowed = false;
};

} // namespace ls
