#include "advisor/AdvisorRunner.h"
#include "advisor/AdvisorTables.h"
#include "book/Book.h"
#include "book/BookLoader.h"
#include "support/Json.h"
#include "support/TestSeams.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace ls {
namespace {

using Kind = AdvisorEvent::Kind;

std::string Joined(const std::vector<std::string>& texts)
{
    std::string joined;
    for (const std::string& text : texts) {
        joined += "[" + text + "]";
    }
    return joined;
}

// One line for an event, the same for what happened and for what the case expects.
std::string Line(const AdvisorEvent& event)
{
    switch (event.kind) {
    case Kind::Run:
        return "run " + std::to_string(event.run) + " " + event.name;
    case Kind::Question:
        return "question " + event.name + (event.derived ? " derived" : "") + " " + Joined(event.choices) +
               ": " + event.text;
    case Kind::InvalidAnswer:
        return "invalid answer " + event.name + " " + Joined(event.choices);
    case Kind::Box:
        return "box " + IconWord(event.icon) + "|" + event.name + "|" + ReplyWord(event.reply);
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

std::string ExpectedLine(const test::Json& event)
{
    if (event.Has("run")) {
        return "run " + std::to_string(event["run"].Int()) + " " + event["topic"].String();
    }
    if (event.Has("question")) {
        return "question " + event["question"].String() + (event["derived"].Bool() ? " derived" : "") + " " +
               Joined(event["choices"].Strings()) + ": " + event["text"].String();
    }
    if (event.Has("invalid_answer")) {
        return "invalid answer " + event["invalid_answer"].String() + " " +
               Joined(event["choices"].Strings());
    }
    if (event.Has("box")) {
        return "box " + event["icon"].String() + "|" + event["box"].String() + "|" + event["reply"].String();
    }
    if (event.Has("advice")) {
        return "advice " + event["advice"].String() + ": " + event["text"].String();
    }
    if (event.Has("text")) {
        return "text " + event["text"].String();
    }
    if (event.Has("no_advisor")) {
        return "no advisor " + event["no_advisor"].String();
    }
    if (event.Has("answer")) {
        return "answer " + event["answer"].String();
    }
    if (event.Has("waiting")) {
        return "waiting " + event["waiting"].String();
    }
    if (event.Has("button")) {
        return "button " + event["button"].String();
    }
    return "program ends: " + event["program_ends"].String();
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

std::vector<std::string> CaseNames()
{
    std::vector<std::string> names;
    const std::filesystem::path folder = std::string(LS_TEST_DATA) + "/cases/advisor";
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (entry.path().extension() == ".json") {
            names.push_back(entry.path().stem().string());
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

class AdvisorCases : public testing::TestWithParam<std::string>
{
};

TEST_P(AdvisorCases, runsOfCase_giveItsEvents)
{
    const std::string stem = std::string(LS_TEST_DATA) + "/cases/advisor/" + GetParam();
    const test::Json data = test::Json::ParseFile(stem + ".json");
    std::string expected;
    for (const test::Json& event : data["events"].Items()) {
        expected += ExpectedLine(event) + "\n";
    }
    ASSERT_FALSE(expected.empty());
    EXPECT_EQ(RunCase(data, test::ReadWholeFile(stem + ".IDA")), expected);
}

INSTANTIATE_TEST_SUITE_P(All, AdvisorCases, testing::ValuesIn(CaseNames()), [](const auto& testCase) {
    std::string name = testCase.param;
    name.erase(std::remove(name.begin(), name.end(), '-'), name.end());
    return name;
});

TEST(AdvisorCaseFiles, hundredCases_areThere)
{
    EXPECT_EQ(CaseNames().size(), 100U);
}

} // namespace
} // namespace ls
