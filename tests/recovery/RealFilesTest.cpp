// Journals in real files of the system that runs the test.

#include "RealFilesFixture.h"

namespace ls {
namespace {

using RealFilesTest = RealFilesFixture;

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
    EXPECT_EQ(Entries(), Strings{});
}

TEST_F(RealFilesTest, editsThatWereSaved_leaveNothing)
{
    OwnJournal own(Get(), folder);
    ASSERT_EQ(own.Update(book, {}, 1), FileError{});
    EXPECT_EQ(Entries().size(), 2U);
    EXPECT_EQ(own.Remove(), FileError{});
    EXPECT_EQ(Entries(), Strings{});
}

} // namespace
} // namespace ls
