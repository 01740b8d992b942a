// Another program changes the open book's file between the scan and a save.

#include "book/BookFixture.h"
#include "book/SaveBook.h"

namespace ls {
namespace {

struct InputChanged : BookFixture
{
    void SetUp() override { ASSERT_TRUE(Scan(Bytes)); }

    // Saves while the file holds `changed`. True if the save reports success.
    bool Saves(const std::string& changed)
    {
        world.files["/work/Book.IDA"] = changed;
        world.files.RemoveIfPossible("/work/Out.IDA.part");
        world.files.RemoveIfPossible("/work/Out.IDA");
        const bool saved = SaveBook(book, world.Get(), "/work/Out.IDA") == WriteOutcome::Written;
        EXPECT_EQ(world.files.Has("/work/Out.IDA"), saved);
        boxes = world.messages.Take();
        EXPECT_EQ(boxes.size(), saved ? 0U : 1U);
        EXPECT_EQ(book.TopicCount, 3);
        return saved;
    }

    const std::string Bytes = test::CrLf({"LODESTAR BOOK V5.3", "[A]", "one", "<XREF TOPIC=B>", "n</XREF>",
                                          "[B]", "<IXML>", "<LOGIC>", "[C]", "last"});
    Strings boxes;
};

TEST_F(InputChanged, save_cutAnywhere_isNeverCalledSaved)
{
    for (std::size_t size = 0; size < Bytes.size(); ++size) {
        EXPECT_FALSE(Saves(Bytes.substr(0, size))) << size;
    }
    EXPECT_TRUE(Saves(Bytes));
}

TEST_F(InputChanged, save_cutInsideATopic_isAReadError)
{
    Saves(Bytes.substr(0, Bytes.find("one") + 1));
    EXPECT_EQ(
        boxes,
        Strings{"warning|Lodestar Advisor|Failed to read original text due to error #62: Input past end of "
                "file"});
}

TEST_F(InputChanged, save_byteAddedAnywhere_isNeverCalledSaved)
{
    for (std::size_t at = 0; at < Bytes.size(); ++at) {
        EXPECT_FALSE(Saves(Bytes.substr(0, at) + "x" + Bytes.substr(at))) << at;
    }
}

TEST_F(InputChanged, save_byteRemovedAnywhere_isNeverCalledSaved)
{
    for (std::size_t at = 0; at < Bytes.size(); ++at) {
        EXPECT_FALSE(Saves(Bytes.substr(0, at) + Bytes.substr(at + 1))) << at;
    }
}

TEST_F(InputChanged, save_lineAddedToTheLastTopic_namesIt)
{
    EXPECT_FALSE(Saves(Bytes.substr(0, Bytes.size() - 2) + " word\r\n"));
    EXPECT_EQ(boxes, Strings{"warning|Lodestar Advisor|Error looking up topic: [C]"});
}

TEST_F(InputChanged, save_titleReplaced_namesTheOldOne)
{
    std::string changed = Bytes;
    changed.replace(changed.find("[B]"), 3, "[X]");
    EXPECT_FALSE(Saves(changed));
    EXPECT_EQ(boxes, Strings{"warning|Lodestar Advisor|Error looking up topic: [B]"});
}

TEST_F(InputChanged, save_wroteBehindTheBook_isSavedAsItWasScanned)
{
    EXPECT_TRUE(Saves(Bytes + "[D]\r\nnew\r\n"));
    EXPECT_EQ(world.files["/work/Out.IDA"], Bytes);
}

TEST_F(InputChanged, save_changedTopicThatWasEdited_doesNotMatter)
{
    book.TopicRecs(3).Text = "edited\r\n";
    book.TopicRecs(3).Logic = "<IXML>\r\n<LOGIC>\r\n";
    EXPECT_TRUE(Saves(Bytes.substr(0, Bytes.size() - 6)));
}

} // namespace
} // namespace ls
