// Compares what lsbook writes about books as JSON with results that were worked out by hand.

#include "CliFixture.h"

#include "base/CodePage.h"
#include "support/Cases.h"

#include <filesystem>

namespace ls {
namespace {

using test::Json;
using Strings = std::vector<std::string>;

constexpr const char* Folder = "cases/text";

class TextCase : public test::CliFixture, public testing::WithParamInterface<std::string>
{
protected:
    void SetUp() override
    {
        m_expected = Json::ParseFile(test::CasePath(Folder, GetParam()) + ".json");
        files["/work/case.IDA"] = test::ReadWholeFile(test::CasePath(Folder, GetParam()) + ".IDA");
    }

    Json Of(Strings arguments)
    {
        arguments.insert(arguments.begin() + 1, "case.IDA");
        arguments.emplace_back("--json");
        EXPECT_EQ(Run(arguments), 0);
        return Json::Parse(out);
    }

    Json m_expected;
};

TEST_P(TextCase, info_asExpected)
{
    const Json& expected = m_expected["info"];
    const Json info = Of({"info"});
    for (const char* key : {"magic", "author", "copyright", "url", "post"}) {
        EXPECT_EQ(info[key].String(), expected[key].String()) << key;
    }
    EXPECT_EQ(info["is_book"].Bool(), expected["is_book"].Bool());
    EXPECT_EQ(info["topic_count"].Int(), expected["topic_count"].Int());
    EXPECT_EQ(info["xref_count"].Int(), expected["xref_count"].Int());
}

TEST_P(TextCase, save_asExpected)
{
    const std::string expected = test::CasePath(Folder, GetParam()) + ".saved.IDA";
    if (!std::filesystem::exists(expected)) {
        EXPECT_EQ(Run({"save", "case.IDA", "out.IDA"}), 1);
        EXPECT_EQ(m_expected["topics"].Items().size(), 0U)
            << "only a book without topics has nothing to save";
        return;
    }
    const Json saved = Of({"save", "out.IDA"});
    EXPECT_EQ(files["/work/out.IDA"], test::ReadWholeFile(expected));
    EXPECT_EQ(saved["size"].Int(), static_cast<int>(files["/work/out.IDA"].size()));
    EXPECT_EQ(Run({"save", "out.IDA", "again.IDA"}), 0);
    EXPECT_EQ(files["/work/again.IDA"], files["/work/out.IDA"]) << "saving a saved book changes no byte";
}

TEST_P(TextCase, topics_asExpected)
{
    const Json topics = Of({"topics"});
    const std::vector<Json>& expected = m_expected["topics"].Items();
    ASSERT_EQ(topics["topics"].Items().size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        const Json& topic = topics["topics"].Items()[i];
        EXPECT_EQ(topic["number"].Int(), expected[i]["number"].Int());
        EXPECT_EQ(topic["title"].String(), expected[i]["title"].String());
        EXPECT_EQ(topic["pos"].Int(), expected[i]["pos"].Int());
    }
}

TEST_P(TextCase, xrefs_asExpected)
{
    const Json xrefs = Of({"xrefs"});
    const std::vector<Json>& expected = m_expected["xrefs"].Items();
    ASSERT_EQ(xrefs["xrefs"].Items().size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        const Json& xref = xrefs["xrefs"].Items()[i];
        for (const char* key : {"from", "to", "text"}) {
            EXPECT_EQ(xref[key].String(), expected[i][key].String()) << i << key;
        }
    }
}

TEST_P(TextCase, show_asExpected)
{
    // Every opening reports a bad header. Showing a topic adds no message.
    const std::size_t messagesOfOpening = Of({"info"})["messages"].Items().size();
    for (const Json& expected : Asked(m_expected["show"].Items())) {
        const std::string number = std::to_string(expected["number"].Int());
        const std::string width = std::to_string(expected["width"].Int());
        SCOPED_TRACE("topic " + number + ", width " + width);
        const Json shown = Of({"show", "--number", number, "--width", width});
        EXPECT_EQ(shown["messages"].Items().size(), messagesOfOpening);
        EXPECT_EQ(shown["lines"].Strings(), expected["lines"].Strings());
        EXPECT_EQ(shown["count"].Int(), static_cast<int>(expected["lines"].Items().size()));
        EXPECT_EQ(shown["xref_button"].Bool(), expected["xref_button"].Bool());
        EXPECT_EQ(shown["advisor_button"].Bool(), expected["advisor_button"].Bool());
        EXPECT_EQ(shown["logic_pos"].Int(), expected["logic_pos"].Int());
    }
}

TEST_P(TextCase, export_asExpected)
{
    ASSERT_FALSE(m_expected["export"].IsNull());
    for (const Json& expected : Asked(m_expected["export"].Items())) {
        const std::string number = std::to_string(expected["number"].Int());
        SCOPED_TRACE("topic " + number);
        EXPECT_EQ(Of({"export", "--number", number})["html"].String(), expected["html"].String());
        Of({"export", "--number", number, "-o", "out.htm", "--force"});
        EXPECT_EQ(FromBook(files["/work/out.htm"]), expected["html"].String());
    }
}

INSTANTIATE_TEST_SUITE_P(Cases, TextCase, testing::ValuesIn(test::CaseNames(Folder)), test::CaseTestName);

} // namespace
} // namespace ls
