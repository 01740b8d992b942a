#include "advisor/DialogueSearch.h"

#include "advisor/AdvisorDialog.h"
#include "advisor/AdvisorTables.h"
#include "advisor/AdvisorView.h"
#include "base/Messages.h"
#include "base/ProgramEnd.h"
#include "base/Progress.h"
#include "book/Book.h"

#include <algorithm>
#include <cstdint>
#include <deque>
#include <optional>
#include <set>
#include <unordered_set>
#include <utility>

// How the search visits all dialogues of a topic:
//
// 1. It runs the real dialogue, with a view and message boxes that only record what is shown.
// 2. A state is a question on show, with the advisor's tables at that moment. States wait in a queue, first
//    in, first out. So the first way found to an end has the fewest answers.
// 3. For each choice of a state, the search restores the tables and answers with that choice. The result is
//    another state or an end.
// 4. Each state has a key, a hash of all that can still matter: the rules, the goals, the question, and, if a
//    topic is still to be loaded, the answers. A state with a known key is not visited again.
// 5. Limits on the number of states, on the texts held and on the texts processed stop a search that would
//    take too long.
//
// The test ExploreAdvisor.everyWay_isTheOneThatReadersGo compares the search with dialogues that are played
// one by one.

namespace ls {

namespace {

using Kind = DialogueEnd::Kind;

// Records boxes, for the end that they lead to.
class KeptMessages : public Messages
{
public:
    using Messages::Messages;
    std::vector<std::string> boxes;

protected:
    Reply ShowBox(const std::string& text, Icon /*icon*/, Buttons buttons,
                  const std::string& /*title*/) override
    {
        boxes.push_back(text);
        return SafeReply(buttons);
    }
    std::optional<std::string> ShowInputBox(const std::string& /*prompt*/, const std::string& /*title*/,
                                            const std::string& /*initial*/) override
    {
        return std::nullopt;
    }
};

class KeptView : public AdvisorView
{
public:
    void ShowQuestion(const Question& shown) override { question = shown; }
    void ShowAdvice(const std::string& identifier, const std::string& shown) override
    {
        advice = identifier;
        text = shown;
    }
    void ShowText(const std::string& shown) override { text = shown; }
    void SetButtonCaption(const std::string& /*caption*/) override {}
    void Unload() override {}

    std::optional<Question> question;
    std::optional<std::string> advice;
    std::string text;
};

std::size_t RuleBytes(const AdvisorTables& tables)
{
    std::size_t bytes = 0;
    for (const std::string& rule : Counted(tables.LogicRules, tables.RuleCount)) {
        bytes += rule.size() + sizeof(rule);
    }
    return bytes;
}

// Two hashes of a state. Among a few thousand states, two different ones practically never agree in both.
class StateKey
{
public:
    void Add(std::string_view text)
    {
        for (const char c : text) {
            Byte(static_cast<unsigned char>(c));
        }
        // Separates the texts: "A", "BC" must differ from "AB", "C". Only texts with this byte could be
        // confused.
        Byte(0xFF);
    }
    void Add(int number) { Add(std::to_string(number)); }

    [[nodiscard]] std::pair<std::uint64_t, std::uint64_t> Value() const { return {m_first, m_second}; }

private:
    void Byte(unsigned char byte)
    {
        m_first = (m_first ^ byte) * 0x100000001B3U;
        m_second = (m_second + byte + 1) * 0x9E3779B97F4A7C15U;
        m_second ^= m_second >> 29U;
    }

    std::uint64_t m_first = 0xCBF29CE484222325U;
    std::uint64_t m_second = 0x2545F4914F6CDD1DU;
};

// Whether a topic is still to be loaded. Only then do earlier answers matter, because loading asserts them.
bool MoreToLoad(const AdvisorTables& tables)
{
    const Counted loaded(tables.LogicTopics, tables.LogicTopicCount);
    const Counted variables(tables.VarTopics, tables.VarTopicCount);
    return std::any_of(variables.begin(), variables.end(), [&](const VarTopic& entry) {
        return std::find(loaded.begin(), loaded.end(), entry.Topic) == loaded.end();
    });
}

std::pair<std::uint64_t, std::uint64_t> KeyOf(const AdvisorTables& tables)
{
    StateKey key;
    for (const std::string& rule : Counted(tables.LogicRules, tables.RuleCount)) {
        key.Add(rule);
    }
    key.Add("=");
    for (const std::string& target : Counted(tables.Targets, tables.TargetCount)) {
        key.Add(target);
    }
    key.Add("=");
    key.Add(tables.CurrentVar);
    key.Add(tables.CurrentVarTopic);
    key.Add(tables.VarTopicCount);
    key.Add(tables.LogicTopicCount);
    if (MoreToLoad(tables)) {
        for (const Answer& answer : Counted(tables.Answers, tables.AnswerCount)) {
            key.Add(answer.Var);
            key.Add(answer.Value);
            key.Add(answer.Topic);
        }
    }
    return key.Value();
}

// A question on show, with all that is needed to answer it repeatedly.
struct State
{
    AdvisorTables tables;
    FilePos position = 0;
    Question question;
    std::vector<GivenAnswer> answers;
    std::size_t bytes = 0;
};

class Search
{
public:
    Search(const Book& book, const Seams& seams, const SearchLimits& limits, Progress* progress)
        : m_limits(limits), m_progress(progress), m_messages(m_end),
          m_dialog(book, m_tables, seams.With(m_messages, m_end), m_view)
    {
    }

    DialogueMap Run()
    {
        m_dialog.Form_Load();
        TakeOutcome({});
        while (!m_open.empty() && !m_stopped) {
            const State state = std::move(m_open.front());
            m_open.pop_front();
            m_held -= state.bytes;
            Expand(state);
        }
        m_map.cut = m_map.cut || !m_open.empty();
        return std::move(m_map);
    }

private:
    void Expand(const State& state)
    {
        for (const std::string& choice : state.question.choices) {
            if (choice.empty()) {
                continue;
            }
            m_work += state.bytes;
            if (m_work > m_limits.ruleBytes) {
                m_map.cut = m_stopped = true;
                return;
            }
            m_tables = state.tables;
            m_dialog.Resume(state.position);
            m_dialog.NextButton_Click(choice);
            std::vector<GivenAnswer> answers = state.answers;
            answers.push_back({state.question.var, choice});
            TakeOutcome(std::move(answers));
            if (m_stopped) {
                return;
            }
        }
    }

    // Handles the result of the last step: another question or an end.
    void TakeOutcome(std::vector<GivenAnswer> answers)
    {
        DialogueEnd end;
        end.answers = std::move(answers);
        end.boxes = std::exchange(m_messages.boxes, {});
        if (m_end.Ended()) {
            end.kind = Kind::ProgramEnds;
            end.name = m_end.Reason();
            m_end = ProgramEnd{};
            AddEnd(std::move(end));
        } else if (m_view.question && !m_dialog.Over()) {
            AddState(std::move(end.answers));
        } else if (m_view.advice) {
            end.name = *m_view.advice;
            end.text = m_view.text;
            AddEnd(std::move(end));
        } else {
            TakeFailure(std::move(end));
        }
        m_view = KeptView();
    }

    // Handles the end of a dialogue without advice.
    void TakeFailure(DialogueEnd end)
    {
        const auto begins = [this](std::string_view text) { return m_view.text.starts_with(text); };
        end.text = m_view.text;
        if (begins("I can't find a question")) {
            end.kind = Kind::DeadEnd;
        } else if (begins("Can't find text for")) {
            end.kind = Kind::NoText;
            end.name = m_tables.CurrentVar;
        } else if (!end.boxes.empty() && end.boxes.back() == "Overflow") {
            // The dialogue remembers that a table was full and cannot go back.
            m_map.cut = m_stopped = true;
            return;
        } else {
            end.kind = begins("Failure loading") ? Kind::LoadFailed : Kind::NoQuestion;
            end.name = end.boxes.empty() ? std::string() : end.boxes.back();
        }
        AddEnd(std::move(end));
    }

    void AddEnd(DialogueEnd end)
    {
        if (m_limits.everyWay && end.kind == Kind::Advice) {
            AddAdvice(std::move(end));
        } else if (m_known.emplace(end.kind, end.name).second || m_limits.everyWay) {
            m_map.ends.push_back(std::move(end));
        }
    }

    // An advice may be shown with or without its text, depending on the answers before it.
    void AddAdvice(DialogueEnd end)
    {
        if (m_known.emplace(end.kind, end.name + '\n' + end.text).second) {
            m_map.ends.push_back(std::move(end));
        }
    }

    void AddState(std::vector<GivenAnswer> answers)
    {
        if (!m_seen.insert(KeyOf(m_tables)).second) {
            return;
        }
        const std::size_t bytes = RuleBytes(m_tables);
        if (m_map.states >= m_limits.states || m_held + bytes > m_limits.heldBytes) {
            m_map.cut = true;
            return;
        }
        ++m_map.states;
        m_held += bytes;
        m_open.push_back({m_tables, m_dialog.Position(), *m_view.question, std::move(answers), bytes});
        if (m_progress != nullptr && !m_progress->Step(m_map.states, m_limits.states)) {
            m_map.cut = m_stopped = true;
        }
    }

    SearchLimits m_limits;
    Progress* m_progress;
    ProgramEnd m_end;
    KeptMessages m_messages;
    KeptView m_view;
    AdvisorTables m_tables;
    AdvisorDialog m_dialog;

    DialogueMap m_map;
    std::deque<State> m_open;
    std::set<std::pair<std::uint64_t, std::uint64_t>> m_seen;
    std::set<std::pair<Kind, std::string>> m_known;
    std::size_t m_held = 0;
    std::size_t m_work = 0;
    bool m_stopped = false;
};

} // namespace

DialogueMap SearchDialogues(const Book& book, const Seams& seams, const SearchLimits& limits,
                            Progress* progress)
{
    return Search(book, seams, limits, progress).Run();
}

} // namespace ls
