#include "book/BookFixture.h"

namespace ls {
namespace {

std::string ManyTopics(int count)
{
    std::string bytes = "LODESTAR BOOK V5.3\r\n";
    for (int i = 1; i <= count; ++i) {
        bytes += "[T" + std::to_string(i) + "]\r\n";
    }
    return bytes;
}

std::string ManyXrefs(int count)
{
    std::string bytes = "LODESTAR BOOK V5.3\r\n[A]\r\n";
    for (int i = 1; i <= count; ++i) {
        bytes += "<XREF TOPIC=B>n</XREF>\r\n";
    }
    return bytes;
}

struct BookTables : BookFixture
{
};

TEST_F(BookTables, newBook_hasBounds100AndVersion5)
{
    EXPECT_EQ(book.TopicNames.UpperBound(), 100);
    EXPECT_EQ(book.TopicPos.UpperBound(), 100);
    EXPECT_EQ(book.TopicRecs.UpperBound(), 100);
    EXPECT_EQ(book.Xrefs.UpperBound(), 100);
    EXPECT_EQ(book.BookVersion, 5.0F);
    EXPECT_EQ(book.BookFileNo, 2);
}

TEST_F(BookTables, topics100_fitTheFirstBound)
{
    ASSERT_TRUE(Scan(ManyTopics(100)));
    EXPECT_EQ(book.TopicNames.UpperBound(), 100);
}

TEST_F(BookTables, topics101_growAllThreeTablesTo150)
{
    ASSERT_TRUE(Scan(ManyTopics(101)));
    EXPECT_EQ(book.TopicCount, 101);
    EXPECT_EQ(book.TopicNames.UpperBound(), 150);
    EXPECT_EQ(book.TopicPos.UpperBound(), 150);
    EXPECT_EQ(book.TopicRecs.UpperBound(), 150);
    EXPECT_EQ(book.Xrefs.UpperBound(), 100);
    EXPECT_EQ(book.TopicNames(101), "[T101]");
}

TEST_F(BookTables, xrefs101_growTo150)
{
    ASSERT_TRUE(Scan(ManyXrefs(101)));
    EXPECT_EQ(book.XrefCount, 101);
    EXPECT_EQ(book.Xrefs.UpperBound(), 150);
}

TEST_F(BookTables, topics32768_overflowOnceAndDropTheBook)
{
    EXPECT_FALSE(Scan(ManyTopics(32768)));
    EXPECT_EQ(world.messages.Take(), (Strings{"critical|Lodestar Advisor|Overflow"}));
    EXPECT_EQ(book.TopicCount, 0);
    EXPECT_EQ(book.BookPath, "");
    EXPECT_EQ(book.File, nullptr);
    EXPECT_FALSE(world.end.Ended());
    EXPECT_TRUE(Scan("LODESTAR BOOK V5.3\r\n[Next]\r\n")) << "another book opens after it";
}

TEST_F(BookTables, xrefs32768_overflowOnceAndDropTheBook)
{
    EXPECT_FALSE(Scan(ManyXrefs(32768)));
    EXPECT_EQ(world.messages.Take(), (Strings{"critical|Lodestar Advisor|Overflow"}));
    EXPECT_EQ(book.XrefCount, 0);
    EXPECT_EQ(book.BookPath, "");
}

TEST_F(BookTables, reset_clearsEverythingAndKeepsTheBounds)
{
    ASSERT_TRUE(Scan(ManyTopics(101) + "<XREF TOPIC=\"T1\">n</XREF>\r\n"));
    book.StartTopic = "T3";
    book.CurrentTopicName = "[T3]";
    book.LogicPos = 77;
    book.BackCount = 1;
    book.BackHistory(1) = "[T2]";
    book.TopicRecs(5).Text = "edited";
    book.TopicRecs(6).Deleted = true;
    book.BookAuthor = "A";
    const std::uint32_t order = book.TopicOrder;
    ResetBook(book);
    EXPECT_NE(book.TopicOrder, order) << "answers of the advisor no longer count";
    EXPECT_EQ(book.ScanEndPos, 0);
    EXPECT_EQ(book.BookStartPos, 0);
    EXPECT_EQ(book.StartTopic, "");
    EXPECT_EQ(book.CurrentTopicName, "");
    EXPECT_EQ(book.CurrentTopicNo, 0);
    EXPECT_EQ(book.BookVersion, 5.0F);
    EXPECT_EQ(book.BookMagic + book.BookAuthor + book.BookCopyright + book.BookUrl + book.BookPost, "");
    EXPECT_EQ(book.TopicCount, 0);
    EXPECT_EQ(book.XrefCount, 0);
    EXPECT_EQ(book.BackCount, 0);
    EXPECT_EQ(book.LogicPos, 0);
    EXPECT_EQ(book.TopicNames.UpperBound(), 150);
    EXPECT_EQ(book.TopicNames(3), "");
    EXPECT_EQ(book.TopicPos(3), 0);
    EXPECT_EQ(book.TopicRecs(5).Text, "");
    EXPECT_FALSE(book.TopicRecs(6).Deleted);
    EXPECT_EQ(book.Xrefs(1).ToTopic, "");
    EXPECT_EQ(book.BackHistory(1), "");
    EXPECT_EQ(book.BackHistory.UpperBound(), 1000);
}

} // namespace
} // namespace ls
