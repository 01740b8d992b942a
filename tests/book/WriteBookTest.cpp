#include "book/WriteBook.h"

#include "base/Progress.h"
#include "book/BookFixture.h"
#include "book/SaveBook.h"

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

void PrintTo(const CopyCase& row, std::ostream* out)
{
    *out << row.name;
}

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

std::string CopyCaseName(const testing::TestParamInfo<CopyCase>& info)
{
    return info.param.name;
}

INSTANTIATE_TEST_SUITE_P(Books, CopyTable, testing::ValuesIn(CopyCases), CopyCaseName);

TEST_F(WriteBookTest, save_header_isWrittenAnew)
{
    ASSERT_TRUE(Scan("lodestar book V4.5 /POST=yes /AUTHOR=A /URL=\"http://u\"\r\n[A]\r\n"));
    EXPECT_EQ(Save(), "LODESTAR BOOK V5.3 /AUTHOR=\"A\" /URL=\"http://u\" /POST=\"YES\"\r\n[A]\r\n");
}

TEST_F(WriteBookTest, save_twice_isTheSameFromTheSecondTimeOn)
{
    ASSERT_TRUE(Scan("LODESTAR BOOK V5.0 /URL=u\r\nlost\r\n[A]\ra\r[B]\r\n[EOF]\r\nlost"));
    const std::string once = Save();
    world.files.RemoveIfPossible("/work/Out.IDA");
    ResetBook(book);
    ASSERT_TRUE(Scan(once));
    EXPECT_EQ(Save(), once);
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

TEST_F(WriteBookTest, save_headerLineThatMoved_stopsAndKeepsThePart)
{
    ASSERT_TRUE(Scan("LODESTAR BOOK V5.3\r\n[A]\r\na\r\n[B]\r\nb\r\n"));
    world.files["/work/Book.IDA"][29] = 'X';
    EXPECT_EQ(Save(), "");
    EXPECT_EQ(outcome, WriteOutcome::Failed);
    EXPECT_EQ(world.messages.Take(), (Strings{"warning|Lodestar Advisor|Error looking up topic: [B]"}));
    EXPECT_TRUE(world.files.Has("/work/Out.IDA.part"));
}

TEST_F(WriteBookTest, save_inputCutShort_stopsWithTheReadError)
{
    ASSERT_TRUE(Scan("LODESTAR BOOK V5.3\r\n[A]\r\na\r\n[B]\r\nb\r\n"));
    world.files["/work/Book.IDA"].resize(31);
    EXPECT_EQ(Save(), "");
    EXPECT_EQ(
        world.messages.Take(),
        (Strings{"warning|Lodestar Advisor|Failed to read original text due to error #62: Input past end of "
                 "file"}));
}

TEST_F(WriteBookTest, save_readError_namesIt)
{
    ASSERT_TRUE(Scan("LODESTAR BOOK V5.3\r\n[A]\r\na\r\n"));
    world.files.fail = [](const std::string& operation) {
        return operation.starts_with("read") ? error::DeviceIo : 0;
    };
    EXPECT_EQ(Save(), "");
    EXPECT_EQ(
        world.messages.Take(),
        (Strings{
            "warning|Lodestar Advisor|Failed to read original text due to error #57: Device I/O error"}));
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

// Each operation on the output fails in turn. There is never a file under the final name, there is one
// message, and the book in memory does not change.
TEST_F(WriteBookTest, save_outputFailingAtEachCall_neverLeavesHalfABook)
{
    std::string bytes = "LODESTAR BOOK V5.3\r\n";
    for (int i = 0; i < 40; ++i) {
        bytes += "[T" + std::to_string(i) + "]\r\n" + std::string(40000, 'x') + "\r\n";
    }
    ASSERT_TRUE(Scan(bytes));
    book.TopicRecs(3).Text = "edited\r\n";
    int failAt = 1;
    for (;; ++failAt) {
        int calls = 0;
        world.files.fail = [&calls, failAt](const std::string& operation) {
            return !operation.starts_with("read") && ++calls == failAt ? error::DiskFull : 0;
        };
        const std::string saved = Save();
        world.files.fail = nullptr;
        world.files.RemoveIfPossible("/work/Out.IDA.part");
        if (outcome == WriteOutcome::Written) {
            EXPECT_EQ(saved.size(), bytes.size() - 40000 + 8);
            break;
        }
        ASSERT_EQ(saved, "") << failAt;
        ASSERT_EQ(
            world.messages.Take(),
            (Strings{failAt == 1
                         ? "warning|Lodestar Advisor|Failed to open output file due to error #61: Disk full"
                         : "warning|Lodestar Advisor|Failed to write due to error #61: Disk full"}))
            << failAt;
        ASSERT_EQ(book.TopicRecs(3).Text, "edited\r\n");
        ASSERT_EQ(book.TopicCount, 40);
    }
    EXPECT_GT(failAt, 6) << "several writes were made to fail";
}

struct StepProgress : Progress
{
    explicit StepProgress(int cancelAt) : m_cancelAt(cancelAt) {}
    bool Step(std::int64_t done, std::int64_t total) override
    {
        EXPECT_LE(done, total);
        return ++steps != m_cancelAt;
    }
    int steps = 0;

private:
    int m_cancelAt;
};

TEST_F(WriteBookTest, save_cancelled_removesThePart)
{
    ASSERT_TRUE(Scan("LODESTAR BOOK V5.3\r\n[A]\r\n" + std::string(3000000, 'x') + "\r\n[B]\r\n"));
    StepProgress progress(1);
    EXPECT_EQ(Save(&progress), "");
    EXPECT_EQ(outcome, WriteOutcome::Cancelled);
    EXPECT_FALSE(world.files.Has("/work/Out.IDA.part"));
    EXPECT_TRUE(world.messages.boxes.empty());
    EXPECT_EQ(progress.steps, 1);
}

} // namespace
} // namespace ls
