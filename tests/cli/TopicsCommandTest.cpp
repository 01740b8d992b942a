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

} // namespace
} // namespace ls
