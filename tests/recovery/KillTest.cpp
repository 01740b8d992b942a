// Programs killed at any moment, with real files.

#include "RealFilesFixture.h"

#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <random>
#include <thread>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace ls {
namespace {

struct KillTest : RealFilesFixture
{
    /// The child program: types without a pause. After it writes the journal of an edit, it writes the edit's
    /// number to `told`.
    [[noreturn]] void Edit(int told)
    {
        OwnJournal own(Get(), folder);
        for (std::int64_t edit = 1;; ++edit) {
            book.TopicRecs(1).Text = std::string(static_cast<std::size_t>(1000 + edit % 5000), 'x');
            const bool written = own.Update(book, {}, edit).Ok();
            if (!written || ::write(told, &edit, sizeof edit) != sizeof edit) {
                ::_exit(1);
            }
        }
    }

    /// Starts the child program and kills it after that time. Returns the last edit that it reported.
    std::int64_t EditAndKill(std::chrono::microseconds after)
    {
        int ends[2] = {};
        EXPECT_EQ(::pipe(ends), 0);
        const pid_t child = ::fork();
        if (child == 0) {
            ::close(ends[0]);
            Edit(ends[1]);
        }
        ::close(ends[1]);
        std::int64_t seen = 0;
        EXPECT_EQ(::read(ends[0], &seen, sizeof seen), static_cast<ssize_t>(sizeof seen));
        std::this_thread::sleep_for(after);
        ::kill(child, SIGKILL);
        int status = 0;
        ::waitpid(child, &status, 0);
        EXPECT_TRUE(WIFSIGNALED(status));
        for (std::int64_t next = 0;
             ::read(ends[0], &next, sizeof next) == static_cast<ssize_t>(sizeof next);) {
            seen = next;
        }
        ::close(ends[0]);
        return seen;
    }
};

TEST_F(KillTest, killedAtAnyMoment_nothingThatWasSeenIsLost)
{
    constexpr int rounds = 25;
    const unsigned seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 chance(seed);
    for (int round = 1; round <= rounds; ++round) {
        const std::int64_t seen = EditAndKill(std::chrono::microseconds(chance() % 20000));
        std::vector<FoundJournal> found = FindJournals(Get(), folder).journals;
        ASSERT_EQ(found.size(), 1U) << round;
        const JournalReading& reading = found.front().reading;
        EXPECT_EQ(reading.state, JournalState::Whole);
        const std::int64_t kept = reading.journal.written;
        EXPECT_TRUE(kept == seen || kept == seen + 1) << kept << " " << seen;
        ASSERT_EQ(reading.journal.recs.size(), 1U);
        EXPECT_EQ(reading.journal.recs.front().text.size(), static_cast<std::size_t>(1000 + kept % 5000));
        EXPECT_EQ(found.front().claim->Remove(), FileError{});
        EXPECT_EQ(Entries(), Strings{});
    }
}

TEST_F(KillTest, folderRemovedMeanwhile_isMadeAgain)
{
    OwnJournal own(Get(), folder);
    ASSERT_EQ(own.Update(book, {}, 1), FileError{});
    std::filesystem::remove_all(scratch / "state");
    book.TopicRecs(1).Text = "edited\r\n";
    EXPECT_EQ(own.Update(book, {}, 2), FileError{});
    EXPECT_TRUE(own.InPlace());
    EXPECT_TRUE(own.Remove().Ok());
}

TEST_F(KillTest, journalAndItsFolder_areForThisUserOnly)
{
    const mode_t mask = ::umask(0);
    OwnJournal own(Get(), folder);
    EXPECT_EQ(own.Update(book, {}, 1), FileError{});
    ::umask(mask);
    const Strings entries = Entries();
    ASSERT_EQ(entries.size(), 2U);
    for (const std::string& entry : entries) {
        EXPECT_EQ(std::filesystem::status(folder + "/" + entry).permissions(),
                  std::filesystem::perms::owner_read | std::filesystem::perms::owner_write)
            << entry;
    }
    EXPECT_EQ(std::filesystem::status(folder).permissions(), std::filesystem::perms::owner_all);
}

TEST_F(KillTest, hugeJournal_isToldAndStays)
{
    ASSERT_EQ(files->MakeFolder(folder), FileError{});
    std::ofstream(folder + "/huge.journal") << "LODESTAR RECOVERY JOURNAL 1\n";
    std::filesystem::resize_file(folder + "/huge.journal", MostJournalBytes + 1); // takes no room on the disk
    const JournalSearch search = FindJournals(Get(), folder);
    EXPECT_TRUE(search.journals.empty());
    EXPECT_EQ(search.notes, Strings{"The recovery journal <<" + folder +
                                    "/huge.journal>> is too large to be read. It stays where it is."});
    EXPECT_TRUE(std::filesystem::exists(folder + "/huge.journal"));
}

} // namespace
} // namespace ls
