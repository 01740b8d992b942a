#include "CliFixture.h"

namespace ls {
namespace {

class Topics : public test::CliFixture
{
protected:
    void SetUp() override { files["/work/a.IDA"] = test::SmallBook(); }
};

TEST_F(Topics, contentsOrder_asTheMainWindowShowsIt)
{
    EXPECT_EQ(Out({"topics", "a.IDA"}), "1. Start\n2. Café\n3. Advice\n");
}

TEST_F(Topics, alphabeticOrder_hasBareTitles)
{
    EXPECT_EQ(Out({"topics", "a.IDA", "--alphabetic"}), "Advice\nCafé\nStart\n");
}

TEST_F(Topics, json_keepsTheListsOrderAndTheTablesNumbers)
{
    EXPECT_EQ(Out({"topics", "a.IDA", "--alphabetic", "--json"}),
              "{\n"
              "  \"topics\": [\n"
              "    {\"number\": 3, \"title\": \"Advice\", \"pos\": 292, \"item\": \"Advice\"},\n"
              "    {\"number\": 2, \"title\": \"Café\", \"pos\": 194, \"item\": \"Café\"},\n"
              "    {\"number\": 1, \"title\": \"Start\", \"pos\": 73, \"item\": \"Start\"}\n"
              "  ]\n"
              "}\n");
}

TEST_F(Topics, moreThanNineTopics_haveZeroPaddedNumbers)
{
    std::string book = "LODESTAR BOOK V5.3\r\n";
    for (int i = 1; i <= 10; ++i) {
        book += "[T" + std::to_string(i) + "]\r\n";
    }
    files["/work/b.IDA"] = book;
    EXPECT_TRUE(Out({"topics", "b.IDA"}).starts_with("01. T1\n02. T2\n")) << out;
    EXPECT_TRUE(out.ends_with("10. T10\n")) << out;
}

TEST_F(Topics, plainTextFile_hasNone)
{
    files["/work/a.txt"] = "[A]\r\n";
    EXPECT_EQ(Run({"topics", "a.txt", "--plain", "--json"}), 0);
    EXPECT_TRUE(test::Json::Parse(out)["topics"].Items().empty());
}

TEST_F(Topics, escapeInATitleOnATerminal_isShownAndNotSent)
{
    files["/work/b.IDA"] = "LODESTAR BOOK V5.3\r\n[A\033[2J\x81]\r\n";
    EXPECT_EQ(Out({"topics", "b.IDA"}), "1. A\033[2J\xC2\x81\n");
    outIsTerminal = true;
    EXPECT_EQ(Out({"topics", "b.IDA"}), "1. A\xE2\x90\x9B[2J\xEF\xBF\xBD\n");
}

TEST_F(Topics, tooManyTopics_overflowIsAFaultOfTheBook)
{
    std::string book = "LODESTAR BOOK V5.3\r\n";
    for (int i = 0; i < 32768; ++i) {
        book += "[T]\r\n";
    }
    files["/work/b.IDA"] = book;
    EXPECT_EQ(Run({"topics", "b.IDA"}), 1);
    EXPECT_EQ(err, "critical: Overflow\n");
    EXPECT_EQ(out, "");
}

} // namespace
} // namespace ls
