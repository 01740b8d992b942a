// Journals in real files of the system that the test runs on.

#include "RecoveryFixture.h"
#include "platform/SystemSeams.h"
#include "support/ScratchFolder.h"

namespace ls {
namespace {

struct RealFilesTest : testing::Test
{
    test::ScratchFolder scratch;
    std::unique_ptr<FileSystem> files = MakeFileSystem();
    ProgramEnd end;
    test::RecordingMessages messages{end};
    test::RecordingProcesses processes;
    std::string folder = JoinPath(NativePaths(), scratch / "state", "lodestar-advisor");
    Book book;

    [[nodiscard]] Seams Get() { return {*files, messages, processes, end, NativePaths()}; }

    void SetUp() override { ASSERT_TRUE(AddTopic(book, "One")); }

    [[nodiscard]] std::size_t Entries()
    {
        std::vector<FolderEntry> entries;
        EXPECT_TRUE(files->List(folder, entries).Ok());
        return entries.size();
    }
};

TEST_F(RealFilesTest, runningProgram_keepsItsJournalToItself)
{
    auto own = std::make_unique<OwnJournal>(Get(), folder);
    ASSERT_EQ(own->Update(book, {}, 1), FileError{});
    EXPECT_TRUE(FindJournals(Get(), folder).journals.empty());
    own.reset();
    EXPECT_EQ(FindJournals(Get(), folder).journals.size(), 1U);
}

TEST_F(RealFilesTest, journalOfAnEndedProgram_holdsTheLastEdit)
{
    {
        OwnJournal own(Get(), folder);
        ASSERT_EQ(own.Update(book, {}, 1), FileError{});
        book.TopicRecs(1).Text = "edited\r\n";
        ASSERT_EQ(own.Update(book, {}, 2), FileError{});
    }
    const JournalSearch search = FindJournals(Get(), folder);
    EXPECT_EQ(search.notes, Strings{});
    ASSERT_EQ(search.journals.size(), 1U);
    const JournalReading& reading = search.journals.front().reading;
    EXPECT_EQ(reading.state, JournalState::Whole);
    EXPECT_EQ(reading.journal.written, 2);
    ASSERT_EQ(reading.journal.recs.size(), 1U);
    EXPECT_EQ(reading.journal.recs.front().text, "edited\r\n");
    EXPECT_EQ(search.journals.front().claim->Remove(), FileError{});
    EXPECT_EQ(Entries(), 0U);
}

TEST_F(RealFilesTest, editsThatWereSaved_leaveNothing)
{
    OwnJournal own(Get(), folder);
    ASSERT_EQ(own.Update(book, {}, 1), FileError{});
    EXPECT_EQ(Entries(), 2U);
    EXPECT_EQ(own.Remove(), FileError{});
    EXPECT_EQ(Entries(), 0U);
}

} // namespace
} // namespace ls
