// Topics whose text is in memory.

#include "render/text/ShowTopicFixture.h"

namespace ls {
namespace {

class ShowEditedTopicTest : public ShowTopicTest
{
};

TEST_F(ShowEditedTopicTest, show_editedText_isShownInsteadOfTheFile)
{
    ASSERT_TRUE(Scan(Header + "[A]\r\nold\r\n"));
    book.TopicRecs(1).Text = "new\r\n\r\nlines  \r\n";
    EXPECT_EQ(Show("A", 1), ShowResult::Shown);
    EXPECT_EQ(Lines(), (Strings{"new", "", "lines"}));
}

TEST_F(ShowEditedTopicTest, show_editedToABlankLine_showsOne)
{
    ASSERT_TRUE(Scan(Header + "[A]\r\nold\r\n"));
    book.TopicRecs(1).Text = "\r\n";
    EXPECT_EQ(Show("A", 1), ShowResult::Shown);
    EXPECT_EQ(Lines(), (Strings{""}));
}

TEST_F(ShowEditedTopicTest, show_editedText_obeysTheRulesOfABody)
{
    ASSERT_TRUE(Scan(Header + "[A]\r\nold\r\n"));
    book.TopicRecs(1).Text = "a\r\n<XREF TOPIC=B>n</XREF>\r\nb\r\n";
    EXPECT_EQ(Show("A", 1), ShowResult::Shown);
    EXPECT_EQ(Lines(), Strings{"a"});
    EXPECT_TRUE(shown.xrefButton);
    book.TopicRecs(1).Text = "a\r\n[B]\r\nb\r\n";
    EXPECT_EQ(Show("A", 1), ShowResult::Shown);
    EXPECT_EQ(Lines(), Strings{"a"});
}

TEST_F(ShowEditedTopicTest, show_editedTextOfATopicWithLogic_keepsTheSavedLogic)
{
    ASSERT_TRUE(Scan(Header + "[A]\r\nold\r\n<IXML>\r\n<LOGIC>\r\n[B]\r\n"));
    book.TopicRecs(1).Text = "new, and longer\r\n";
    EXPECT_EQ(Show("A", 1), ShowResult::Shown);
    EXPECT_EQ(Lines(), Strings{"new, and longer"});
    EXPECT_TRUE(shown.advisorButton);
    EXPECT_EQ(shown.logicPos, PosBehind("<IXML>\r\n"));
}

TEST_F(ShowEditedTopicTest, show_editedTextBeforeAnotherTopicsLogic_hasNone)
{
    ASSERT_TRUE(Scan(Header + "[A]\r\nold\r\n[B]\r\n<IXML>\r\n<LOGIC>\r\n"));
    book.TopicRecs(1).Text = "new\r\n";
    EXPECT_EQ(Show("A", 1), ShowResult::Shown);
    EXPECT_FALSE(shown.advisorButton);
}

TEST_F(ShowEditedTopicTest, show_editedTextAndFileChangedUnderneath_hasNoLogicAndNoMessage)
{
    ASSERT_TRUE(Scan(Header + "[A]\r\nold\r\n<IXML>\r\n<LOGIC>\r\n"));
    world.files["/work/Book.IDA"] = Header + "[Z]\r\nold\r\n<IXML>\r\n<LOGIC>\r\n";
    book.TopicRecs(1).Text = "new\r\n";
    EXPECT_EQ(Show("A", 1), ShowResult::Shown);
    EXPECT_FALSE(shown.advisorButton);
    EXPECT_EQ(world.messages.Take(), Strings{});
}

TEST_F(ShowEditedTopicTest, show_editedTextAndUnreadableFile_isShownWithoutMessage)
{
    ASSERT_TRUE(Scan(Header + "[A]\r\nold\r\n<IXML>\r\n"));
    book.TopicRecs(1).Text = "new\r\n";
    world.files.fail = [](const std::string&) { return error::DeviceIo; };
    EXPECT_EQ(Show("A", 1), ShowResult::Shown);
    EXPECT_EQ(Lines(), Strings{"new"});
    EXPECT_FALSE(shown.advisorButton);
    EXPECT_EQ(world.messages.Take(), Strings{});
}

TEST_F(ShowEditedTopicTest, show_editedTextWithALogicTag_endsThere)
{
    ASSERT_TRUE(Scan(Header + "[A]\r\nold\r\n"));
    book.TopicRecs(1).Text = "new\r\n<IXML>\r\nrest\r\n";
    EXPECT_EQ(Show("A", 1), ShowResult::Shown);
    EXPECT_EQ(Lines(), Strings{"new"});
    EXPECT_FALSE(shown.advisorButton) << "the advisor reads the file, which holds no block";
}

} // namespace
} // namespace ls
