#include "RecoveryFixture.h"

#include <algorithm>

namespace ls {
namespace {

struct OwnJournalTest : RecoveryFixture
{
    OwnJournal own{Get(), Folder, Names()};

    Journal Standing(int number = 1)
    {
        JournalReading reading;
        EXPECT_EQ(ReadJournal(files, JournalPath(number), reading), FileError{});
        EXPECT_EQ(reading.state, JournalState::Whole);
        return reading.journal;
    }

    std::ptrdiff_t Writes()
    {
        return std::count_if(files.log.begin(), files.log.end(),
                             [](const std::string& is) { return is.starts_with("write"); });
    }
};

TEST_F(OwnJournalTest, interval_keepsEditsInMemoryTwoSecondsAtMost)
{
    EXPECT_EQ(JournalMaxAgeMilliseconds, 2000);
    EXPECT_LE(2 * JournalIntervalMilliseconds, JournalMaxAgeMilliseconds);
}

TEST_F(OwnJournalTest, nothingEdited_writesNothing)
{
    ASSERT_TRUE(OpenThree());
    EXPECT_EQ(own.Update(book, {}, 1), FileError{});
    EXPECT_FALSE(own.Stands());
    EXPECT_EQ(FilesThere(), Strings{});
}

TEST_F(OwnJournalTest, acceptedEdit_standsWithItsTime)
{
    ASSERT_TRUE(OpenThree());
    book.TopicRecs(2).Text = "edited\r\n";
    book.BookChanged = true;
    EXPECT_EQ(own.Update(book, {}, 77), FileError{});
    EXPECT_TRUE(own.Stands());
    EXPECT_EQ(Standing().written, 77);
    EXPECT_EQ(Standing().recs, (std::vector<JournalRec>{{2, "[B]", false, "edited\r\n", ""}}));
    EXPECT_EQ(files[BookPath], ThreeTopics()); // the book itself is never written
}

TEST_F(OwnJournalTest, runningEdit_standsWithoutAnAcceptedOne)
{
    ASSERT_TRUE(OpenThree());
    RunningEdits running;
    running.text = RunningText{1, "[A]", "typing"};
    EXPECT_EQ(own.Update(book, running, 1), FileError{});
    EXPECT_EQ(Standing().running.text, running.text);
    running.text->utf8 += " on";
    EXPECT_EQ(own.Update(book, running, 2), FileError{});
    EXPECT_EQ(Standing().running.text, running.text);
    EXPECT_EQ(own.Update(book, {}, 3), FileError{}); // cancelled
    EXPECT_EQ(FilesThere(), Strings{});
}

TEST_F(OwnJournalTest, nothingNew_isNotWrittenAgain)
{
    ASSERT_TRUE(OpenThree());
    book.BookChanged = true;
    ASSERT_EQ(own.Update(book, {}, 1), FileError{});
    ASSERT_EQ(own.Update(book, {}, 2), FileError{});
    EXPECT_EQ(Writes(), 1);
    EXPECT_EQ(Standing().written, 1);
    book.BookAuthor = "Ben";
    ASSERT_EQ(own.Update(book, {}, 3), FileError{});
    EXPECT_EQ(Writes(), 2);
    EXPECT_EQ(Standing().header->author, "Ben");
}

TEST_F(OwnJournalTest, savedOrGivenUp_journalAndLockGo)
{
    ASSERT_TRUE(OpenThree());
    book.BookChanged = true;
    ASSERT_EQ(own.Update(book, {}, 1), FileError{});
    book.BookChanged = false;
    EXPECT_EQ(own.Update(book, {}, 2), FileError{});
    EXPECT_FALSE(own.Stands());
    EXPECT_EQ(FilesThere(), Strings{});
    book.BookChanged = true; // edited again
    EXPECT_EQ(own.Update(book, {}, 3), FileError{});
    EXPECT_EQ(FilesThere(), (Strings{"j2.journal", "j2.lock"}));
}

TEST_F(OwnJournalTest, cleanEnd_removesIt)
{
    ASSERT_TRUE(OpenThree());
    book.BookChanged = true;
    ASSERT_EQ(own.Update(book, {}, 1), FileError{});
    EXPECT_EQ(own.Remove(), FileError{});
    EXPECT_EQ(FilesThere(), Strings{});
    EXPECT_EQ(own.Remove(), FileError{});
}

TEST_F(OwnJournalTest, endedByAFault_isStillWritten)
{
    ASSERT_TRUE(OpenThree());
    book.BookChanged = true;
    EndProgram(end, "a fault");
    EXPECT_EQ(own.Update(book, {}, 1), FileError{});
    EXPECT_EQ(FilesThere(), (Strings{"j1.journal", "j1.lock"}));
}

TEST_F(OwnJournalTest, plainTextFile_hasNone)
{
    book.BookVersion = 0;
    book.BookChanged = true;
    EXPECT_EQ(own.Update(book, {}, 1), FileError{});
    EXPECT_EQ(FilesThere(), Strings{});
}

TEST_F(OwnJournalTest, noFolder_writesNothingAndSaysSo)
{
    ASSERT_TRUE(OpenThree());
    book.BookChanged = true;
    OwnJournal none(Get(), "", Names());
    const std::size_t before = files.log.size();
    EXPECT_EQ(none.Update(book, {}, 1).number, error::PathNotFound);
    EXPECT_EQ(files.log.size(), before);
    book.BookChanged = false;
    EXPECT_EQ(none.Update(book, {}, 2), FileError{}); // nothing to write
}

TEST_F(OwnJournalTest, anyFault_isToldAndMadeGoodByTheNextCall)
{
    const struct
    {
        const char* operation;
        int number;
    } faults[] = {{"folder", error::PermissionDenied}, {"create", error::DiskFull},
                  {"open", error::DeviceIo},           {"write", error::DiskFull},
                  {"finish", error::DeviceIo},         {"rename", error::DiskFull}};
    ASSERT_TRUE(OpenThree());
    book.BookChanged = true;
    for (const auto& fault : faults) {
        OwnJournal one(Get(), Folder, Names());
        files.fail = [&fault](const std::string& is) {
            return is.starts_with(fault.operation) ? fault.number : 0;
        };
        EXPECT_EQ(one.Update(book, {}, 1).number, fault.number) << fault.operation;
        files.fail = nullptr;
        EXPECT_EQ(one.Update(book, {}, 2), FileError{}) << fault.operation;
        EXPECT_TRUE(one.Stands()) << fault.operation;
        EXPECT_EQ(one.Remove(), FileError{}) << fault.operation;
    }
}

TEST_F(OwnJournalTest, adopted_isWrittenOnUnderItsName)
{
    ASSERT_TRUE(OpenThree());
    book.BookChanged = true;
    {
        OwnJournal killed(Get(), Folder, Names());
        ASSERT_EQ(killed.Update(book, {}, 1), FileError{});
    }
    std::vector<FoundJournal> found = FindJournals(Get(), Folder).journals;
    ASSERT_EQ(found.size(), 1U);
    own.Adopt(std::move(found.front().claim));
    EXPECT_TRUE(FindJournals(Get(), Folder).journals.empty());
    book.BookAuthor = "Ben";
    ASSERT_EQ(own.Update(book, {}, 2), FileError{});
    EXPECT_EQ(Standing().header->author, "Ben");
    book.BookChanged = false;
    ASSERT_EQ(own.Update(book, {}, 3), FileError{});
    EXPECT_EQ(FilesThere(), Strings{});
}

TEST_F(OwnJournalTest, twoPrograms_haveAFileEach)
{
    ASSERT_TRUE(OpenThree());
    book.BookChanged = true;
    OwnJournal other(Get(), Folder, Names());
    ASSERT_EQ(own.Update(book, {}, 1), FileError{});
    ASSERT_EQ(other.Update(book, {}, 2), FileError{});
    EXPECT_EQ(FilesThere(), (Strings{"j1.journal", "j1.lock", "j2.journal", "j2.lock"}));
    EXPECT_EQ(other.Remove(), FileError{});
    EXPECT_EQ(Standing().written, 1);
}

} // namespace
} // namespace ls
