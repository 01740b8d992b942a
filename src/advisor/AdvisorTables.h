#pragma once

#include "advisor/RuleIndex.h"
#include "base/Array1.h"
#include "base/Count16.h"
#include "base/FilePos.h"

#include <cstdint>
#include <string>

namespace ls {

/// Where the question for a variable is found.
struct VarTopic
{
    std::string Name; ///< upper case
    Count16 Topic;
};

/// A variable that may be asked next.
struct Candidate
{
    std::string Name;
    Count16 Level; ///< how often it occurs in the conditions of the rules for the goal
};

/// A known fact. Answers outlive the dialogue in which they were given.
struct Answer
{
    std::string Var;
    std::string Value;
    Count16 Topic;        ///< where the variable's question is defined
    bool Derived = false; ///< concluded by a rule; otherwise given by the reader
};

/// What the choices of a derived variable offer besides its values. Lower case: no value of a rule equals it.
inline constexpr char UnsureText[] = "? - unsure";

/// The advisor's state: rules, goals, and where questions are found. Everything but the answers is built anew
/// for each dialogue.
///
/// Elements behind a table's count are leftovers and mean nothing.
struct AdvisorTables
{
    Array1<std::string> LogicRules; ///< `VAR(VALUE)=A(X)B(Y)`, rewritten as answers come in
    Count16 RuleCount;
    RuleIndex Index; ///< follows the rules; see ClearRules

    Array1<std::string> Targets; ///< 1 is the dialogue's goal, the last one the goal being pursued
    Count16 TargetCount;

    Array1<VarTopic> VarTopics;
    Count16 VarTopicCount;

    Array1<Count16> LogicTopics; ///< the topics whose logic is loaded
    Count16 LogicTopicCount;

    Array1<Candidate> Candidates;
    Count16 CandidateCount;

    Array1<Answer> Answers;
    Count16 AnswerCount;
    std::uint32_t AnswersOrder = 0; ///< the book's `TopicOrder` to which the answers' topic numbers belong

    FilePos DefinitionsPos = 0; ///< behind the "<DEFINITIONS>" line of the topic that was loaded first
    Count16 FirstTopic;         ///< the topic on which the advisor was opened

    std::string CurrentVar;  ///< whose question is on show
    Count16 CurrentVarTopic; ///< where that question is defined
    std::string UnsureAnswer;
};

/// Forgets the answers of earlier dialogues. It happens by itself when the book or the order of its topics
/// changed since they were given: their topic numbers would mean other topics.
void ForgetAnswers(AdvisorTables& tables);

/// Empties the rule table. Rules that were changed by anybody but the inference need it too, or a cleared
/// `Index`, since the inference trusts its index.
void ClearRules(AdvisorTables& tables);

/// The whole state as text, a line for each element, for tests and traces.
[[nodiscard]] std::string Serialize(const AdvisorTables& tables);

/// Adds an element to a table behind its count; false, and nothing changed, when the count is at its limit. A
/// full table becomes `step` elements larger.
template <typename T>
[[nodiscard]] bool Append(Array1<T>& table, Count16& count, T element, int step)
{
    if (!count.Add()) {
        return false;
    }
    table.Grow(count, step - 1);
    table(count) = std::move(element);
    return true;
}

/// By how much the tables grow past their bounds.
inline constexpr int RuleGrowthStep = 50;
inline constexpr int TargetGrowthStep = 10;
inline constexpr int AdvisorGrowthStep = 20;

/// The elements that a table's count covers, as a range.
template <typename Table>
class Counted
{
public:
    Counted(Table& table, Count16 count) : m_table(&table), m_count(count) {}
    [[nodiscard]] auto begin() const { return m_table->begin(); }
    [[nodiscard]] auto end() const { return m_table->begin() + m_count; }

private:
    Table* m_table;
    int m_count;
};

} // namespace ls
