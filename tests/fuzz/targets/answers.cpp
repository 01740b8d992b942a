// Answers for lsbook, as a list in JSON and in the short form, and JSON as lsbook writes it.

#include "World.h"
#include "base/CodePage.h"
#include "cli/AnswerLists.h"
#include "cli/JsonWriter.h"

#include <sstream>

namespace ls::fuzz {

namespace {

std::string Written(const AnswerLists& lists)
{
    std::ostringstream stream;
    JsonWriter json(stream);
    json.BeginArray();
    for (const std::vector<std::string>& answers : lists) {
        json.BeginArray();
        for (const std::string& answer : answers) {
            json.String(answer);
        }
        json.EndArray();
    }
    json.EndArray();
    Require(json.Complete(), "what was begun has been ended");
    return stream.str();
}

// The parts of the short form, joined, must give the whole text. "-" alone is a list without answers.
void TakeShortForm(const std::string& text, const AnswerLists& lists)
{
    std::string joined;
    for (const std::vector<std::string>& answers : lists) {
        joined += joined.empty() && &answers == &lists.front() ? "" : ";";
        joined += answers.empty() ? "-" : "";
        for (const std::string& answer : answers) {
            joined += (&answer == &answers.front() ? "" : ",") + answer;
            const std::vector<std::string> choices = {"A", answer, "B"};
            const std::string meant = MeantAnswer(answer, choices);
            Require(meant == answer || answer == "?" || answer.starts_with('#'), "an answer means itself");
        }
    }
    RequireEqual(joined, text, "the short form's parts make the whole");
}

} // namespace

void TestInput(Input& input)
{
    const AnswerLists lists = SplitAnswers(FromBook(input.Text()));
    const std::optional<AnswerLists> back = ReadAnswersJson(Written(lists));
    Require(back && *back == lists, "answers come back from JSON as they were");
    if (const std::optional<AnswerLists> read = ReadAnswersJson(input.Text())) {
        for (const std::vector<std::string>& answers : *read) {
            for (const std::string& answer : answers) {
                static_cast<void>(MeantAnswer(answer, answers));
            }
        }
        const std::string written = Written(*read); // reading has replaced invalid UTF-8
        const std::optional<AnswerLists> again = ReadAnswersJson(written);
        Require(again.has_value(), "answers that were read come back from JSON");
        RequireEqual(Written(*again), written, "answers that were read come back from JSON as they were");
    }
    TakeShortForm(FromBook(input.Text()), lists);
}

} // namespace ls::fuzz
