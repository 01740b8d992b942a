#include "advisor/Inference.h"

#include "advisor/RuleText.h"
#include "advisor/ValueList.h"
#include "base/CodePage.h"
#include "base/Messages.h"
#include "base/ProgramEnd.h"
#include "book/BookWords.h"

#include <algorithm>
#include <cstdint>
#include <unordered_map>
#include <utility>
#include <vector>

// How the advisor reasons:
//
// 1. The rules are texts, and an answer rewrites them: a met condition is cut out, and a contradicted rule is
//    dropped.
// 2. A rule fires when nothing is left after its "=".
// 3. Goals are a stack: the dialogue's own goal is at the bottom, the current one on top. One pass over the
//    rules finds the topmost goal with a fired rule, and the rule's value is asserted like an answer.
// 4. The next question is about the variable that occurs most often in the conditions of the rules for the
//    current goal.
// 5. An index holds the places of the variables in each rule, so the text is searched only in rules of an odd
//    form.
//
// The test InferenceModel.randomRules_giveWhatThePlainReadingGives compares it with a slow and simple
// version. DialogueModel.randomBooks_playAsThePlainReadingDoes does so for whole dialogues.

namespace ls {

namespace {

// The value after the first "VAR(" (`head`) in the rule's text.
std::optional<std::string_view> ValueIn(std::string_view rule, std::string_view head)
{
    const std::size_t at = rule.find(head);
    const std::size_t from = at + head.size();
    const std::size_t close = at == std::string_view::npos ? at : rule.find(')', from);
    return close == std::string_view::npos ? std::nullopt : std::optional(rule.substr(from, close - from));
}

// The same by the rule's terms, without searching its text.
std::optional<std::string_view> ValueByTerms(const RuleIndex::Terms& terms, const RuleIndex::Matches& matches,
                                             std::string_view rule)
{
    const RuleIndex::Term* const found = matches.Find(terms, terms.begin());
    return found == terms.end() ? std::nullopt : std::optional(found->Value(rule));
}

std::string Fact(std::string_view var, std::string_view value)
{
    return std::string(var).append("(").append(value).append(")");
}

} // namespace

// A goal with a fired rule, and its value.
struct Inference::Conclusion
{
    int target = 0;
    std::string var;
    std::string value;
};

void Inference::Overflow()
{
    m_overflowed = true;
    ShowOverflow(m_seams.messages);
}

// The index, brought up to date.
RuleIndex& Inference::Index() const
{
    m_tables.Index.Follow(m_tables.LogicRules, m_tables.RuleCount);
    return m_tables.Index;
}

// The same as ReduceRule without searching the text: each place of "VAR(" is a term whose name ends in VAR.
void Inference::ReduceByTerms(int number, const RuleIndex::Matches& matches, std::string_view var,
                              std::string_view value)
{
    std::string& rule = m_tables.LogicRules(number);
    RuleIndex& index = m_tables.Index;
    const RuleIndex::Terms terms = index.TermsOf(number);
    const RuleIndex::Term* const first = matches.Find(terms, terms.begin());
    if (first == terms.end()) {
        return;
    }
    const RuleIndex::Term* met = first;
    while (met != terms.end() && met->Value(rule) != value) {
        met = matches.Find(terms, met + 1);
    }
    if (first == terms.begin() || met == terms.end()) {
        rule.clear();
        return;
    }
    const std::size_t at = first->open - var.size();
    rule.erase(at, first->close + 1 - at);
    if (index.Name(first->name).size() == var.size()) {
        index.Cut(number, *first);
    } else { // the rest of the longer name now belongs to the next term
        index.Update(number, rule);
    }
}

void Inference::ReduceRules(std::string_view var, std::string_view value)
{
    if (value == m_tables.UnsureAnswer) {
        return;
    }
    const std::string fact = Fact(var, value);
    const std::string_view head = std::string_view(fact).substr(0, var.size() + 1);
    RuleIndex& index = Index();
    const RuleIndex::Matches matches = index.NamesEndingIn(var);
    const bool plainValue = !RuleIndex::HasMark(value);
    int kept = 0;
    for (int i = 1; i <= m_tables.RuleCount; ++i) {
        std::string& rule = m_tables.LogicRules(i);
        if (index.MayName(i, matches)) {
            if (plainValue && index.HasTerms(i, matches)) {
                ReduceByTerms(i, matches, var, value);
            } else {
                ReduceRule(rule, head, fact);
                index.Update(i, rule);
            }
        }
        if (!rule.empty() && ++kept != i) {
            m_tables.LogicRules(kept) = std::move(rule);
            rule.clear();
            index.Move(i, kept);
        }
    }
    m_tables.RuleCount = kept;
    index.Truncate(kept);
}

void Inference::ReportMalformed(const std::string& rule)
{
    m_seams.messages.MsgBox("A LHS variable was found that is not in format Varname(Value): " +
                                FromBook(rule) + " -- processing stopped",
                            Icon::Exclamation);
}

// The topmost goal with a fired rule, and the value of the first such rule.
//
// Same result as scanning all rules once per goal, in one pass. A scan that meets a malformed rule before a
// fired one ends the search, so only fired rules before the first malformed rule count.
std::optional<Inference::Conclusion> Inference::FirstConclusion(int highestTarget)
{
    std::unordered_map<std::string_view, std::string_view> fired;
    const std::string* malformed = nullptr;
    const RuleIndex& index = Index();
    for (int i = 1; i <= m_tables.RuleCount && malformed == nullptr; ++i) {
        if (!index.Odd(i) && !index.Fired(i)) {
            continue;
        }
        const std::string& rule = m_tables.LogicRules(i);
        const std::optional<LeftHandSide> left = ParseLeftHandSide(rule);
        if (!left) {
            malformed = &rule;
        } else if (HasFired(rule)) {
            fired.emplace(left->var, left->value);
        }
    }
    for (int t = highestTarget; t >= 1; --t) {
        const auto found = fired.find(m_tables.Targets(t));
        if (found != fired.end()) {
            return Conclusion{t, std::string(found->first), std::string(found->second)};
        }
        if (malformed != nullptr) {
            ReportMalformed(*malformed);
            return std::nullopt;
        }
    }
    return std::nullopt;
}

// Adds a concluded fact to the answers, once for each variable and topic. False if there is no room.
bool Inference::NoteConclusion(const std::string& var, const std::string& value, Count16 topic)
{
    const Counted answers(std::as_const(m_tables.Answers), m_tables.AnswerCount);
    const bool known = std::any_of(answers.begin(), answers.end(), [&](const Answer& answer) {
        return answer.Var == var && answer.Topic == topic;
    });
    if (known ||
        Append(m_tables.Answers, m_tables.AnswerCount, Answer{var, value, topic, true}, AdvisorGrowthStep)) {
        return true;
    }
    Overflow();
    return false;
}

std::string Inference::AssertFact(const std::string& var, Count16 topic, const std::string& value)
{
    if (m_seams.end.Ended() || m_overflowed) {
        return {};
    }
    ReduceRules(var, value);
    int t = m_tables.TargetCount;
    // This ends, because each round looks at fewer goals than the one before.
    while (const std::optional<Conclusion> found = FirstConclusion(t)) {
        if (!NoteConclusion(found->var, found->value, topic)) {
            return {};
        }
        if (found->target == 1) {
            // The dialogue's own goal. Answers may settle it while sub-goals are open. Its advice counts even
            // then; otherwise the user would read that no question can be found.
            return found->var == DefaultGoal ? found->value : Fact(found->var, found->value);
        }
        ReduceRules(found->var, found->value);
        // The top of the stack is removed, even if the goal with the fired rule is below it.
        m_tables.TargetCount = m_tables.TargetCount - 1;
        t = found->target - 1;
    }
    return {};
}

std::string Inference::RecordAnswer(const std::string& var, const std::string& value, Count16 topic)
{
    if (m_seams.end.Ended() || m_overflowed) {
        return {};
    }
    if (m_tables.RuleCount == 0) {
        EndProgram(m_seams.end, fault::NoRules);
        return {};
    }
    if (value != m_tables.UnsureAnswer) {
        if (!Append(m_tables.Answers, m_tables.AnswerCount, Answer{var, value, topic, false},
                    AdvisorGrowthStep)) {
            Overflow();
            return {};
        }
        return AssertFact(var, topic, value);
    }
    const Counted rules(std::as_const(m_tables.LogicRules), m_tables.RuleCount);
    if (std::none_of(rules.begin(), rules.end(),
                     [&var](const std::string& rule) { return Concludes(rule, var); })) {
        EndProgram(m_seams.end, fault::UnsureWithoutRule);
    } else if (!Append(m_tables.Targets, m_tables.TargetCount, var, TargetGrowthStep)) {
        Overflow();
    }
    return {};
}

// False if a count passed its limit.
bool Inference::CountCandidates(std::string_view goal)
{
    RuleIndex& index = Index();
    const std::uint32_t goalName = index.NumberOf(goal);
    std::vector<int> levels(index.NameCount()); // by the number of the name
    std::vector<std::uint32_t> met;             // in order of appearance
    const auto take = [&levels, &met](std::uint32_t name) {
        if (levels[name]++ == 0) {
            met.push_back(name);
        }
    };
    for (int i = 1; i <= m_tables.RuleCount; ++i) {
        if (index.Odd(i)) {
            const std::string& rule = m_tables.LogicRules(i);
            ForEachConditionVar(Concludes(rule, goal) ? rule : std::string_view(),
                                [&](std::string_view name) {
                                    const std::uint32_t number = index.NumberOf(name);
                                    levels.resize(index.NameCount());
                                    take(number);
                                    return true;
                                });
            continue;
        }
        const RuleIndex::Terms terms = index.TermsOf(i);
        if (terms.begin()->name == goalName) {
            std::for_each(terms.begin() + 1, terms.end(), [&](const auto& term) { take(term.name); });
        }
    }
    return std::all_of(met.begin(), met.end(), [&](std::uint32_t name) {
        return levels[name] <= Count16::Max &&
               Append(m_tables.Candidates, m_tables.CandidateCount,
                      Candidate{index.Name(name), Count16(levels[name])}, AdvisorGrowthStep);
    });
}

void Inference::BuildCandidates()
{
    m_tables.CandidateCount = 0;
    if (m_tables.TargetCount == 0) {
        return;
    }
    if (!CountCandidates(m_tables.Targets(m_tables.TargetCount))) {
        m_tables.CandidateCount = 0;
        Overflow();
    }
}

bool Inference::IsTarget(const std::string& name) const
{
    const Counted targets(m_tables.Targets, m_tables.TargetCount);
    return std::find(targets.begin(), targets.end(), name) != targets.end();
}

std::string Inference::PickNextVariable()
{
    if (m_seams.end.Ended() || m_overflowed) {
        return {};
    }
    BuildCandidates();
    const Candidate* best = nullptr;
    for (const Candidate& candidate : Counted(m_tables.Candidates, m_tables.CandidateCount)) {
        if (best != nullptr && candidate.Level <= best->Level) {
            continue;
        }
        if (IsTarget(candidate.Name)) {
            m_seams.messages.MsgBox("Warning--circular definition", Icon::Critical);
            EndProgram(m_seams.end, fault::Circular);
            return {};
        }
        best = &candidate;
    }
    return best == nullptr ? std::string() : best->Name;
}

CollectedValues Inference::CollectValues(std::string_view var) const
{
    CollectedValues collected;
    ValueList values;
    const std::string head = std::string(var) + "(";
    const RuleIndex& index = Index();
    const RuleIndex::Matches matches = index.NamesEndingIn(var);
    for (int i = 1; i <= m_tables.RuleCount; ++i) {
        if (!index.MayName(i, matches)) {
            continue;
        }
        const std::string& rule = m_tables.LogicRules(i);
        std::optional<std::string_view> value;
        if (index.HasTerms(i, matches)) {
            const RuleIndex::Terms terms = index.TermsOf(i);
            collected.IsDerived = collected.IsDerived || index.Name(terms.begin()->name) == var;
            value = ValueByTerms(terms, matches, rule);
        } else {
            collected.IsDerived = collected.IsDerived || Concludes(rule, var);
            value = ValueIn(rule, head);
        }
        if (value && values.Add(*value)) {
            ++collected.Count;
        }
    }
    collected.Values = values.Text();
    if (!collected.Values.empty() && collected.Values.front() == ',') {
        collected.Values.erase(0, 1); // the comma after an empty first value
        --collected.Count;
    }
    return collected;
}

} // namespace ls
