#pragma once

#include "advisor/RuleIndex.h"
#include "base/Array1.h"
#include "base/Count16.h"
#include "base/FilePos.h"

#include <cstdint>
#include <string>

namespace ls {

/// The topic in which the question for a variable is found.
struct VarTopic
{
    std::string Name; ///< upper case
    Count16 Topic;
};

/// A variable that may be asked next.
struct Candidate
{
    std::string Name;
    Count16 Level; ///< how many conditions of the goal's rules name it
};

/// A known fact. Answers remain after the dialogue in which they were given.
struct Answer
{
    std::string Var;
    std::string Value;
    Count16 Topic;        ///< where the variable's question is defined
    bool Derived = false; ///< concluded by a rule; otherwise given by the user
};

/// The choice that a derived variable offers besides its values. Values in rules are in upper case, so none
/// of them equals it.
inline constexpr char UnsureText[] = "? - unsure";

/// The advisor's state: rules, goals, and the topics of questions. Each dialogue builds everything but the
/// answers anew.
///
/// Elements past a table's count are meaningless leftovers.
struct AdvisorTables
{
    Array1<std::string> LogicRules; ///< `VAR(VALUE)=A(X)B(Y)`, rewritten by each answer
    Count16 RuleCount;
    RuleIndex Index; ///< of `LogicRules`; see ClearRules

    Array1<std::string> Targets; ///< 1 is the dialogue's goal; the last is the current one
    Count16 TargetCount;

    Array1<VarTopic> VarTopics;
    Count16 VarTopicCount;

    Array1<Count16> LogicTopics; ///< the topics whose logic is loaded
    Count16 LogicTopicCount;

    Array1<Candidate> Candidates;
    Count16 CandidateCount;

    Array1<Answer> Answers;
    Count16 AnswerCount;
    std::uint32_t AnswersOrder = 0; ///< the book's `TopicOrder` when the answers' topics were numbered

    FilePos DefinitionsPos = 0; ///< after the "<DEFINITIONS>" line of the topic loaded first
    Count16 FirstTopic;         ///< the topic for which the advisor was opened

    std::string CurrentVar;  ///< the variable whose question is on show
    Count16 CurrentVarTopic; ///< the topic with that question
    std::string UnsureAnswer;
};

/// Forgets the answers of earlier dialogues. This happens automatically when the book or the order of its
/// topics has changed, because the answers refer to topics by number.
void ForgetAnswers(AdvisorTables& tables);

/// Empties the rule table. Code other than the inference that changes rules must call this or clear `Index`,
/// because the inference trusts that index.
void ClearRules(AdvisorTables& tables);

/// The whole state as text for tests and traces, one line for each element.
[[nodiscard]] std::string Serialize(const AdvisorTables& tables);

/// Appends an element to a table. A full table grows by `step` elements. False, with nothing changed, if the
/// count is at its limit.
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

/// The number of elements by which a full table grows.
inline constexpr int RuleGrowthStep = 50;
inline constexpr int TargetGrowthStep = 10;
inline constexpr int AdvisorGrowthStep = 20;

/// The counted elements of a table, as a range.
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
