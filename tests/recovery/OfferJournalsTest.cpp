#include "recovery/OfferJournals.h"

#include "RecoveryFixture.h"

namespace ls {
namespace {

struct OfferJournalsTest : RecoveryFixture
{
    Book again;
    OwnJournal own{Get(), Folder, Names()};
    Strings asked;
    RecoveryChoice choice = RecoveryChoice::Recover;

    /// A program edits topic B and is killed at the time `when`.
    void EditAndDie(std::int64_t when, const RunningEdits& running = {})
    {
        ASSERT_TRUE(OpenThree());
        book.TopicRecs(2).Text = "edited\r\n";
        book.BookChanged = true;
        OwnJournal killed(Get(), Folder, Names());
        ASSERT_EQ(killed.Update(book, running, when), FileError{});
        CloseBook(book);
        ResetBook(book);
    }

    bool Offer()
    {
        return OfferJournals(Folder, again, Get(), own, [this](const std::string& question) {
            asked.push_back(question);
            return choice;
        });
    }
};

TEST_F(OfferJournalsTest, nothingLeft_asksNothing)
{
    EXPECT_FALSE(Offer());
    EXPECT_EQ(asked, Strings{});
}

TEST_F(OfferJournalsTest, recover_bookAsItWas_bringsTheEditsIntoIt)
{
    EditAndDie(1);
    EXPECT_TRUE(Offer());
    EXPECT_EQ(asked, Strings{"Lodestar Advisor ended before your changes to the book \"/work/Book.IDA\" were "
                             "saved.\n\nDo you want to recover them?"});
    EXPECT_EQ(again.BookPath, BookPath);
    EXPECT_EQ(NamesOf(again), (Strings{"[A]", "[B]", "[C]"}));
    EXPECT_EQ(again.TopicRecs(2).Text, "edited\r\n");
    EXPECT_TRUE(again.BookChanged);
    EXPECT_TRUE(own.Stands());
    EXPECT_EQ(messages.Take(), Strings{});
    again.BookChanged = false; // saved
    EXPECT_EQ(own.Update(again, {}, 2), FileError{});
    EXPECT_EQ(FilesThere(), Strings{});
}

TEST_F(OfferJournalsTest, recover_bookChangedOrGone_becomesANewBook)
{
    for (const bool gone : {false, true}) {
        EditAndDie(1);
        if (gone) {
            ASSERT_EQ(files.Remove(BookPath), FileError{});
        } else {
            files[BookPath] += "more\r\n";
        }
        EXPECT_TRUE(Offer());
        EXPECT_NE(asked.back().find(gone ? "not there any more" : "not as it was"), std::string::npos);
        EXPECT_EQ(again.BookPath, "");
        EXPECT_FALSE(again.LockBook);
        EXPECT_EQ(NamesOf(again), Strings{"[B]"});
        EXPECT_EQ(own.Remove(), FileError{});
        CloseBook(again);
        ResetBook(again);
    }
    EXPECT_EQ(messages.Take(), Strings{});
}

TEST_F(OfferJournalsTest, discard_removesItAndLeavesNothingOpen)
{
    EditAndDie(1);
    choice = RecoveryChoice::Discard;
    EXPECT_FALSE(Offer());
    EXPECT_EQ(FilesThere(), Strings{});
    EXPECT_FALSE(again.IsOpen());
    EXPECT_FALSE(again.BookChanged);
    EXPECT_EQ(again.File, nullptr);
}

TEST_F(OfferJournalsTest, later_asksAgainAtTheNextStart)
{
    EditAndDie(1);
    choice = RecoveryChoice::Later;
    EXPECT_FALSE(Offer());
    EXPECT_FALSE(again.IsOpen());
    EXPECT_FALSE(Offer());
    EXPECT_EQ(asked.size(), 2U);
}

TEST_F(OfferJournalsTest, several_theRestWaitsOnceOneIsRecovered)
{
    EditAndDie(1);
    EditAndDie(2);
    EXPECT_TRUE(Offer());
    EXPECT_EQ(asked.size(), 1U);
    EXPECT_EQ(FindJournals(Get(), Folder).journals.size(), 1U);
}

TEST_F(OfferJournalsTest, recover_whatWasTyped_isInTheBookAndItsFaultsAreTold)
{
    RunningEdits typed;
    typed.text = RunningText{2, "[B]", "[Heading]"};
    EditAndDie(1, typed);
    EXPECT_TRUE(Offer());
    EXPECT_EQ(again.TopicRecs(2).Text, "[Heading]");
    EXPECT_EQ(
        messages.Take(),
        Strings{"information|Lodestar Advisor|Please look at these before you save the book:\n\nLine 1 of "
                "the text of the topic \"B\" would start a new topic in the saved book."});
}

TEST_F(OfferJournalsTest, recover_damagedOne_isKeptAside)
{
    EditAndDie(1);
    std::string& bytes = files[JournalPath(1)];
    bytes.resize(bytes.size() - 10);
    const std::string damaged = bytes;
    EXPECT_TRUE(Offer());
    EXPECT_EQ(again.TopicRecs(2).Text, "edited\r\n");
    EXPECT_EQ(files[Folder + std::string("/j1.damaged")], damaged);
    EXPECT_EQ(own.Update(again, {}, 2), FileError{});
    EXPECT_TRUE(files.Has(JournalPath(1)));
    EXPECT_EQ(messages.Take(),
              Strings{"information|Lodestar Advisor|Please look at these before you save the book:\n\nThe "
                      "damaged recovery journal is kept as <</home/state/lodestar-advisor/j1.damaged>>."});
}

TEST_F(OfferJournalsTest, recover_damagedOneAndNoRoomToPutItAside_isNotWrittenOver)
{
    EditAndDie(1);
    std::string& bytes = files[JournalPath(1)];
    bytes.resize(bytes.size() - 10);
    const std::string damaged = bytes;
    files.fail = [](const std::string& is) {
        return is.starts_with("create") && is.find("damaged") != std::string::npos ? error::DiskFull : 0;
    };
    EXPECT_TRUE(Offer());
    EXPECT_EQ(messages.Take(),
              Strings{"information|Lodestar Advisor|Please look at these before you save the "
                      "book:\n\nThe damaged recovery journal "
                      "<</home/state/lodestar-advisor/j1.journal>> could not be put aside, and "
                      "will be offered again."});
    EXPECT_EQ(own.Update(again, {}, 2), FileError{});
    EXPECT_EQ(files[JournalPath(1)], damaged);
    EXPECT_EQ(FilesThere(), (Strings{"j1.journal", "j1.lock", "j2.journal", "j2.lock"}));
}

// Without the book, removals and moves mean nothing. They must not be offered as a book without topics.
TEST_F(OfferJournalsTest, noEditedTopicAndTheBookIsGone_isNotOfferedUntilItIsBack)
{
    ASSERT_TRUE(OpenThree());
    SetRemoved(book, {{2, true}});
    {
        OwnJournal killed(Get(), Folder, Names());
        ASSERT_EQ(killed.Update(book, {}, 1), FileError{});
    }
    CloseBook(book);
    ASSERT_EQ(files.Remove(BookPath), FileError{});
    EXPECT_FALSE(Offer());
    EXPECT_EQ(asked, Strings{});
    files[BookPath] = ThreeTopics(); // the stick is back
    EXPECT_TRUE(Offer());
    EXPECT_TRUE(again.TopicRecs(2).Deleted);
}

TEST_F(OfferJournalsTest, headerOfANewBook_isOffered)
{
    book.BookAuthor = "Ann";
    book.BookChanged = true;
    {
        OwnJournal killed(Get(), Folder, Names());
        ASSERT_EQ(killed.Update(book, {}, 1), FileError{});
    }
    EXPECT_TRUE(Offer());
    EXPECT_EQ(again.BookAuthor, "Ann");
}

TEST_F(OfferJournalsTest, laterOrDiscarded_leavesTheBookOfTheCommandLineAsItWas)
{
    EditAndDie(1);
    again.WorkDir = "/work";
    again.StartTopic = "C";
    again.LockBook = true;
    choice = RecoveryChoice::Later;
    EXPECT_FALSE(Offer());
    EXPECT_EQ(again.WorkDir, "/work");
    EXPECT_EQ(again.StartTopic, "C");
    EXPECT_TRUE(again.LockBook);
}

TEST_F(OfferJournalsTest, discardFails_isTold)
{
    EditAndDie(1);
    choice = RecoveryChoice::Discard;
    files.fail = [](const std::string& is) { return is.starts_with("remove") ? error::PermissionDenied : 0; };
    EXPECT_FALSE(Offer());
    EXPECT_EQ(messages.Take(), Strings{"warning|Lodestar Advisor|The recovery journal "
                                       "<</home/state/lodestar-advisor/j1.journal>> cannot be removed due to "
                                       "error #70: Permission denied. It will be offered again."});
}

TEST_F(OfferJournalsTest, journalsThatCannotBeRead_areToldTogether)
{
    EditAndDie(1);
    EditAndDie(2);
    files[JournalPath(1)] = "nothing";
    files[JournalPath(2)] = "LODESTAR RECOVERY JOURNAL 9\n";
    EXPECT_FALSE(Offer());
    EXPECT_EQ(asked, Strings{});
    EXPECT_EQ(
        messages.Take(),
        Strings{"warning|Lodestar Advisor|The recovery journal "
                "<</home/state/lodestar-advisor/j1.journal>> is damaged, and nothing in it can be read. "
                "It is called <</home/state/lodestar-advisor/j1.damaged>> now.\n\nThe recovery journal "
                "<</home/state/lodestar-advisor/j2.journal>> was written by a later version of Lodestar "
                "Advisor, and only that can recover it. It stays where it is."});
}

// One run for each call to the file system that the reader of journals makes; that call fails.
TEST_F(OfferJournalsTest, eachCallFailing_losesNothingAndIsTold)
{
    for (const int number : {error::DeviceIo, error::DiskFull, error::PermissionDenied}) {
        int failAt = 1;
        for (bool error = true; error; ++failAt) {
            names = 0;
            EditAndDie(1);
            files[JournalPath()].resize(files[JournalPath()].size() - 3); // damaged, so it is copied too
            const std::string journal = files[JournalPath()];
            int calls = 0;
            std::string call;
            files.fail = [&](const std::string& is) {
                ++calls;
                call = calls == failAt ? is : call;
                return calls == failAt ? number : 0;
            };
            asked.clear();
            const bool recovered = Offer();
            files.fail = nullptr;
            error = calls >= failAt;
            SCOPED_TRACE(call + " " + std::to_string(number));
            const Strings told = messages.Take();
            EXPECT_EQ(files[BookPath], ThreeTopics());
            if (recovered) {
                const bool fits = again.TopicCount == 3;
                EXPECT_EQ(again.TopicRecs(fits ? 2 : 1).Text, "edited\r\n");
                EXPECT_TRUE(fits || asked.front().find("new book") != std::string::npos);
            } else { // error 70 also means that the owner is running
                EXPECT_TRUE(!told.empty() || (number == error::PermissionDenied && call.ends_with(".lock")));
                EXPECT_EQ(files[JournalPath()], journal);
            }
            const bool aside = files.Has(Folder + std::string("/j1.damaged"));
            EXPECT_TRUE(files[JournalPath()] == journal ||
                        (aside && files[Folder + std::string("/j1.damaged")] == journal));
            EXPECT_EQ(own.Remove(), FileError{});
            for (const std::string& file : FilesThere()) {
                EXPECT_EQ(files.Remove(Folder + ("/" + file)), FileError{});
            }
            again = Book();
        }
        EXPECT_GT(failAt, 10);
    }
}

TEST_F(OfferJournalsTest, noFolder_offersNothing)
{
    EXPECT_FALSE(OfferJournals("", again, Get(), own, [](const std::string&) {
        ADD_FAILURE();
        return RecoveryChoice::Later;
    }));
    EXPECT_EQ(messages.Take(), Strings{});
}

TEST_F(OfferJournalsTest, bookLockedElsewhere_isNotOpenedButItsEditsAreThere)
{
    EditAndDie(1);
    std::unique_ptr<BookFile> other;
    ASSERT_EQ(files.OpenForReading(BookPath, Sharing::Locked, other), FileError{});
    EXPECT_TRUE(Offer());
    EXPECT_NE(asked.back().find("perhaps another program has it open"), std::string::npos);
    EXPECT_EQ(NamesOf(again), Strings{"[B]"});
    EXPECT_EQ(messages.Take(), Strings{});
    EXPECT_FALSE(end.Ended());
}

TEST_F(OfferJournalsTest, bookCannotBeRead_endsNothing)
{
    EditAndDie(1);
    files.fail = [](const std::string& is) {
        return is.starts_with(std::string("read ") + BookPath) ? error::DeviceIo : 0;
    };
    EXPECT_TRUE(Offer());
    EXPECT_EQ(NamesOf(again), Strings{"[B]"});
    EXPECT_FALSE(end.Ended());
    EXPECT_EQ(messages.Take(), Strings{});
}

} // namespace
} // namespace ls
