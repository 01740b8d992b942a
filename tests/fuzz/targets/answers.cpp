// The answers that are given to lsbook, as a list in JSON and in the short form, and JSON as it is written.

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
        static_cast<void>(Written(*read));
    }
}

} // namespace ls::fuzz
