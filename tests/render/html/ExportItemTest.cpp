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

} // namespace
} // namespace ls
