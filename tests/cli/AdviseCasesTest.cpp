// Compares the events of dialogues, which lsbook writes as JSON, with results that were worked out by hand.

#include "CliFixture.h"
#include "EventLines.h"
#include "cli/JsonWriter.h"
#include "support/Cases.h"

#include <sstream>

namespace ls {
namespace {

using test::Json;
using Strings = std::vector<std::string>;

constexpr const char* Folder = "cases/advisor";

class AdviseCase : public test::CliFixture, public testing::WithParamInterface<std::string>
{
protected:
    // The command line that plays the case.
    Strings Arguments(const Json& data)
    {
        Strings arguments{"advise", "case.IDA", "--json", "--answers-json", "answers.json"};
        std::ostringstream answers;
        JsonWriter json(answers);
        json.BeginArray();
        for (const Json& run : data["runs"].Items()) {
            arguments.push_back(run["topic"].String());
            json.BeginArray();
            for (const std::string& answer : run["answers"].Strings()) {
                json.String(answer);
            }
            json.EndArray();
        }
        json.EndArray();
        files["/work/answers.json"] = answers.str();
        std::string reuse;
        for (const Json& reply : data["reuse"].Items()) {
            reuse += std::string(reuse.empty() ? "" : ",") + (reply.Bool() ? "yes" : "no");
        }
        if (!reuse.empty()) {
            arguments.insert(arguments.end(), {"--reuse", reuse});
        }
        return arguments;
    }
};

TEST_P(AdviseCase, json_hasTheCasesEvents)
{
    const Json data = Json::ParseFile(test::CasePath(Folder, GetParam()) + ".json");
    files["/work/case.IDA"] = test::ReadWholeFile(test::CasePath(Folder, GetParam()) + ".IDA");
    Run(Arguments(data));
    const Json events = Json::Parse(out);
    ASSERT_EQ(events.Items().size(), data["events"].Items().size());
    for (std::size_t i = 0; i < events.Items().size(); ++i) {
        EXPECT_EQ(test::EventLine(events.Items()[i]), test::EventLine(data["events"].Items()[i]));
    }
}

INSTANTIATE_TEST_SUITE_P(All, AdviseCase, testing::ValuesIn(test::CaseNames(Folder)), test::CaseTestName);

} // namespace
} // namespace ls
