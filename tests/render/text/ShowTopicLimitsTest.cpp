// Plain text files, faults of the disk, and sizes.

#include "base/LineCursor.h"
#include "render/text/ShowTopicFixture.h"

namespace ls {
namespace {

class ShowTopicLimitsTest : public ShowTopicTest
{
};

// Plain text files

TEST_F(ShowTopicLimitsTest, show_plainText_isShownWholeFromItsFirstByte)
{
    OpenPlain("first line\r\n[A]\r\n<XREF x\r\n<IXML>\r\n<LOGIC>\r\nlast ");
    EXPECT_EQ(Show(""), ShowResult::Shown);
    EXPECT_EQ(Lines(), (Strings{"first line", "[A]", "<XREF x", "<IXML>", "<LOGIC>", "last"}));
    EXPECT_EQ(shown.name, "");
    EXPECT_FALSE(shown.xrefButton);
    EXPECT_FALSE(shown.advisorButton);
    EXPECT_EQ(shown.logicPos, 0);
}

TEST_F(ShowTopicLimitsTest, show_plainText_leavesTheNameAlone)
{
    OpenPlain("x");
    EXPECT_EQ(Show("Whatever"), ShowResult::Shown);
    EXPECT_EQ(name, "Whatever");
}

TEST_F(ShowTopicLimitsTest, show_plainText_isWrappedWithIndents)
{
    OpenPlain("- one two three\r\n");
    EXPECT_EQ(Show("", 0, 11), ShowResult::Shown);
    EXPECT_EQ(Lines(), (Strings{"- one two", "  three"}));
}

TEST_F(ShowTopicLimitsTest, show_plainTextWithoutFile_nothing)
{
    book.BookVersion = 0;
    EXPECT_EQ(Show(""), ShowResult::Nothing);
}

// Faults and limits

std::string ManyLines(int count, const std::string& line)
{
    std::string text;
    for (int i = 0; i < count; ++i) {
        text += line + "\r\n";
    }
    return text;
}

TEST_F(ShowTopicLimitsTest, show_32767Lines_areShownWithoutMessage)
{
    ShowBody(ManyLines(32767, "x"));
    EXPECT_EQ(shown.lines.Count, 32767);
    EXPECT_EQ(world.messages.Take(), Strings{});
}

TEST_F(ShowTopicLimitsTest, show_moreThan32767Lines_showsTheFirstOnesAndOverflowOnce)
{
    ShowBody(ManyLines(32766, "x") + "y\r\nz\r\nz\r\n");
    EXPECT_EQ(shown.lines.Count, 32767);
    EXPECT_EQ(shown.lines(32767), "y");
    EXPECT_EQ(world.messages.Take(), Strings{"critical|Lodestar Advisor|Overflow"});
}

TEST_F(ShowTopicLimitsTest, show_overflowInsideALine_showsItsFirstSegments)
{
    ShowBody(ManyLines(32766, "x") + "1234567890a 1234567890b\r\n", 11);
    EXPECT_EQ(shown.lines.Count, 32767);
    EXPECT_EQ(shown.lines(32767), "1234567890a");
    EXPECT_EQ(world.messages.Take(), Strings{"critical|Lodestar Advisor|Overflow"});
}

TEST_F(ShowTopicLimitsTest, show_overflow_stillFindsReferencesAndLogic)
{
    ShowBody(ManyLines(32768, "x") + "<XREF TOPIC=B>n</XREF>\r\n<IXML>\r\n<LOGIC>\r\n");
    EXPECT_TRUE(shown.xrefButton);
    EXPECT_TRUE(shown.advisorButton);
    EXPECT_EQ(shown.logicPos, PosBehind("<IXML>\r\n"));
    EXPECT_EQ(world.messages.Take(), Strings{"critical|Lodestar Advisor|Overflow"});
}

TEST_F(ShowTopicLimitsTest, show_overflowOfEditedTextAndPlainText_showsOverflowOnce)
{
    ASSERT_TRUE(Scan(Header + "[A]\r\nold\r\n"));
    book.TopicRecs(1).Text = ManyLines(32768, "x");
    EXPECT_EQ(Show("A", 1), ShowResult::Shown);
    EXPECT_EQ(shown.lines.Count, 32767);
    EXPECT_EQ(world.messages.Take(), Strings{"critical|Lodestar Advisor|Overflow"});
    OpenPlain(ManyLines(32768, "x"));
    EXPECT_EQ(Show(""), ShowResult::Shown);
    EXPECT_EQ(shown.lines.Count, 32767);
    EXPECT_EQ(world.messages.Take(), Strings{"critical|Lodestar Advisor|Overflow"});
}

TEST_F(ShowTopicLimitsTest, show_whileAnotherCursorReads_doesNotMoveIt)
{
    ASSERT_TRUE(Scan(Header + "[A]\r\na\r\nb\r\n"));
    LineCursor other(*book.File);
    std::string line;
    ASSERT_TRUE(other.ReadLine(line).Ok());
    const FilePos before = other.Position();
    EXPECT_EQ(Show("A", 1), ShowResult::Shown);
    EXPECT_EQ(other.Position(), before);
    ASSERT_TRUE(other.ReadLine(line).Ok());
    EXPECT_EQ(line, "[A]");
}

TEST_F(ShowTopicLimitsTest, show_lineOfAMegabyteWithoutBlanks_isCutAtEveryWidth)
{
    ShowBody(std::string(1000000, 'x') + "\r\nend\r\n", 100);
    ASSERT_EQ(shown.lines.Count, 10001);
    EXPECT_EQ(shown.lines(10000), std::string(100, 'x'));
    EXPECT_EQ(shown.lines(10001), "end");
}

} // namespace
} // namespace ls
