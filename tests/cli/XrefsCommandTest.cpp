#include "CliFixture.h"

namespace ls {
namespace {

class Xrefs : public test::CliFixture
{
protected:
    void SetUp() override { files["/work/a.IDA"] = test::SmallBook(); }
};

TEST_F(Xrefs, all_withTheirNotes)
{
    EXPECT_EQ(Out({"xrefs", "a.IDA"}), "Start -> Café\n"
                                       "    The <I>first</I> note\n"
                                       "\n"
                                       "    and its end\n"
                                       "Café -> Start\n"
                                       "Café -> Café\n"
                                       "    itself\n");
}

TEST_F(Xrefs, allInJson_inTheTablesOrder)
{
    EXPECT_EQ(
        Out({"xrefs", "a.IDA", "--json"}),
        "{\n"
        "  \"xrefs\": [\n"
        "    {\"from\": \"Start\", \"to\": \"Café\", \"text\": \"The <I>first</I> note\\r\\n\\r\\nand its "
        "end\"},\n"
        "    {\"from\": \"Café\", \"to\": \"Start\", \"text\": \"\"},\n"
        "    {\"from\": \"Café\", \"to\": \"Café\", \"text\": \"itself\"}\n"
        "  ]\n"
        "}\n");
}

TEST_F(Xrefs, ofATopic_bothWays_aReferenceToItselfInBoth)
{
    EXPECT_EQ(Out({"xrefs", "a.IDA", "Café"}), "Cross Reference Topics for: Café\n"
                                               "\n"
                                               "Related Topics\n"
                                               "  Start\n"
                                               "  Café\n"
                                               "      itself\n"
                                               "\n"
                                               "Other topics that refer back to the current one:\n"
                                               "  Start\n"
                                               "      The <I>first</I> note\n"
                                               "\n"
                                               "      and its end\n"
                                               "  Café\n"
                                               "      itself\n");
}

TEST_F(Xrefs, ofATopicInJson_hasBothLists)
{
    EXPECT_EQ(
        Out({"xrefs", "a.IDA", "--number", "1", "--json"}),
        "{\n"
        "  \"to\": [\n"
        "    {\"from\": \"Start\", \"to\": \"Café\", \"text\": \"The <I>first</I> note\\r\\n\\r\\nand its "
        "end\"}\n"
        "  ],\n"
        "  \"in\": [\n"
        "    {\"from\": \"Café\", \"to\": \"Start\", \"text\": \"\"}\n"
        "  ]\n"
        "}\n");
}

TEST_F(Xrefs, ofATopicWithoutAny_hasEmptyLists)
{
    EXPECT_EQ(Out({"xrefs", "a.IDA", "Advice", "--json"}), "{\n  \"to\": [],\n  \"in\": []\n}\n");
    EXPECT_EQ(Out({"xrefs", "a.IDA", "Advice"}), "Cross Reference Topics for: Advice\n");
}

TEST_F(Xrefs, unknownTopic_isToldAndIsAFault)
{
    EXPECT_EQ(Run({"xrefs", "a.IDA", "start", "--json"}), 1);
    EXPECT_EQ(err, "warning: Topic [start] was not found.\n");
    EXPECT_EQ(out,
              "{\n"
              "  \"messages\": [\n"
              "    {\"icon\": \"warning\", \"text\": \"Topic [start] was not found.\", \"reply\": \"OK\"}\n"
              "  ]\n"
              "}\n");
}

TEST_F(Xrefs, plainTextFile_hasNoneAndNoTopics)
{
    files["/work/a.txt"] = "<XREF TOPIC=A></XREF>\r\n";
    EXPECT_EQ(Run({"xrefs", "a.txt", "--plain"}), 0);
    EXPECT_EQ(out, "");
    EXPECT_EQ(Run({"xrefs", "a.txt", "A", "--plain"}), 1);
    EXPECT_TRUE(err.ends_with("\nexclamation: A plain text file has no topics to choose from.\n")) << err;
}

} // namespace
} // namespace ls
