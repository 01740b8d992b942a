// Which topic is exported, and what happens when something fails.

#include "render/html/ExportFixture.h"

namespace ls {
namespace {

using ExportFaults = ExportFixture;

TEST_F(ExportFaults, noName_isAnEmptyFileWithoutAMessage)
{
    ASSERT_TRUE(Scan(BookHeaderLine + "[A]\r\na\r\n"));
    EXPECT_TRUE(Export(""));
    EXPECT_EQ(file.text, "");
    EXPECT_EQ(world.messages.Take(), Strings{});
}

TEST_F(ExportFaults, unknownTopic_isAnEmptyFileWithoutAMessage)
{
    ASSERT_TRUE(Scan(BookHeaderLine + "[A]\r\na\r\n"));
    EXPECT_TRUE(Export("[B]"));
    EXPECT_EQ(file.text, "");
    EXPECT_EQ(file.finished, 1);
    EXPECT_EQ(world.messages.Take(), Strings{});
}

TEST_F(ExportFaults, topicThatVanishedFromTheFile_isAnEmptyFileWithoutAMessage)
{
    const std::string whole = BookHeaderLine + "[A]\r\na\r\n[B]\r\nb\r\n";
    ASSERT_TRUE(Scan(whole));
    for (const std::string& now :
         {BookHeaderLine + "[A]\r\na\r\n[C]\r\nb\r\n", BookHeaderLine, std::string()}) {
        world.files["/work/Book.IDA"] = now;
        EXPECT_TRUE(Export("[B]", 2));
        EXPECT_EQ(file.text, "");
        EXPECT_EQ(world.messages.Take(), Strings{});
    }
    EXPECT_EQ(file.finished, 3);
}

TEST_F(ExportFaults, secondTopicOfAName_isReachedByItsNumber)
{
    ASSERT_TRUE(Scan(BookHeaderLine + "[A]\r\nfirst\r\n[A]\r\nsecond\r\n"));
    EXPECT_TRUE(Export("[A]", 2));
    EXPECT_NE(file.text.find("<P>second</P>"), std::string::npos);
    file.text.clear();
    EXPECT_TRUE(Export("[A]", 0));
    EXPECT_NE(file.text.find("<P>first</P>"), std::string::npos);
    world.messages.Take();
}

TEST_F(ExportFaults, topicEditedInMemory_isExportedAsItStandsInTheFile)
{
    ASSERT_TRUE(Scan(BookHeaderLine + "[A]\r\nsaved\r\n"));
    book.TopicRecs(1).Text = "edited\r\n";
    EXPECT_TRUE(Export("[A]", 1));
    EXPECT_NE(file.text.find("<P>saved</P>"), std::string::npos);
    EXPECT_EQ(file.text.find("edited"), std::string::npos);
    world.messages.Take();
}

TEST_F(ExportFaults, topicOfABookThatWasNeverSaved_isAnEmptyFile)
{
    book.TopicCount = 1;
    book.TopicNames(1) = "[New]";
    book.TopicRecs(1).Text = "text\r\n";
    EXPECT_TRUE(Export("[New]", 1));
    EXPECT_EQ(file.text, "");
    EXPECT_EQ(world.messages.Take(), Strings{});
}

TEST_F(ExportFaults, deletedTopic_isStillInTheFile)
{
    ASSERT_TRUE(Scan(BookHeaderLine + "[A]\r\na\r\n"));
    book.TopicRecs(1).Deleted = true;
    EXPECT_TRUE(Export("[A]", 1));
    EXPECT_NE(file.text.find("<P>a</P>"), std::string::npos);
    world.messages.Take();
}

} // namespace
} // namespace ls
