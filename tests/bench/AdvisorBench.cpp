#include "advisor/AdvisorDialog.h"
#include "advisor/AdvisorTables.h"
#include "advisor/AdvisorView.h"
#include "advisor/LogicLoader.h"
#include "bench/AdvisorBase.h"
#include "bench/AdvisorPeers.h"
#include "bench/BenchBooks.h"
#include "bench/Benchmarks.h"
#include "bench/Measure.h"
#include "book/BookLoader.h"
#include "render/ShowTopic.h"

#include <array>
#include <iterator>

namespace ls::bench {

namespace {

constexpr double AtLeast = 20;
constexpr double GrowthLimit = 15; // of a question's time with ten times the rules; quadratic would be 100

// Notes what a window would show.
class NotingView : public AdvisorView
{
public:
    void ShowQuestion(const Question& question) override { var = question.var; }
    void ShowAdvice(const std::string& identifier, const std::string& /*text*/) override
    {
        advice = identifier;
    }
    void ShowText(const std::string& text) override { Require(false, text.c_str()); }
    void SetButtonCaption(const std::string& /*caption*/) override {}
    void Unload() override {}

    std::string var;
    std::string advice;
};

// The book of a base with its topic on show.
class AdvisorWorld
{
public:
    AdvisorWorld(const AdvisorBase& base, const std::string& folder) : m_base(base)
    {
        m_book.BookPath = WriteAdvisorBook(base, folder);
        Require(OpenBook(m_book, m_world.Get()) && ScanBook(m_book, m_world.Get()), "the book is read");
        std::string name = "Advice";
        Count16 number = 0;
        ShownTopic shown;
        Require(ShowTopic(m_book, m_world.Get(), name, number, 80, shown) == ShowResult::Shown &&
                    shown.advisorButton,
                "the topic has an advisor");
        m_book.CurrentTopicName = name;
        m_book.CurrentTopicNo = number;
        m_book.LogicPos = shown.logicPos;
    }

    // Milliseconds of processor time for reading the logic block from the open book file into empty tables.
    double Load()
    {
        AdvisorTables tables;
        Inference inference(tables, m_world.Get());
        const double time = TimeOf([&] {
            LineCursor cursor(*m_book.File);
            cursor.Seek(m_book.LogicPos);
            AdvisorContext context{m_book, tables, m_world.Get(), cursor};
            std::string advice;
            Require(LoadLogic(context, inference, m_book.CurrentTopicNo, false, advice), "the logic loads");
        });
        Require(tables.RuleCount == static_cast<int>(m_base.rules.size()), "all rules are loaded");
        return time;
    }

    // Milliseconds of processor time for each answered question: from the reader's answer until the next
    // question is on show with its choices, or the advice with its text. `Answers` are those of the last
    // dialogue.
    double Question()
    {
        AdvisorTables tables;
        NotingView view;
        AdvisorDialog dialog(m_book, tables, m_world.Get(), view);
        dialog.Form_Load();
        m_questions = 0;
        const double time = TimeOf([&] {
            for (; !dialog.Over(); ++m_questions) {
                dialog.NextButton_Click(m_base.AnswerTo(view.var));
            }
        });
        Require(view.advice == "ADVICE(" + m_base.advice + ")", "the reader gets the advice that agrees");
        m_answers.clear();
        for (const Answer& answer : Counted(tables.Answers, tables.AnswerCount)) {
            if (!answer.Derived) {
                m_answers.push_back({answer.Var, answer.Value});
            }
        }
        return time / m_questions;
    }

    // The answers of the last dialogue in their order, also those to variables with one value left, for which
    // the reader is not asked. The other engines get them too.
    [[nodiscard]] const std::vector<Setting>& Answers() const { return m_answers; }
    [[nodiscard]] int Questions() const { return m_questions; }

private:
    const AdvisorBase& m_base;
    BenchWorld m_world;
    Book m_book;
    std::vector<Setting> m_answers;
    int m_questions = 0;
};

struct Series
{
    std::vector<double> load;
    std::vector<double> question;
};

struct PeerSeries
{
    const char* name;
    Peer run;
    double questionAtLeast; // 0: it is only told
    Series times{};
};

void PrintPeer(const PeerSeries& peer, const std::string& rules, const Medians& own, double loadAtLeast)
{
    if (peer.times.load.empty()) {
        PrintRow(rules + peer.name, "not installed");
        return;
    }
    const double load = MedianOf(peer.times.load);
    const double question = MedianOf(peer.times.question);
    PrintFaster(rules + "load, " + peer.name, Milliseconds(load), load / own.first, loadAtLeast);
    PrintFaster(rules + "a question, " + peer.name, Milliseconds(question), question / own.second,
                peer.questionAtLeast);
}

// All engines in turns, so that they see the same machine. The time that a peer needs for the whole dialogue
// is divided by the number of questions that the reader was asked, as this program's own. Gives this
// program's own time for a question.
double BenchBase(int ruleCount, int rounds, const std::string& folder)
{
    const AdvisorBase base = MakeAdvisorBase(ruleCount);
    AdvisorWorld world(base, folder);
    Series own;
    std::array<PeerSeries, 3> peers{
        {{"CLIPS, rules", ClipsRules, 0}, {"CLIPS, facts", ClipsFacts, AtLeast}, {"SWI-Prolog", Prolog, 0}}};
    for (int round = 0; round < rounds; ++round) {
        for (int i = 0; i < 9; ++i) {
            own.load.push_back(world.Load());
            own.question.push_back(world.Question());
        }
        for (PeerSeries& peer : peers) {
            if (const std::optional<PeerTimes> times = peer.run(base, world.Answers(), folder)) {
                peer.times.load.push_back(times->load);
                peer.times.question.push_back(times->dialogue / world.Questions());
            }
        }
    }
    const std::string rules = std::to_string(ruleCount) + " rules, ";
    const Medians medians{MedianOf(own.load), MedianOf(own.question)};
    PrintRow(rules + "load", Milliseconds(medians.first));
    PrintRow(rules + "a question of " + std::to_string(world.Questions()), Milliseconds(medians.second));
    for (const PeerSeries& peer : peers) {
        PrintPeer(peer, rules, medians, ruleCount == 30000 ? AtLeast : 0);
    }
    return medians.second;
}

} // namespace

void BenchAdvisor(const std::string& folder)
{
    const double hundred = BenchBase(100, 3, folder);
    const double thousand = BenchBase(1000, 3, folder);
    const double tenThousand = BenchBase(10000, 3, folder);
    const double thirtyThousand = BenchBase(30000, 3, folder);
    PrintRow("a question with 1,000 rules, against 100", Milliseconds(thousand), thousand / hundred,
             GrowthLimit);
    PrintRow("a question with 10,000 rules, against 1,000", Milliseconds(tenThousand), tenThousand / thousand,
             GrowthLimit);
    PrintRow("a question with 30,000 rules, against 10,000", Milliseconds(thirtyThousand),
             thirtyThousand / tenThousand, GrowthLimit * 3 / 10);
}

} // namespace ls::bench
