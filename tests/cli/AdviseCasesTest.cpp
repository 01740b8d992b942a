// Dialogues worked out by hand: the events that lsbook tells of each in JSON.

#include "CliFixture.h"
#include "advisor/EventLines.h"
#include "cli/JsonWriter.h"

#include <algorithm>
#include <filesystem>
#include <sstream>

namespace ls {
namespace {

using test::Json;
using Strings = std::vector<std::string>;

const std::string Folder = std::string(LS_TEST_DATA) + "/cases/advisor/";

Strings CaseNames()
{
    Strings names;
    for (const auto& entry : std::filesystem::directory_iterator(Folder)) {
        if (entry.path().extension() == ".json") {
            names.push_back(entry.path().stem().string());
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

class AdviseCase : public test::CliFixture, public testing::WithParamInterface<std::string>
{
protected:
    // The command that plays the case.
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
    const Json data = Json::ParseFile(Folder + GetParam() + ".json");
    files["/work/case.IDA"] = test::ReadWholeFile(Folder + GetParam() + ".IDA");
    Run(Arguments(data));
    const Json events = Json::Parse(out);
    ASSERT_EQ(events.Items().size(), data["events"].Items().size());
    for (std::size_t i = 0; i < events.Items().size(); ++i) {
        EXPECT_EQ(test::EventLine(events.Items()[i]), test::EventLine(data["events"].Items()[i]));
    }
}

INSTANTIATE_TEST_SUITE_P(All, AdviseCase, testing::ValuesIn(CaseNames()),
                         [](const auto& row) { return "case" + row.param.substr(row.param.find('-') + 1); });

} // namespace
} // namespace ls
