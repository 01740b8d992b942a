#include "base/LineCursor.h"
#include "book/BookFixture.h"

namespace ls {
namespace {

struct LocateTopicTest : BookFixture
{
    // "name number line": the result of the lookup and the line at the cursor.
    std::string Locate(std::string name, int number = 0)
    {
        LineCursor cursor(*book.File);
        Count16 no = number;
        LocateTopic(book, world.Get(), cursor, name, no);
        std::string line;
        if (!name.empty()) {
            EXPECT_TRUE(cursor.ReadLine(line).Ok());
        }
        return name + " " + std::to_string(no) + " " + line;
    }

    void SetUp() override
    {
        ASSERT_TRUE(Scan("LODESTAR BOOK V5.3\r\n[A]\r\nin A\r\n[B]  \r\nin B\r\n[A]\r\nin the other A\r\n"));
    }
};

TEST_F(LocateTopicTest, locate_emptyName_returnsAtOnce)
{
    EXPECT_EQ(Locate("", 2), " 2 ");
    EXPECT_TRUE(world.messages.boxes.empty());
}

TEST_F(LocateTopicTest, locate_byName_findsTheFirst)
{
    EXPECT_EQ(Locate("A"), "A 1 in A");
    EXPECT_EQ(Locate("[A]"), "[A] 1 in A");
    EXPECT_EQ(Locate("B"), "B 2 in B");
}

TEST_F(LocateTopicTest, locate_byNumber_needsNoSearch)
{
    EXPECT_EQ(Locate("A", 3), "A 3 in the other A");
}

TEST_F(LocateTopicTest, locate_deletedTopic_isFound)
{
    book.TopicRecs(1).Deleted = true;
    EXPECT_EQ(Locate("A"), "A 1 in A");
}

TEST_F(LocateTopicTest, locate_numberOfAnotherName_saysSoOnReadingBack)
{
    EXPECT_EQ(Locate("A", 2), " 2 ");
    EXPECT_EQ(world.messages.Take(), (Strings{"warning|Lodestar Advisor|Error looking up topic: [A]"}));
}

TEST_F(LocateTopicTest, locate_unknownOrOtherCase_wasNotFound)
{
    EXPECT_EQ(Locate("Z"), " 0 ");
    EXPECT_EQ(Locate("[b]"), " 0 ");
    EXPECT_EQ(Locate("\xE9"), " 0 ");
    EXPECT_EQ(world.messages.Take(), (Strings{"warning|Lodestar Advisor|Topic [Z] was not found.",
                                              "warning|Lodestar Advisor|Topic [b] was not found.",
                                              "warning|Lodestar Advisor|Topic [\xC3\xA9] was not found."}));
}

TEST_F(LocateTopicTest, locate_openBracketOnly_isTakenAsItStands)
{
    EXPECT_EQ(Locate("[A"), " 0 ");
    EXPECT_EQ(world.messages.Take(), (Strings{"warning|Lodestar Advisor|Topic [A was not found."}));
}

TEST_F(LocateTopicTest, locate_topicAddedInMemory_wasNotFound)
{
    book.TopicCount = 4;
    book.TopicNames(4) = "[New]";
    EXPECT_EQ(Locate("New"), " 4 ");
    EXPECT_EQ(world.messages.Take(), (Strings{"warning|Lodestar Advisor|Topic [New] was not found."}));
}

TEST_F(LocateTopicTest, locate_numberBehindTheTable_wasNotFound)
{
    EXPECT_EQ(Locate("A", 101), " 101 ");
    EXPECT_EQ(Locate("A", -1), " -1 ");
    EXPECT_EQ(world.messages.Take(), (Strings{"warning|Lodestar Advisor|Topic [A] was not found.",
                                              "warning|Lodestar Advisor|Topic [A] was not found."}));
}

TEST_F(LocateTopicTest, locate_fileChangedSinceTheScan_isNoticed)
{
    world.files["/work/Book.IDA"][22] = 'X';
    EXPECT_EQ(Locate("A"), " 1 ");
    EXPECT_EQ(world.messages.Take(), (Strings{"warning|Lodestar Advisor|Error looking up topic: [A]"}));
}

TEST_F(LocateTopicTest, locate_fileTruncatedSinceTheScan_namesTheError)
{
    world.files["/work/Book.IDA"].resize(20);
    EXPECT_EQ(Locate("B"), " 2 ");
    EXPECT_EQ(world.messages.Take(),
              (Strings{"warning|Lodestar Advisor|Failed to fetch topic B due to error #62: "
                       "Input past end of file"}));
}

TEST_F(LocateTopicTest, locate_positionBehind2GiB_isReached)
{
    // A file that reports a huge size. Only the bytes at the requested position exist.
    struct FarFile : BookFile
    {
        FilePos asked = 0;
        FileError ReadAt(FilePos pos, char* buffer, std::size_t size, std::size_t& got) override
        {
            asked = pos;
            const std::string bytes = "[Far]\r\nbehind\r\n";
            got = std::min(size, bytes.size());
            bytes.copy(buffer, got);
            return {};
        }
        FileError Size(FilePos& size) override
        {
            size = FilePos{5} << 30;
            return {};
        }
    };
    auto file = std::make_unique<FarFile>();
    const FarFile& far = *file;
    book.File = std::move(file);
    book.TopicNames(2) = "[Far]";
    book.TopicPos(2) = (FilePos{3} << 30) + 1;
    EXPECT_EQ(Locate("Far"), "Far 2 behind");
    EXPECT_EQ(far.asked, 3221225473);
}

} // namespace
} // namespace ls
