#include "CliFixture.h"

namespace ls {
namespace {

class Text : public test::CliFixture
{
protected:
    void SetUp() override { files["/work/a.IDA"] = test::SmallBook(); }
};

TEST_F(Text, topic_sourceWithItsReferences)
{
    EXPECT_EQ(Out({"text", "a.IDA", "Café"}), "- one two three four five six\n"
                                              "<XREF TOPIC=Start></XREF>\n"
                                              "<XREF TOPIC=Café>itself</XREF>\n");
}

TEST_F(Text, topicByNumber_isTheSame)
{
    EXPECT_EQ(Out({"text", "a.IDA", "--number", "3"}), "Ask me.\n");
}

TEST_F(Text, logic_isTheBlock)
{
    EXPECT_EQ(Out({"text", "a.IDA", "Advice", "--logic"}),
              "<IXML>\n<LOGIC>\n<AV ID=GO></AV>\n</LOGIC>\n</IXML>\n");
}

TEST_F(Text, json_hasBothWithTheBooksLineEnds)
{
    EXPECT_EQ(Out({"text", "a.IDA", "Advice", "--json"}),
              "{\n"
              "  \"text\": \"Ask me.\\r\\n\",\n"
              "  \"logic\": \"<IXML>\\r\\n<LOGIC>\\r\\n<AV ID=GO></AV>\\r\\n</LOGIC>\\r\\n</IXML>\\r\\n\"\n"
              "}\n");
}

TEST_F(Text, logicOfATopicWithoutOne_isAFault)
{
    EXPECT_EQ(Run({"text", "a.IDA", "Start", "--logic"}), 1);
    EXPECT_EQ(err, "exclamation: The topic has no logic block.\n");
    EXPECT_EQ(out, "");
    EXPECT_EQ(Run({"text", "a.IDA", "Start", "--logic", "--json"}), 1);
    EXPECT_EQ(test::Json::Parse(out)["logic"].String(), "");
    EXPECT_EQ(test::Json::Parse(out)["messages"].Items().size(), 1U);
}

TEST_F(Text, plainTextFile_isWhole)
{
    files["/work/a.txt"] = "[A]  \r\n<IXML>\r\n";
    EXPECT_EQ(Run({"text", "a.txt", "--plain"}), 0);
    EXPECT_EQ(out, "[A]\n<IXML>\n");
}

// The text is written in pieces; nothing is lost or split where two of them meet.
TEST_F(Text, longText_isWhole)
{
    constexpr std::size_t Piece = 256 * 1024;
    for (std::size_t length = Piece - 3; length < Piece + 2; ++length) {
        const std::string line(length, 'x');
        files["/work/a.IDA"] = "LODESTAR BOOK V5.3\r\n[A]\r\n" + line + "\r\n\r\nCaf\xE9\r\n";
        EXPECT_TRUE(Out({"text", "a.IDA", "A"}) == line + "\n\nCaf\xC3\xA9\n") << length;
        EXPECT_TRUE(Out({"text", "a.IDA", "A", "--json"}) ==
                    "{\n  \"text\": \"" + line + "\\r\\n\\r\\nCaf\xC3\xA9\\r\\n\",\n  \"logic\": \"\"\n}\n")
            << length;
    }
}

TEST_F(Text, unknownTitle_isToldWordForWord)
{
    EXPECT_EQ(Run({"text", "a.IDA", "cafe"}), 1);
    EXPECT_EQ(err, "warning: Topic [cafe] was not found.\n");
}

TEST_F(Text, titleOutsideTheCodePage_isNotFound)
{
    EXPECT_EQ(Run({"text", "a.IDA", "☃"}), 1);
    EXPECT_EQ(err, "warning: Topic [☃] was not found.\n");
}

TEST_F(Text, titleThatIsNoUtf8_isNotFoundAndShownSafely)
{
    EXPECT_EQ(Run({"text", "a.IDA", "Caf\xE9"}), 1);
    EXPECT_EQ(err, "warning: Topic [Caf\xEF\xBF\xBD] was not found.\n");
}

TEST_F(Text, numberBehindTheLastTopic_isToldWithTheCount)
{
    EXPECT_EQ(Run({"text", "a.IDA", "--number", "4"}), 1);
    EXPECT_EQ(err, "exclamation: There is no topic number 4: the book has 3 topics.\n");
    files["/work/b.IDA"] = "LODESTAR BOOK V5.3\r\n[A]\r\n";
    EXPECT_EQ(Run({"text", "b.IDA", "--number", "2"}), 1);
    EXPECT_EQ(err, "exclamation: There is no topic number 2: the book has 1 topic.\n");
}

TEST_F(Text, numberZero_isWrongUsage)
{
    EXPECT_EQ(Run({"text", "a.IDA", "--number", "0"}), 2);
    EXPECT_EQ(err, "lsbook text: --number needs a whole number from 1 to 32767, not \"0\"\n"
                   "Try \"lsbook help text\".\n");
}

TEST_F(Text, secondTopicOfAName_isReachedByItsNumberOnly)
{
    files["/work/b.IDA"] = "LODESTAR BOOK V5.3\r\n[A]\r\nfirst\r\n[A]\r\nsecond\r\n";
    EXPECT_EQ(Out({"text", "b.IDA", "A"}), "first\n");
    EXPECT_EQ(Out({"text", "b.IDA", "--number", "2"}), "second\n");
}

} // namespace
} // namespace ls
