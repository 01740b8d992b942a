#include "RecoveryFixture.h"

namespace ls {
namespace {

struct FindJournalsTest : RecoveryFixture
{
    FindJournalsTest() { files.AddFolder(Folder); }

    void Leave(const std::string& name, const std::string& bytes)
    {
        files[Folder + ("/" + name + ".journal")] = bytes;
        files[Folder + ("/" + name + ".lock")];
    }

    static std::string Written(std::int64_t when)
    {
        Journal journal = FullJournal();
        journal.written = when;
        return JournalText(journal);
    }

    [[nodiscard]] std::vector<std::int64_t> Found()
    {
        std::vector<std::int64_t> times;
        const JournalSearch search = FindJournals(Get(), Folder);
        for (const FoundJournal& found : search.journals) {
            times.push_back(found.reading.journal.written);
        }
        notes = search.notes;
        return times;
    }

    Strings notes; ///< of the last search
    using Times = std::vector<std::int64_t>;
};

TEST_F(FindJournalsTest, leftJournals_areFoundNewestFirst)
{
    Leave("a", Written(2));
    Leave("b", Written(3));
    Leave("c", Written(1));
    EXPECT_EQ(Found(), (Times{3, 2, 1}));
    EXPECT_EQ(Found(), (Times{3, 2, 1})); // the answer "Later": they stay and are unlocked again
}

TEST_F(FindJournalsTest, noFolderOrEmptyOne_hasNone)
{
    EXPECT_TRUE(FindJournals(Get(), "/none").journals.empty());
    EXPECT_TRUE(FindJournals(Get(), Folder).journals.empty());
}

TEST_F(FindJournalsTest, journalOfARunningProgram_isNotOffered)
{
    ASSERT_TRUE(OpenThree());
    book.BookChanged = true;
    OwnJournal running(Get(), Folder, Names());
    ASSERT_EQ(running.Update(book, {}, 5), FileError{});
    EXPECT_EQ(Found(), Times{});
    EXPECT_EQ(FilesThere(), (Strings{"j1.journal", "j1.lock"}));
}

TEST_F(FindJournalsTest, programEnded_itsJournalIsOffered)
{
    ASSERT_TRUE(OpenThree());
    book.BookChanged = true;
    {
        OwnJournal killed(Get(), Folder, Names());
        ASSERT_EQ(killed.Update(book, {}, 5), FileError{});
    }
    EXPECT_EQ(Found(), Times{5});
}

TEST_F(FindJournalsTest, offeredByAnotherProgram_isNotOfferedTwice)
{
    Leave("a", Written(1));
    const std::vector<FoundJournal> first = FindJournals(Get(), Folder).journals;
    ASSERT_EQ(first.size(), 1U);
    EXPECT_EQ(Found(), Times{});
}

TEST_F(FindJournalsTest, lockFileMissing_isOfferedOnce)
{
    files[JournalPath()] = Written(1);
    const std::vector<FoundJournal> first = FindJournals(Get(), Folder).journals;
    ASSERT_EQ(first.size(), 1U);
    EXPECT_EQ(Found(), Times{});
}

TEST_F(FindJournalsTest, lockFileMissingAndCannotBeMade_isOfferedAllTheSame)
{
    files[JournalPath()] = Written(1);
    files.fail = [](const std::string& is) { return is.starts_with("create") ? error::PermissionDenied : 0; };
    EXPECT_EQ(Found(), Times{1});
}

TEST_F(FindJournalsTest, discard_takesAllItsFilesAway)
{
    Leave("a", Written(1));
    files[Folder + std::string("/a.journal.new")] = "half";
    for (const FoundJournal& found : FindJournals(Get(), Folder).journals) {
        EXPECT_EQ(found.claim->Remove(), FileError{});
    }
    EXPECT_EQ(FilesThere(), Strings{});
}

TEST_F(FindJournalsTest, discardFails_journalAndHoldStay)
{
    Leave("a", Written(1));
    const std::vector<FoundJournal> found = FindJournals(Get(), Folder).journals;
    ASSERT_EQ(found.size(), 1U);
    files.fail = [](const std::string& is) { return is.starts_with("remove") ? error::PermissionDenied : 0; };
    EXPECT_EQ(found.front().claim->Remove().number, error::PermissionDenied);
    files.fail = nullptr;
    EXPECT_EQ(Found(), Times{});
    EXPECT_EQ(FilesThere(), (Strings{"a.journal", "a.lock"}));
}

TEST_F(FindJournalsTest, locksAndHalvesWithoutJournal_areClearedAway)
{
    files[Folder + std::string("/a.lock")];
    files[Folder + std::string("/b.journal.new")] = "half";
    files[Folder + std::string("/other.txt")] = "kept";
    EXPECT_EQ(Found(), Times{});
    EXPECT_EQ(FilesThere(), Strings{"other.txt"});
}

TEST_F(FindJournalsTest, damagedJournal_isOfferedAsThat)
{
    Leave("a", JournalText(FullJournal()).substr(0, 300));
    const std::vector<FoundJournal> found = FindJournals(Get(), Folder).journals;
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found.front().reading.state, JournalState::Damaged);
    EXPECT_EQ(found.front().claim->KeepDamaged(), FileError{});
    EXPECT_TRUE(files.Has(Folder + std::string("/a.damaged")));
}

TEST_F(FindJournalsTest, nothingInIt_isPutAside)
{
    Leave("a", "no journal at all");
    EXPECT_EQ(Found(), Times{});
    EXPECT_EQ(FilesThere(), Strings{"a.damaged"});
    EXPECT_EQ(files[Folder + std::string("/a.damaged")], "no journal at all");
    EXPECT_EQ(notes,
              Strings{"The recovery journal <</home/state/lodestar-advisor/a.journal>> is damaged, and "
                      "nothing in it can be read. It is called "
                      "<</home/state/lodestar-advisor/a.damaged>> now."});
    EXPECT_EQ(Found(), Times{});
    EXPECT_EQ(notes, Strings{}); // reported only once
}

TEST_F(FindJournalsTest, nothingInItAndNoRoomToPutItAside_staysWhereItIs)
{
    Leave("a", "no journal at all");
    files.fail = [](const std::string& is) { return is.starts_with("write") ? error::DiskFull : 0; };
    EXPECT_EQ(Found(), Times{});
    EXPECT_EQ(notes,
              Strings{"The recovery journal <</home/state/lodestar-advisor/a.journal>> is damaged, and "
                      "nothing in it can be read. It stays where it is."});
    EXPECT_EQ(files[Folder + std::string("/a.journal")], "no journal at all");
}

TEST_F(FindJournalsTest, journalOrFolderThatCannotBeRead_isToldAndStays)
{
    Leave("a", Written(1));
    files.fail = [](const std::string& is) {
        return is.starts_with("open") && is.ends_with(".journal") ? error::PermissionDenied : 0;
    };
    EXPECT_EQ(Found(), Times{});
    EXPECT_EQ(notes, Strings{"The recovery journal <</home/state/lodestar-advisor/a.journal>> cannot be read "
                             "due to error #70: Permission denied. It stays where it is."});
    files.fail = [](const std::string& is) { return is.starts_with("list") ? error::PermissionDenied : 0; };
    EXPECT_EQ(Found(), Times{});
    EXPECT_EQ(notes, Strings{"The recovery journals in <</home/state/lodestar-advisor>> cannot be looked for "
                             "due to error #70: Permission denied."});
    files.fail = nullptr;
    EXPECT_EQ(Found(), Times{1});
    EXPECT_EQ(notes, Strings{});
}

TEST_F(FindJournalsTest, laterVersion_staysAsItIs)
{
    Leave("a", "LODESTAR RECOVERY JOURNAL 2\nwho knows");
    EXPECT_EQ(Found(), Times{});
    EXPECT_EQ(
        notes,
        Strings{"The recovery journal <</home/state/lodestar-advisor/a.journal>> was written by a later "
                "version of Lodestar Advisor, and only that can recover it. It stays where it is."});
    EXPECT_EQ(FilesThere(), (Strings{"a.journal", "a.lock"}));
}

TEST_F(FindJournalsTest, anyFault_losesNoJournal)
{
    for (const char* operation : {"list", "open", "read", "create", "rename", "remove"}) {
        Leave("a", Written(1));
        files.fail = [operation](const std::string& is) {
            return is.starts_with(operation) ? error::DeviceIo : 0;
        };
        static_cast<void>(Found());
        files.fail = nullptr;
        EXPECT_EQ(Found(), Times{1}) << operation;
    }
}

TEST_F(FindJournalsTest, takenNames_anotherIsTried)
{
    Leave("j1", Written(1));
    files[Folder + std::string("/j2.lock")];
    std::unique_ptr<JournalClaim> claim;
    ASSERT_EQ(JournalClaim::MakeNew(files, UnixPaths, Folder, Names(), claim), FileError{});
    EXPECT_EQ(claim->Path(), JournalPath(3));
}

TEST_F(FindJournalsTest, lockFileTakenAwayAtOnce_anotherNameIsTried)
{
    files.fail = [](const std::string& is) {
        return is == std::string("open ") + Folder + "/j1.lock" ? error::FileNotFound : 0;
    };
    std::unique_ptr<JournalClaim> claim;
    ASSERT_EQ(JournalClaim::MakeNew(files, UnixPaths, Folder, Names(), claim), FileError{});
    EXPECT_EQ(claim->Path(), JournalPath(2));
}

TEST_F(FindJournalsTest, randomNames_differ)
{
    const std::string name = RandomJournalName();
    EXPECT_EQ(name.size(), 16U);
    EXPECT_EQ(name.find_first_not_of("0123456789abcdef"), std::string::npos);
    EXPECT_NE(name, RandomJournalName());
}

TEST(RecoveryQuestionTest, eachCase_saysWhatWillCome)
{
    JournalReading reading{JournalState::Whole, {}};
    reading.journal.book = JournalBook{"/b/Guide.IDA", 1, false};
    const std::string ended =
        "Lodestar Advisor ended before your changes to the book \"/b/Guide.IDA\" were saved.";
    const std::string ask = "\n\nDo you want to recover them?";
    EXPECT_EQ(RecoveryQuestion(reading, JournalFit::Fits), ended + ask);
    EXPECT_EQ(RecoveryQuestion(reading, JournalFit::Changed),
              ended +
                  " The book is not as it was when you changed it, so the changed topics would become a new "
                  "book." +
                  ask);
    EXPECT_EQ(RecoveryQuestion(reading, JournalFit::Gone),
              ended + " The book is not there any more, so the changed topics would become a new book." +
                  ask);
    EXPECT_EQ(
        RecoveryQuestion(reading, JournalFit::Refused),
        ended +
            " The book cannot be opened now; perhaps another program has it open. Choose Later to be "
            "asked again at the next start: recovered now, the changed topics would become a new book." +
            ask);
    reading.state = JournalState::Damaged;
    reading.journal.book.reset();
    EXPECT_EQ(RecoveryQuestion(reading, JournalFit::NeverSaved),
              "Lodestar Advisor ended before your changes to a new book were saved. The record of them is "
              "damaged; what can be read of it can be recovered." +
                  ask);
}

} // namespace
} // namespace ls
