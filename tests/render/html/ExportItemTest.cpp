// The Export command: what it asks, which file it writes, and what it refuses.

#include "render/html/ExportFixture.h"

namespace ls {
namespace {

const std::string Html =
    "<HTML>\r\n<HEAD>\r\n<TITLE>A</TITLE>\r\n</HEAD>\r\n<BODY>\r\n<P>a</P>\r\n</BODY>\r\n</HTML>\r\n";
const std::string Asked = "input|Lodestar Advisor|Filename for export to HTML|Export.htm";

struct ExportItemTest : ExportFixture
{
    void SetUp() override
    {
        ASSERT_TRUE(Scan(BookHeaderLine + "[A]\r\na\r\n"));
        book.CurrentTopicName = "[A]";
        book.CurrentTopicNo = 1;
    }

    // Presses Export with that answer. Returns the boxes after the input box.
    Strings Answer(const std::optional<std::string>& answer)
    {
        world.messages.inputs = {answer};
        ExportItem_Click(book, world.Get());
        Strings boxes = world.messages.Take();
        EXPECT_FALSE(boxes.empty());
        if (!boxes.empty()) {
            EXPECT_EQ(boxes.front(), Asked);
            boxes.erase(boxes.begin());
        }
        return boxes;
    }
};

TEST_F(ExportItemTest, noTopicOnShow_saysSoAndAsksNothing)
{
    book.CurrentTopicName.clear();
    ExportItem_Click(book, world.Get());
    EXPECT_EQ(world.messages.Take(),
              Strings{"warning|Lodestar Advisor|Please display the topic first by choosing "
                      "it from the list and clicking Go."});
}

TEST_F(ExportItemTest, name_getsTheTopicOnShow)
{
    EXPECT_EQ(Answer("Export.htm"), Strings{ExportComplete});
    EXPECT_EQ(world.files["/work/Export.htm"], Html);
    EXPECT_FALSE(world.files.Has("/work/Export.htm.new"));
}

TEST_F(ExportItemTest, emptyAnswerAndCancel_doNothing)
{
    world.files.log.clear();
    EXPECT_EQ(Answer(""), Strings{});
    EXPECT_EQ(Answer(std::nullopt), Strings{});
    EXPECT_EQ(world.files.log, Strings{});
}

TEST_F(ExportItemTest, existingFile_isReplaced)
{
    world.files["/work/Export.htm"] = std::string(1000, 'o');
    EXPECT_EQ(Answer("Export.htm"), Strings{ExportComplete});
    EXPECT_EQ(world.files["/work/Export.htm"], Html);
}

TEST_F(ExportItemTest, openBooksOwnFile_isRefusedHoweverItIsSpelled)
{
    const std::string before = world.files["/work/Book.IDA"];
    for (const std::string name : {"Book.IDA", "/work/Book.IDA"}) {
        EXPECT_EQ(Answer(name), Strings{"warning|Lodestar Advisor|Failed to open <<" + name +
                                        ">> due to error #55: File already open."});
    }
    EXPECT_EQ(world.files["/work/Book.IDA"], before);
}

TEST_F(ExportItemTest, fileThatCannotBeMade_isToldWithNumberAndDescription)
{
    EXPECT_EQ(Answer("/none/Export.htm").size(), 1U) << "a missing folder";
    world.files.fail = [](const std::string& o) {
        return o.starts_with("create ") ? error::PathFileAccess : 0;
    };
    EXPECT_EQ(Answer("/work/x.htm"),
              Strings{"warning|Lodestar Advisor|Failed to open <</work/x.htm>> due to error "
                      "#75: Path/File access error."});
}

TEST_F(ExportItemTest, folderAsName_isRefused)
{
    world.files.AddFolder("/work/sub");
    EXPECT_EQ(Answer("sub"), Strings{"warning|Lodestar Advisor|Failed to open <<sub>> due to error #75: "
                                     "Path/File access error."});
}

TEST_F(ExportItemTest, nameWithQuotesAndAngleBrackets_standsInTheMessageAsItIs)
{
    world.files.fail = [](const std::string& o) {
        return o.starts_with("create ") ? error::PermissionDenied : 0;
    };
    EXPECT_EQ(
        Answer("\"a\" <b> & é.htm"),
        Strings{"warning|Lodestar Advisor|Failed to open <<\"a\" <b> & é.htm>> due to error #70: Permission "
                "denied."});
}

TEST_F(ExportItemTest, fullDisk_keepsTheOldFileAndLeavesNothing)
{
    world.files["/work/Export.htm"] = "old";
    world.files.fail = [](const std::string& o) { return o.starts_with("write ") ? error::DiskFull : 0; };
    EXPECT_EQ(Answer("Export.htm"),
              Strings{"warning|Lodestar Advisor|Failed to write due to error #61: Disk full"});
    EXPECT_EQ(world.files["/work/Export.htm"], "old");
    EXPECT_FALSE(world.files.Has("/work/Export.htm.new"));
}

TEST_F(ExportItemTest, topicThatVanished_leavesAnEmptyFile)
{
    world.files["/work/Book.IDA"] = BookHeaderLine + "[Another]\r\n";
    world.files["/work/Export.htm"] = "old";
    EXPECT_EQ(Answer("Export.htm"), Strings{});
    EXPECT_EQ(world.files["/work/Export.htm"], "");
}

TEST_F(ExportItemTest, bookThatCannotBeRead_keepsTheOldFile)
{
    world.files["/work/Export.htm"] = "old";
    world.files.fail = [](const std::string& o) {
        return o.starts_with("read /work/Book") ? error::DeviceIo : 0;
    };
    EXPECT_EQ(Answer("Export.htm"),
              Strings{"warning|Lodestar Advisor|Failed to fetch topic [A] due to error #57: "
                      "Device I/O error"});
    EXPECT_EQ(world.files["/work/Export.htm"], "old");
}

} // namespace
} // namespace ls
