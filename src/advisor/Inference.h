#pragma once

#include "advisor/AdvisorTables.h"
#include "base/Seams.h"

#include <optional>
#include <string>
#include <string_view>

namespace ls {

/// The values of a variable in the rules.
struct CollectedValues
{
    std::string Values; ///< each value followed by ","
    int Count = 0;
    bool IsDerived = false; ///< a rule concludes the variable
};

/// Why the advisor ends the program: faults of a book's rules with no way to go on.
namespace fault {
inline constexpr std::string_view Circular = "circular definition";
inline constexpr std::string_view NoValue = "variable with no value in any rule";
inline constexpr std::string_view NoNextVariable = "no next variable after an automatic one-value answer";
inline constexpr std::string_view NoRules = "answer given while the rule table is empty";
inline constexpr std::string_view UnsureWithoutRule = "unsure for a variable that no rule concludes";
} // namespace fault

/// Reasons by rewriting the texts of the rules. Each answer cuts out the conditions that it meets and empties
/// the rules that it contradicts. A rule fires when nothing is left after its "=".
///
/// Each operation is one pass over the rules, guided by their index; only rules of an odd form are searched
/// as text.
///
/// An advice identifier is the value of the goal "AV", and `GOAL(VALUE)` for any other goal; an empty one
/// means no advice.
class Inference
{
public:
    Inference(AdvisorTables& tables, const Seams& seams) : m_tables(tables), m_seams(seams) {}

    /// Applies the fact to every rule and drops the rules that become empty. `UnsureAnswer` is not a value
    /// and changes nothing.
    void ReduceRules(std::string_view var, std::string_view value);

    /// Applies a fact and draws all conclusions, from the current goal down to the dialogue's own goal.
    /// Returns the advice if a rule for the dialogue's own goal has fired, else an empty text.
    std::string AssertFact(const std::string& var, Count16 topic, const std::string& value);

    /// Stores the user's answer and asserts it. `UnsureAnswer` makes the variable a goal instead.
    std::string RecordAnswer(const std::string& var, const std::string& value, Count16 topic);

    /// Counts the variables in the conditions of the rules for the current goal.
    void BuildCandidates();

    /// The variable that occurs most often in those conditions, or the first such; empty if there is none. If
    /// it is a goal already, the definition is circular, which ends the program.
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
