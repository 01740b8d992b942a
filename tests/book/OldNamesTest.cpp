#include "book/OldNames.h"

#include "book/Book.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

TEST(NextTopicLine, text_givesLineAfterLine)
{
    Book book;
    book.TopicRecs(1).Text = "one\r\n\r\nthree";
    std::size_t position = 1;
    int done = 0;
    EXPECT_EQ(NextTopicLine(book, 1, position, done), "one");
    EXPECT_EQ(position, 6U);
    EXPECT_EQ(NextTopicLine(book, 1, position, done), "");
    EXPECT_EQ(position, 8U);
    EXPECT_EQ(NextTopicLine(book, 1, position, done), "three");
    EXPECT_EQ(done, 0);
    EXPECT_EQ(NextTopicLine(book, 1, position, done), "");
    EXPECT_EQ(done, -1);
}

TEST(NextTopicLine, textEndingInALineEnd_hasNoFurtherLine)
{
    Book book;
    book.TopicRecs(1).Text = "one\r\n";
    std::size_t position = 1;
    int done = 0;
    EXPECT_EQ(NextTopicLine(book, 1, position, done), "one");
    EXPECT_EQ(done, 0);
    NextTopicLine(book, 1, position, done);
    EXPECT_EQ(done, -1);
}

TEST(NextTopicLine, loneCrOrLf_isText)
{
    Book book;
    book.TopicRecs(1).Text = "a\rb\nc\r\n";
    std::size_t position = 1;
    int done = 0;
    EXPECT_EQ(NextTopicLine(book, 1, position, done), "a\rb\nc");
}

TEST(NextTopicLine, uneditedOrUnknownTopic_isDone)
{
    Book book;
    for (const int topic : {0, 1, 32767}) {
        std::size_t position = 1;
        int done = 0;
        EXPECT_EQ(NextTopicLine(book, topic, position, done), "");
        EXPECT_EQ(done, -1) << topic;
    }
}

} // namespace
} // namespace ls
