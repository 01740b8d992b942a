#include "check/AdvisorCoverage.h"

#include "advisor/AdvisorRunner.h"
#include "advisor/AdvisorTables.h"
#include "base/CodePage.h"
#include "base/Progress.h"
#include "base/Text.h"
#include "book/BookLoader.h"
#include "support/Json.h"
#include "support/TestSeams.h"

#include <gtest/gtest.h>

#include <deque>
#include <filesystem>
#include <map>

namespace ls {
namespace {

using Kind = DialogueEnd::Kind;
using Strings = std::vector<std::string>;

// A book in memory. Its dialogues can be explored or played.
class World
{
public:
    explicit World(const std::string& bytes)
    {
        seams.files["/case.IDA"] = bytes;
        book.BookPath = "/case.IDA";
        EXPECT_TRUE(OpenBook(book, seams.Get()));
        EXPECT_TRUE(ScanBook(book, seams.Get()));
    }

    AdvisorCoverage Explore(const std::string& title, int states = 1000)
    {
        SearchLimits limits;
        limits.states = states;
        limits.everyWay = true;
        return Explore(title, limits, nullptr);
    }

    AdvisorCoverage Explore(const std::string& title, const SearchLimits& limits, Progress* progress)
    {
        EXPECT_TRUE(ShowForAdvisor(book, seams.Get(), title));
        return ExploreAdvisor(book, seams.Get(), limits, progress);
    }

    test::TestSeams seams;
    Book book;
};

std::string Way(const DialogueEnd& end)
{
    std::string way;
    for (const GivenAnswer& answer : end.answers) {
        way += (way.empty() ? "" : ",") + answer.var + "=" + answer.choice;
    }
    return way;
}

Strings EndLines(const AdvisorCoverage& coverage)
{
    Strings lines;
    for (const DialogueEnd& end : coverage.map.ends) {
        constexpr const char* Names[] = {"advice", "dead end", "no text", "no question", "failed", "ends"};
        lines.push_back(std::string(Names[static_cast<int>(end.kind)]) + " " + end.name + " after " +
                        Way(end) + ": " + end.text);
    }
    return lines;
}

std::string Topic(std::initializer_list<const char*> logic, std::initializer_list<const char*> definitions)
{
    return "LODESTAR BOOK V5.3\r\n[Topic]\r\n<IXML>\r\n<LOGIC>\r\n" + test::CrLf(logic) +
           "</LOGIC>\r\n<DEFINITIONS>\r\n" + test::CrLf(definitions) + "</DEFINITIONS>\r\n</IXML>\r\n";
}

TEST(ExploreAdvisor, everyAdviceReached_isToldWithItsAnswersAndText)
{
    World world(Topic({"TARGET G", "G(1)=A(X)", "G(2)=A(Y)B(P)", "G(3)=A(Y)B(Q)"},
                      {"<Q ID=G></Q>", "<Q ID=A>A?</Q>", "<Q ID=B>B?</Q>", "<AV ID=G(1)>one</AV>",
                       "<AV ID=G(2)>two</AV>", "<AV ID=G(3)>three</AV>"}));
    const AdvisorCoverage coverage = world.Explore("Topic");
    EXPECT_EQ(coverage.target, "G");
    EXPECT_EQ(EndLines(coverage), (Strings{"advice G(1) after A=X: one", "advice G(2) after A=Y,B=P: two",
                                           "advice G(3) after A=Y,B=Q: three"}));
    EXPECT_EQ(coverage.map.states, 2);
    EXPECT_FALSE(coverage.map.cut);
    EXPECT_EQ(coverage.neverReached, Strings{});
}

TEST(ExploreAdvisor, adviceThatNoDialogueEndsOn_isNamed)
{
    World world(Topic({"TARGET G", "G(1)=A(X)", "G(2)=A(Y)", "G(3)=A(X)B(P)", "G(4)=A(Y)B(P)"},
                      {"<Q ID=G></Q>", "<Q ID=A>A?</Q>", "<Q ID=B>B?</Q>", "<AV ID=G(1)>one</AV>",
                       "<AV ID=G(5)>five</AV>", "<AV ID=G(3)>three</AV>"}));
    EXPECT_EQ(world.Explore("Topic").neverReached, (Strings{"G(3)", "G(4)", "G(5)"}));
}

TEST(ExploreAdvisor, adviceOfTheDefaultGoal_isNamedByItsValue)
{
    World world(Topic({"AV(GO)=A(X)", "AV(STAY)=A(Y)", "AV(RUN)=A(X)A(X)"},
                      {"<Q ID=A>A?</Q>", "<AV ID=GO>go</AV>", "<AV ID=STAY>stay</AV>"}));
    const AdvisorCoverage coverage = world.Explore("Topic");
    EXPECT_EQ(EndLines(coverage), (Strings{"advice GO after A=X: go", "advice STAY after A=Y: stay"}));
    EXPECT_EQ(coverage.map.ends[0].boxes, Strings{"I can't find the variable definition for <<[Topic]>>."});
    EXPECT_EQ(coverage.neverReached, Strings{"RUN"});
}

TEST(ExploreAdvisor, twoWaysIntoDeadEnds_bothAreTold)
{
    World world(Topic({"TARGET G", "G(1)=A(X)B(P)", "G(2)=A(Y)B(Q)", "H(1)=B(P)A(X)", "H(2)=B(Q)A(X)",
                       "H(3)=B(P)A(Y)", "H(4)=B(Q)A(Y)"},
                      {"<Q ID=G></Q>", "<Q ID=A>A?</Q>", "<Q ID=B>B?</Q>", "<AV ID=G(1)>one</AV>",
                       "<AV ID=G(2)>two</AV>"}));
    EXPECT_EQ(EndLines(world.Explore("Topic")),
              (Strings{"advice G(1) after A=X,B=P: one",
                       "dead end  after A=X,B=Q: I can't find a question to ask for target G.",
                       "advice G(2) after A=Y,B=Q: two",
                       "dead end  after A=Y,B=P: I can't find a question to ask for target G."}));
    EXPECT_EQ(world.Explore("Topic", SearchLimits(), nullptr).map.ends.size(), 3U)
        << "without everyWay, one dead end is enough";
}

// For the default goal the search for the advice's text starts at the last question. So GO, which is written
// before B, has no text after B.
TEST(ExploreAdvisor, adviceThatComesWithItsTextOrWithout_isToldTwice)
{
    World world(Topic({"AV(GO)=A(X)", "AV(GO)=A(Y)B(P)", "AV(STAY)=A(Y)B(Q)"},
                      {"<Q ID=A>A?</Q>", "<AV ID=GO>go</AV>", "<Q ID=B>B?</Q>", "<AV ID=STAY>stay</AV>"}));
    const AdvisorCoverage coverage = world.Explore("Topic");
    EXPECT_EQ(EndLines(coverage), (Strings{"advice GO after A=X: go",
                                           "advice GO after A=Y,B=P: ", "advice STAY after A=Y,B=Q: stay"}));
}

TEST(ExploreAdvisor, faultsThatEndTheProgram_areToldWithTheirAnswers)
{
    World world(
        Topic({"TARGET G", "G(1)=A(X)", "G(2)=A(Y)C(P)", "G(3)=A(Y)C(Q)", "C(P)=G(1)", "C(Q)=D(1)D(2)"},
              {"<Q ID=G></Q>", "<Q ID=A>A?</Q>", "<Q ID=C>C?</Q>", "<Q ID=D>D?</Q>", "<AV ID=G(1)>one</AV>",
               "<AV ID=G(2)>two</AV>", "<AV ID=G(3)>three</AV>"}));
    const AdvisorCoverage coverage = world.Explore("Topic");
    EXPECT_EQ(EndLines(coverage),
              (Strings{"advice G(1) after A=X: one", "ends circular definition after A=Y,C=? - unsure: ",
                       "advice G(2) after A=Y,C=P: two", "advice G(3) after A=Y,C=Q: three"}));
    EXPECT_EQ(coverage.map.ends[1].boxes, Strings{"Warning--circular definition"});
    EXPECT_FALSE(world.seams.end.Ended()) << "the program itself goes on";
    EXPECT_EQ(world.seams.messages.boxes, Strings{}) << "no box is shown";
}

TEST(ExploreAdvisor, logicThatCannotBeLoaded_isTheOnlyEnd)
{
    World world("LODESTAR BOOK V5.3\r\n[Topic]\r\n<IXML>\r\n<LOGIC>\r\nNONSENSE\r\n");
    EXPECT_EQ(
        EndLines(world.Explore("Topic")),
        Strings{"failed Invalid command in <LOGIC> section for the current topic after : Failure loading "
                "logic section for topic <<[Topic]>>; I can't proceed."});
}

TEST(ExploreAdvisor, statesThatAreTheSame_areGoneThroughOnce)
{
    // Each answer to A leaves the same rules.
    World world(Topic({"TARGET G", "G(1)=B(P)", "G(2)=B(Q)", "G(3)=A(1)A(2)A(3)C(1)", "G(4)=A(4)C(1)",
                       "G(4)=A(5)C(1)", "G(4)=A(6)C(1)", "H(1)=C(2)"},
                      {"<Q ID=G></Q>", "<Q ID=A>A?</Q>", "<Q ID=B>B?</Q>", "<Q ID=C>C?</Q>"}));
    const AdvisorCoverage coverage = world.Explore("Topic");
    EXPECT_LT(coverage.map.states, 12) << "equal states are counted once";
    EXPECT_FALSE(coverage.map.cut);
}

TEST(ExploreAdvisor, limitMet_isToldAndWhatWasFoundIsKept)
{
    World world(Topic({"TARGET G", "G(1)=A(X)", "G(2)=A(Y)B(P)", "G(3)=A(Y)B(Q)"},
                      {"<Q ID=G></Q>", "<Q ID=A>A?</Q>", "<Q ID=B>B?</Q>", "<AV ID=G(1)>one</AV>"}));
    const AdvisorCoverage coverage = world.Explore("Topic", 1);
    EXPECT_TRUE(coverage.map.cut);
    EXPECT_EQ(coverage.map.states, 1);
    EXPECT_EQ(EndLines(coverage), Strings{"advice G(1) after A=X: one"});
    EXPECT_EQ(coverage.neverReached, (Strings{"G(2)", "G(3)"}));
    EXPECT_FALSE(world.Explore("Topic", 2).map.cut);
}

// What a reader sees after these answers.
struct Played
{
    std::string end; ///< one line; empty if a question is open
    Strings choices; ///< of the open question
};

Played Play(World& world, const std::string& title, const Strings& answers)
{
    Played played;
    std::string text;
    std::string box;
    std::size_t given = 0;
    bool waiting = false;
    AdvisorPlayer player;
    player.event = [&](const AdvisorEvent& event) {
        if (event.kind == AdvisorEvent::Kind::Question) {
            played.choices = event.choices;
            text.clear();
            box.clear();
        } else if (event.kind == AdvisorEvent::Kind::Advice) {
            played.end = "advice " + event.name + ": " + event.text;
        } else if (event.kind == AdvisorEvent::Kind::Text) {
            text = event.text;
        } else if (event.kind == AdvisorEvent::Kind::Box) {
            box = event.name;
        } else if (event.kind == AdvisorEvent::Kind::ProgramEnds) {
            played.end = "program ends: " + event.name;
        } else if (event.kind == AdvisorEvent::Kind::Waiting) {
            waiting = true;
        } else {
            EXPECT_NE(event.kind, AdvisorEvent::Kind::InvalidAnswer);
        }
    };
    player.answer = [&](const AdvisorEvent&) {
        return given < answers.size() ? std::optional(answers[given++]) : std::nullopt;
    };
    player.reply = [](const std::string&, Buttons buttons) { return SafeReply(buttons); };
    AdvisorTables tables;
    RunAdvisor(world.book, tables, world.seams.Get(), player, 1, title);
    world.seams.end = ProgramEnd{};
    EXPECT_EQ(given, answers.size()) << "the dialogue ended too early";
    if (!waiting && played.end.empty()) {
        played.end = "stops: " + (text.empty() ? box : text);
    }
    return played;
}

std::string ExploredLine(const DialogueEnd& end)
{
    const std::string text = FromBook(end.text);
    switch (end.kind) {
    case Kind::Advice:
        return "advice " + FromBook(end.name) + ": " + text;
    case Kind::ProgramEnds:
        return "program ends: " + end.name;
    default:
        return "stops: " + (text.empty() ? end.boxes.back() : text);
    }
}

Strings AnswersOf(const DialogueEnd& end)
{
    Strings answers;
    for (const GivenAnswer& answer : end.answers) {
        answers.push_back(FromBook(answer.choice));
    }
    return answers;
}

using Shortest = std::map<std::string, std::size_t>; ///< each end, and the fewest answers that lead to it

Shortest ExploredEnds(const AdvisorCoverage& coverage)
{
    Shortest ends;
    for (const DialogueEnd& end : coverage.map.ends) {
        ends.emplace(ExploredLine(end), end.answers.size()); // the first one has the fewest
    }
    return ends;
}

// The ends of at most so many dialogues. Sets `all` if these are all dialogues.
Shortest PlayedEnds(World& world, const std::string& title, int mostDialogues, bool& all)
{
    Shortest ends;
    std::deque<Strings> open{{}};
    for (; !open.empty() && mostDialogues > 0; --mostDialogues) {
        const Strings answers = std::move(open.front());
        open.pop_front();
        const Played played = Play(world, title, answers);
        if (!played.end.empty()) {
            ends.emplace(played.end, answers.size());
            continue;
        }
        for (const std::string& choice : played.choices) {
            open.push_back(answers);
            open.back().push_back(choice);
        }
    }
    all = open.empty();
    return ends;
}

struct Tally
{
    int topics = 0;
    int wholeTopics = 0;
    int ends = 0;
};

void CompareTopic(World& world, const std::string& title, Tally& tally)
{
    const AdvisorCoverage coverage = world.Explore(title, 300);
    const bool atOnce = coverage.map.ends.size() == 1 && coverage.map.ends[0].answers.empty();
    ++tally.topics;
    for (std::size_t i = 0; i < coverage.map.ends.size() && i < 60; ++i) {
        const DialogueEnd& end = coverage.map.ends[i];
        ASSERT_EQ(Play(world, title, AnswersOf(end)).end, ExploredLine(end)) << Way(end);
        ++tally.ends;
    }
    bool all = false;
    const Shortest played = PlayedEnds(world, title, 200, all);
    const Shortest explored = ExploredEnds(coverage);
    if (all && !coverage.map.cut) {
        EXPECT_EQ(explored, played);
        tally.wholeTopics += atOnce ? 0 : 1;
    }
    for (const auto& [line, answers] : played) {
        const auto found = explored.find(line);
        ASSERT_TRUE(coverage.map.cut || found != explored.end()) << line;
        EXPECT_TRUE(found == explored.end() || found->second <= answers) << line;
    }
}

void CompareFolder(const std::string& folder, Tally& tally)
{
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (entry.path().extension() != ".IDA") {
            continue;
        }
        World world(test::ReadWholeFile(entry.path().string()));
        for (int number = 1; number <= world.book.TopicCount; ++number) {
            const std::string title = FromBook(WithBrackets(world.book.TopicNames(number)));
            SCOPED_TRACE(entry.path().filename().string() + " " + title);
            const std::string bare = title.substr(1, title.size() - 2);
            if (ShowForAdvisor(world.book, world.seams.Get(), bare)) {
                CompareTopic(world, bare, tally);
            }
        }
    }
}

// Plays each way that the exploration finds; it must end as found. Then plays all dialogues up to a limit:
// the exploration must have found each of their ends, with no more answers.
TEST(ExploreAdvisor, everyWay_isTheOneThatReadersGo)
{
    Tally tally;
    CompareFolder(std::string(LS_TEST_DATA) + "/cases/advisor", tally);
    CompareFolder(LS_SAMPLES, tally);
    EXPECT_GE(tally.topics, 200);
    EXPECT_GE(tally.wholeTopics, 120);
    EXPECT_GE(tally.ends, 900);
}

} // namespace
} // namespace ls
