#include "support/Cases.h"
#include "EventLines.h"
#include "advisor/AdvisorRunner.h"
#include "advisor/AdvisorTables.h"
#include "book/Book.h"
#include "book/BookLoader.h"
#include "support/Json.h"
#include "support/TestSeams.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

using Kind = AdvisorEvent::Kind;

// One line for an event, in the same form for actual and expected events.
std::string Line(const AdvisorEvent& event)
{
    switch (event.kind) {
    case Kind::Run:
        return "run " + std::to_string(event.run) + " " + event.name;
    case Kind::Question:
        return "question " + event.name + (event.derived ? " derived" : "") + " " +
               test::JoinedTexts(event.choices) + ": " + event.text;
    case Kind::InvalidAnswer:
        return "invalid answer " + event.name + " " + test::JoinedTexts(event.choices);
    case Kind::Box:
        return "box " + std::string(IconWord(event.icon)) + "|" + event.name + "|" +
               std::string(ReplyWord(event.reply));
    case Kind::Advice:
        return "advice " + event.name + ": " + event.text;
    case Kind::Text:
        return "text " + event.text;
    case Kind::NoAdvisor:
        return "no advisor " + event.name;
    case Kind::Answer:
        return "answer " + event.name;
    case Kind::Waiting:
        return "waiting " + event.name;
    case Kind::Trace:
        return "trace";
    case Kind::Button:
        return "button " + event.name;
    case Kind::ProgramEnds:
        return "program ends: " + event.name;
    }
    return "?";
}

std::string RunCase(const test::Json& data, const std::string& bookBytes)
{
    test::TestSeams seams;
    seams.files["/case.IDA"] = bookBytes;
    Book book;
    book.BookPath = "/case.IDA";
    if (!OpenBook(book, seams.Get()) || !ScanBook(book, seams.Get())) {
        return "the book does not open";
    }
    std::string happened;
    std::vector<test::Json> replies = data["reuse"].Items();
    AdvisorPlayer player;
    player.event = [&happened](const AdvisorEvent& event) { happened += Line(event) + "\n"; };
    std::size_t asked = 0;
    player.reply = [&](const std::string&, Buttons) {
        return asked < replies.size() && replies[asked++].Bool() ? Reply::Yes : Reply::No;
    };
    AdvisorTables tables;
    int run = 0;
    for (const test::Json& entry : data["runs"].Items()) {
        const std::vector<std::string> answers = entry["answers"].Strings();
        std::size_t given = 0;
        player.answer = [&](const AdvisorEvent&) {
            return given < answers.size() ? std::optional(answers[given++]) : std::nullopt;
        };
        RunAdvisor(book, tables, seams.Get(), player, ++run, entry["topic"].String());
        if (seams.end.Ended()) {
            break;
        }
    }
    return happened;
}

constexpr const char* Folder = "cases/advisor";

class AdvisorCases : public testing::TestWithParam<std::string>
{
};

TEST_P(AdvisorCases, runsOfCase_giveItsEvents)
{
    const std::string stem = test::CasePath(Folder, GetParam());
    const test::Json data = test::Json::ParseFile(stem + ".json");
    std::string expected;
    for (const test::Json& event : data["events"].Items()) {
        expected += test::EventLine(event) + "\n";
    }
    ASSERT_FALSE(expected.empty());
    EXPECT_EQ(RunCase(data, test::ReadWholeFile(stem + ".IDA")), expected);
}

INSTANTIATE_TEST_SUITE_P(All, AdvisorCases, testing::ValuesIn(test::CaseNames(Folder)), test::CaseTestName);

TEST(AdvisorCaseFiles, hundredCases_areThere)
{
    EXPECT_EQ(test::CaseNames(Folder).size(), 100U);
}

} // namespace
} // namespace ls
