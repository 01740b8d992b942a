#include "book/WriteBook.h"

#include "book/BookFixture.h"
#include "book/SaveBook.h"
#include "support/RowName.h"
#include "support/StepProgress.h"

namespace ls {
namespace {

struct WriteBookTest : BookFixture
{
    // Saves the open book as "/work/Out.IDA" and returns its bytes; empty if there is no such file.
    std::string Save(Progress* progress = nullptr)
    {
        outcome = SaveBook(book, world.Get(), "/work/Out.IDA", progress);
        return world.files.Has("/work/Out.IDA") ? world.files["/work/Out.IDA"] : std::string();
    }

    WriteOutcome outcome = WriteOutcome::Failed;
};

struct CopyCase
{
    const char* name;
    const char* body; ///< the text after the header line
    const char* saved;
};

struct CopyTable : WriteBookTest, testing::WithParamInterface<CopyCase>
{
};

TEST_P(CopyTable, save_unedited_copiesTopics)
{
    ASSERT_TRUE(Scan(std::string("LODESTAR BOOK V5.3\r\n") + GetParam().body));
    const std::string saved = Save();
    EXPECT_EQ(saved, std::string("LODESTAR BOOK V5.3\r\n") + GetParam().saved);
    EXPECT_EQ(outcome, WriteOutcome::Written);
    EXPECT_TRUE(world.messages.boxes.empty());
    EXPECT_FALSE(world.files.Has("/work/Out.IDA.part"));
}

const CopyCase CopyCases[] = {
    {"bodiesXrefsAndLogic",
     "[A]\r\na \r\n<XREF TOPIC=B>n\r\nm</XREF>\r\n[B]\r\n<IXML>\r\n<LOGIC>\r\n</IXML>\r\n",
     "[A]\r\na \r\n<XREF TOPIC=B>n\r\nm</XREF>\r\n[B]\r\n<IXML>\r\n<LOGIC>\r\n</IXML>\r\n"},
    {"crAlone_becomesCrLf", "[A]\ra\r[B]\rb", "[A]\r\na\r\n[B]\r\nb\r\n"},
    {"loneLf_stays", "[A]\r\na\nb\r\n", "[A]\r\na\nb\r\n"},
    {"eof_isNotWritten", "[A]\r\na\r\n[EOF]\r\n[B]\r\n", "[A]\r\na\r\n"},
    {"headerBlanks_areCopied", "[A]  \r\na\r\n", "[A]  \r\na\r\n"},
    {"bracketLineThatIsNoHeader_isKept", "[A]\r\n[]\r\na\r\n[B]\r\n", "[A]\r\n[]\r\na\r\n[B]\r\n"},
    {"headerInsideANote_isKept", "[A]\r\n<XREF TOPIC=B>n\r\n[C]\r\n</XREF>\r\n[B]\r\n",
     "[A]\r\n<XREF TOPIC=B>n\r\n[C]\r\n</XREF>\r\n[B]\r\n"},
    {"textBeforeTheFirstTopic_isDropped", "x\r\n[A]\r\n", "[A]\r\n"},
    {"highBytes_survive", "[\xE9]\r\n\x80\x9F\xFF\r\n", "[\xE9]\r\n\x80\x9F\xFF\r\n"},
};

INSTANTIATE_TEST_SUITE_P(Books, CopyTable, testing::ValuesIn(CopyCases), test::RowName());

TEST_F(WriteBookTest, save_header_isWrittenAnew)
{
    ASSERT_TRUE(Scan("lodestar book V4.5 /POST=yes /AUTHOR=A /URL=\"http://u\"\r\n[A]\r\n"));
    EXPECT_EQ(Save(), "LODESTAR BOOK V5.3 /AUTHOR=\"A\" /URL=\"http://u\" /POST=\"YES\"\r\n[A]\r\n");
}

TEST_F(WriteBookTest, save_deletedTopic_isNotWritten)
{
    ASSERT_TRUE(Scan("LODESTAR BOOK V5.3\r\n[A]\r\na\r\n[B]\r\nb\r\n[C]\r\nc\r\n"));
    book.TopicRecs(2).Deleted = true;
    EXPECT_EQ(Save(), "LODESTAR BOOK V5.3\r\n[A]\r\na\r\n[C]\r\nc\r\n");
}

TEST_F(WriteBookTest, save_editedTopic_gainsAnEmptyLineAfterTextAndLogic)
{
    ASSERT_TRUE(Scan("LODESTAR BOOK V5.3\r\n[A]\r\nold\r\n[B]\r\nb\r\n"));
    book.TopicRecs(1).Text = "new\r\n";
    book.TopicRecs(1).Logic = "<IXML>\r\n<LOGIC>\r\n";
    EXPECT_EQ(Save(), "LODESTAR BOOK V5.3\r\n[A]\r\nnew\r\n\r\n<IXML>\r\n<LOGIC>\r\n\r\n[B]\r\nb\r\n");
}

TEST_F(WriteBookTest, save_editedTopicWithTheTitleOfTheEndLine_doesNotEndTheBook)
{
    ASSERT_TRUE(Scan("LODESTAR BOOK V5.3\r\n[EOF] \r\na\r\n[B]\r\nb\r\n"));
    ASSERT_EQ(book.TopicCount, 2);
    book.TopicRecs(1).Text = "new\r\n";
    EXPECT_EQ(Save(), "LODESTAR BOOK V5.3\r\n[EOF] \r\nnew\r\n\r\n[B]\r\nb\r\n");
}

TEST_F(WriteBookTest, save_editedTopicWithoutATitle_keepsTheBlankThatMakesItATopic)
{
    ASSERT_TRUE(Scan("LODESTAR BOOK V5.3\r\n[] \r\na\r\n[B]\r\nb\r\n"));
    ASSERT_EQ(book.TopicCount, 2);
    book.TopicRecs(1).Text = "new\r\n";
    EXPECT_EQ(Save(), "LODESTAR BOOK V5.3\r\n[] \r\nnew\r\n\r\n[B]\r\nb\r\n");
}

TEST_F(WriteBookTest, save_editedTopicWhoseLogicWasRemoved_hasNone)
{
    ASSERT_TRUE(Scan("LODESTAR BOOK V5.3\r\n[A]\r\nold\r\n<IXML>\r\n<LOGIC>\r\nx\r\n[B]\r\nb\r\n"));
    book.TopicRecs(1).Text = "new\r\n";
    EXPECT_EQ(Save(), "LODESTAR BOOK V5.3\r\n[A]\r\nnew\r\n\r\n[B]\r\nb\r\n");
}

TEST_F(WriteBookTest, save_editedTextWithABlockThatWasNotTaken_keepsTheBlock)
{
    ASSERT_TRUE(Scan("LODESTAR BOOK V5.3\r\n[A]\r\nold\r\n<ixml>\r\n\r\n<LOGIC>\r\nx\r\n[B]\r\nb\r\n"));
    book.TopicRecs(1).Text = "new\r\n";
    EXPECT_EQ(Save(), "LODESTAR BOOK V5.3\r\n[A]\r\nnew\r\n\r\n<ixml>\r\n\r\n<LOGIC>\r\nx\r\n[B]\r\nb\r\n");
}

TEST_F(WriteBookTest, save_blockCutBehindItsFirstLine_isKept)
{
    ASSERT_TRUE(Scan("LODESTAR BOOK V5.3\r\n[A]\r\nold\r\n<IXML>\r\n[B]\r\nb\r\n"));
    book.TopicRecs(1).Text = "new\r\n";
    EXPECT_EQ(Save(), "LODESTAR BOOK V5.3\r\n[A]\r\nnew\r\n\r\n<IXML>\r\n[B]\r\nb\r\n");
}

TEST_F(WriteBookTest, save_topicAddedInMemory_isWrittenFromMemory)
{
    ASSERT_TRUE(Scan("LODESTAR BOOK V5.3\r\n[A]\r\na\r\n"));
    book.TopicCount = 3;
    book.TopicNames(2) = "[New]";
    book.TopicNames(3) = "[Empty]";
    book.TopicRecs(2).Text = "n\r\n";
    EXPECT_EQ(Save(), "LODESTAR BOOK V5.3\r\n[A]\r\na\r\n[New]\r\nn\r\n\r\n[Empty]\r\n");
}

TEST_F(WriteBookTest, save_newBookWithoutAFile_isWrittenFromMemory)
{
    book.TopicCount = 1;
    book.TopicNames(1) = "[New]";
    book.TopicRecs(1).Text = "n\r\n";
    EXPECT_EQ(Save(), "LODESTAR BOOK V5.3\r\n[New]\r\nn\r\n\r\n");
}

TEST_F(WriteBookTest, save_movedTopics_areWrittenInTableOrder)
{
    ASSERT_TRUE(Scan("LODESTAR BOOK V5.3\r\n[A]\r\na\r\n[B]\r\nb\r\n[C]\r\nc\r\n"));
    std::swap(book.TopicNames(1), book.TopicNames(3));
    std::swap(book.TopicPos(1), book.TopicPos(3));
    EXPECT_EQ(Save(), "LODESTAR BOOK V5.3\r\n[C]\r\nc\r\n[B]\r\nb\r\n[A]\r\na\r\n");
}

TEST_F(WriteBookTest, save_existingName_refusesAndKeepsBoth)
{
    ASSERT_TRUE(Scan("LODESTAR BOOK V5.3\r\n[A]\r\na\r\n"));
    world.files["/work/Out.IDA"] = "kept";
    EXPECT_EQ(Save(), "kept");
    EXPECT_EQ(outcome, WriteOutcome::Failed);
    EXPECT_EQ(world.messages.Take(),
              (Strings{"warning|Lodestar Advisor|Failed to write due to error #58: File already exists"}));
    EXPECT_EQ(world.files["/work/Out.IDA.part"], "LODESTAR BOOK V5.3\r\n[A]\r\na\r\n");
}

TEST_F(WriteBookTest, save_existingPart_isNotTouchedAndInNobodysWay)
{
    ASSERT_TRUE(Scan("LODESTAR BOOK V5.3\r\n[A]\r\na\r\n"));
    world.files["/work/Out.IDA.part"] = "kept";
    world.files["/work/Out.IDA.part2"] = "kept, too";
    EXPECT_EQ(Save(), "LODESTAR BOOK V5.3\r\n[A]\r\na\r\n");
    EXPECT_EQ(world.messages.Take(), Strings{});
    EXPECT_EQ(world.files["/work/Out.IDA.part"], "kept");
    EXPECT_EQ(world.files["/work/Out.IDA.part2"], "kept, too");
    EXPECT_FALSE(world.files.Has("/work/Out.IDA.part3"));
}

TEST_F(WriteBookTest, save_cancelled_removesThePart)
{
    ASSERT_TRUE(Scan("LODESTAR BOOK V5.3\r\n[A]\r\n" + std::string(3000000, 'x') + "\r\n[B]\r\n"));
    test::StepProgress progress(1);
    EXPECT_EQ(Save(&progress), "");
    EXPECT_EQ(outcome, WriteOutcome::Cancelled);
    EXPECT_FALSE(world.files.Has("/work/Out.IDA.part"));
    EXPECT_TRUE(world.messages.boxes.empty());
    EXPECT_EQ(progress.steps, 1);
}

} // namespace
} // namespace ls
