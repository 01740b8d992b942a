#include "advisor/AdvisorRunner.h"
#include "advisor/AdvisorTables.h"
#include "book/Book.h"
#include "book/BookLoader.h"
#include "render/text/ShowTopic.h"
#include "support/Json.h"
#include "support/TestSeams.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <deque>
#include <iterator>
#include <set>

namespace ls {
namespace {

using Kind = AdvisorEvent::Kind;
using Texts = std::vector<std::string>;

// A dialogue: its topic and the answers given. It may stop before its end.
struct Dialogue
{
    std::string topic;
    Texts answers;
};

// The result of the last dialogue.
struct Outcome
{
    Texts choices; // of the question without an answer; empty if there is none
    std::string advice;
    std::string adviceText;
    Texts boxes; // all but the one about earlier answers
    Texts faults;
};

std::string Describe(const std::vector<Dialogue>& dialogues)
{
    std::string text;
    for (const Dialogue& dialogue : dialogues) {
        text += dialogue.topic + ":";
        for (const std::string& answer : dialogue.answers) {
            text += " " + answer;
        }
        text += "; ";
    }
    return text;
}

void Note(const AdvisorEvent& event, Outcome& outcome)
{
    switch (event.kind) {
    case Kind::Question:
        outcome.choices = event.choices;
        EXPECT_FALSE(event.text.empty()) << event.name;
        break;
    case Kind::Answer:
        outcome.choices.clear();
        break;
    case Kind::Advice:
        outcome.advice = event.name;
        outcome.adviceText = event.text;
        break;
    case Kind::Box:
        if (event.icon != Icon::Question) {
            outcome.boxes.push_back(event.name);
        }
        break;
    case Kind::NoAdvisor:
    case Kind::InvalidAnswer:
    case Kind::Text:
    case Kind::ProgramEnds:
        outcome.faults.push_back(event.name + event.text);
        break;
    default:
        break;
    }
}

/// The sample book. The tests give every answer that its advisors offer.
class AdviceBookTest : public testing::Test
{
protected:
    void SetUp() override
    {
        world.files["/Advice.IDA"] = test::ReadWholeFile(LS_SAMPLES "/Advice.IDA");
        book.BookPath = "/Advice.IDA";
        ASSERT_TRUE(OpenBook(book, world.Get()));
        ASSERT_TRUE(ScanBook(book, world.Get()));
    }

    // Plays dialogues one after another, reusing earlier answers. Returns the result of the last one.
    Outcome Play(const std::vector<Dialogue>& dialogues)
    {
        AdvisorTables tables;
        Outcome outcome;
        for (const Dialogue& dialogue : dialogues) {
            outcome = Outcome();
            std::size_t given = 0;
            AdvisorPlayer player;
            player.event = [&outcome](const AdvisorEvent& event) { Note(event, outcome); };
            player.reply = [](const std::string&, Buttons) { return Reply::Yes; };
            player.answer = [&](const AdvisorEvent&) -> std::optional<std::string> {
                return given < dialogue.answers.size() ? std::optional(dialogue.answers[given++])
                                                       : std::nullopt;
            };
            RunAdvisor(book, tables, world.Get(), player, 1, dialogue.topic);
            EXPECT_EQ(given, dialogue.answers.size()) << Describe(dialogues);
        }
        ++played;
        return outcome;
    }

    // Plays every dialogue on the topic that can follow the earlier ones, breadth first, and also stops each
    // after every answer. Each complete one must end with an advice that has a text.
    std::vector<Dialogue> Walk(const std::vector<Dialogue>& earlier, const std::string& topic)
    {
        std::vector<Dialogue> walked;
        std::deque<Dialogue> open{{topic, {}}};
        while (!open.empty()) {
            const Dialogue dialogue = open.front();
            open.pop_front();
            std::vector<Dialogue> dialogues = earlier;
            dialogues.push_back(dialogue);
            const Outcome outcome = Play(dialogues);
            Check(outcome, dialogues);
            for (const std::string& choice : outcome.choices) {
                open.push_back(dialogue);
                open.back().answers.push_back(choice);
            }
            walked.push_back(dialogue);
        }
        return walked;
    }

    void Check(const Outcome& outcome, const std::vector<Dialogue>& dialogues)
    {
        const std::string what = Describe(dialogues);
        EXPECT_EQ(outcome.faults, Texts()) << what;
        if (!outcome.choices.empty()) {
            EXPECT_GE(outcome.choices.size(), 2U) << what;
            EXPECT_EQ(outcome.boxes, Texts()) << what;
            return;
        }
        EXPECT_NE(outcome.adviceText, "") << what << outcome.advice;
        reached.insert(outcome.advice);
        const bool defaultGoal = dialogues.back().topic == "A Stain on the Cloth";
        EXPECT_EQ(outcome.boxes, defaultGoal ? Texts{"I can't find the variable definition for "
                                                     "<<[A Stain on the Cloth]>>."}
                                             : Texts())
            << what;
    }

    // The identifiers of all advice texts in the file.
    [[nodiscard]] std::set<std::string> WrittenAdvice()
    {
        const std::string& bytes = world.files["/Advice.IDA"];
        const std::string opening = "<AV ID=";
        std::set<std::string> written;
        for (auto at = bytes.find(opening); at != bytes.npos; at = bytes.find(opening, at + 1)) {
            const auto from = at + opening.size();
            EXPECT_TRUE(written.insert(bytes.substr(from, bytes.find('>', from) - from)).second);
        }
        return written;
    }

    test::TestSeams world;
    Book book;
    std::set<std::string> reached;
    int played = 0;
};

const char* const Advisors[] = {"A Sick Houseplant", "A Day in the Hills", "The Weather Today",
                                "Who Comes Along",   "What to Pack",       "A Stain on the Cloth"};

TEST_F(AdviceBookTest, everyAnswer_leadsToAdviceAndEachAdviceIsReached)
{
    for (const char* topic : Advisors) {
        Walk({}, topic);
    }
    EXPECT_EQ(reached, WrittenAdvice());
    EXPECT_GE(reached.size(), 30U);
    EXPECT_GE(played, 200);
}

TEST_F(AdviceBookTest, everyAnswer_givenAgainInTheSameTopic_stillLeadsToAdvice)
{
    for (const char* topic : Advisors) {
        for (const Dialogue& dialogue : Walk({}, topic)) {
            Walk({dialogue}, topic);
        }
    }
}

// Every pair of the four topics with common questions, in both orders. The first dialogue may stop early.
TEST_F(AdviceBookTest, everyAnswer_usedAgainInAnotherTopic_stillLeadsToAdvice)
{
    const Texts sharing{"A Day in the Hills", "The Weather Today", "Who Comes Along", "What to Pack"};
    for (const std::string& first : sharing) {
        for (const Dialogue& dialogue : Walk({}, first)) {
            for (const std::string& second : sharing) {
                if (second != first) {
                    Walk({dialogue}, second);
                }
            }
        }
    }
}

TEST_F(AdviceBookTest, topics_areShownWithTheButtonsThatTheyNeed)
{
    std::set<std::string> titles;
    for (int i = 1; i <= book.TopicCount; ++i) {
        std::string name = book.TopicNames(i);
        titles.insert(name);
        Count16 number = i;
        ShownTopic shown;
        ASSERT_EQ(ShowTopic(book, world.Get(), name, number, 77, shown), ShowResult::Shown);
        EXPECT_TRUE(shown.xrefButton) << name;
        EXPECT_GE(static_cast<int>(shown.lines.Count), 10) << name;
        EXPECT_EQ(shown.advisorButton,
                  std::count(std::begin(Advisors), std::end(Advisors), name.substr(1, name.size() - 2)) == 1)
            << name;
    }
    EXPECT_EQ(titles.size(), 10U);
    for (int i = 1; i <= book.XrefCount; ++i) {
        const XrefRec& xref = book.Xrefs(i);
        EXPECT_EQ(titles.count("[" + xref.ToTopic + "]"), 1U) << xref.FromTopic << " -> " << xref.ToTopic;
        EXPECT_NE(xref.ToTopic, xref.FromTopic);
        EXPECT_FALSE(xref.Text.empty()) << xref.FromTopic << " -> " << xref.ToTopic;
    }
    EXPECT_EQ(world.messages.boxes, Texts());
}

TEST_F(AdviceBookTest, bytes_areOfTheBooksCodePageWithCrLf)
{
    const std::string& bytes = world.files["/Advice.IDA"];
    const auto count = [&bytes](char c) { return std::count(bytes.begin(), bytes.end(), c); };
    EXPECT_EQ(count('\n'), count('\r'));
    EXPECT_EQ(bytes.substr(bytes.size() - 2), "\r\n");
    EXPECT_NE(bytes.find("caf\xE9"), bytes.npos);
    EXPECT_NE(bytes.find("20 \xB0"), bytes.npos);
    EXPECT_EQ(bytes.find('\xC3'), bytes.npos) << "the book was saved as UTF-8";
}

TEST_F(AdviceBookTest, unsureOfTheSoil_asksSimplerQuestionsTwoDeep)
{
    EXPECT_EQ(Play({{"A Sick Houseplant", {}}}).choices,
              (Texts{"YELLOW", "DROOPING", "BROWN-TIPS", "INSECTS"}));
    EXPECT_EQ(Play({{"A Sick Houseplant", {"YELLOW"}}}).choices,
              (Texts{"? - unsure", "WET", "MOIST", "DRY"}));
    EXPECT_EQ(Play({{"A Sick Houseplant", {"YELLOW", "? - unsure"}}}).choices,
              (Texts{"SOGGY", "COOL", "DUSTY"}));
    EXPECT_EQ(Play({{"A Sick Houseplant", {"YELLOW", "? - unsure", "COOL"}}}).choices,
              (Texts{"? - unsure", "HEAVY", "SLIGHT"}));
    EXPECT_EQ(Play({{"A Sick Houseplant", {"YELLOW", "? - unsure", "COOL", "? - unsure"}}}).choices,
              (Texts{"THIS-WEEK", "EARLIER"}));
    EXPECT_EQ(Play({{"A Sick Houseplant", {"YELLOW", "? - unsure", "COOL", "? - unsure", "EARLIER"}}}).advice,
              "CURE(WATER)");
}

TEST_F(AdviceBookTest, answersOfTheWalk_packTheBagAtOnce)
{
    const Dialogue walk{"A Day in the Hills", {"? - unsure", "NONE", "STRONG", "WHOLE-DAY"}};
    EXPECT_EQ(Play({walk}).advice, "ROUTE(RIDGE)");
    EXPECT_EQ(Play({walk, {"What to Pack", {}}}).advice, "BAG(SUMMIT)");
    EXPECT_EQ(Play({walk, {"The Weather Today", {}}}).advice, "OUTLOOK(GOOD)");
}

TEST_F(AdviceBookTest, answersOfTheWalk_withoutItsHours_leaveOneQuestion)
{
    const Dialogue walk{"A Day in the Hills", {"FAIR", "CHILDREN"}};
    EXPECT_EQ(Play({walk}).advice, "ROUTE(STREAM)");
    EXPECT_EQ(Play({walk, {"What to Pack", {}}}).choices, (Texts{"HALF-DAY", "WHOLE-DAY"}));
    EXPECT_EQ(Play({walk, {"What to Pack", {"WHOLE-DAY"}}}).advice, "BAG(FAMILY)");
}

} // namespace
} // namespace ls
