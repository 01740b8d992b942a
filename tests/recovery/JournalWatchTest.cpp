#include "recovery/JournalWatch.h"

#include "RecoveryFixture.h"
#include "authoring/EditSource.h"

#include <algorithm>

namespace ls {
namespace {

/// An open form for the text of topic A.
struct TypingForm : EditSource
{
    std::string typed;
    int asked = 0;

    void Type(const std::string& text)
    {
        typed += text;
        Edited();
    }
    void AddRunningEdits(RunningEdits& edits) override
    {
        ++asked;
        if (!typed.empty()) {
            edits.text = RunningText{1, "[A]", typed};
        }
    }
};

struct JournalWatchTest : RecoveryFixture
{
    static constexpr bool Busy = true;
    static constexpr bool Idle = false;

    OwnJournal own{Get(), Folder, Names()};
    Strings told;
    std::int64_t now = 0;
    TypingForm form;
    JournalWatch watch{book, Get(), own, [this] { return ++now; },
                       [this](const std::string& text) { told.push_back(text); }};

    JournalWatchTest() { EXPECT_TRUE(OpenThree()); }

    void Edit(const std::string& text)
    {
        book.TopicRecs(2).Text = text;
        book.BookChanged = true;
    }

    /// "B's text|typed text" from the journal on disk; "" if there is none.
    std::string Standing(int number = 1)
    {
        if (!files.Has(JournalPath(number))) {
            return {};
        }
        JournalReading reading;
        EXPECT_EQ(ReadJournal(files, JournalPath(number), reading), FileError{});
        const Journal& journal = reading.journal;
        return (journal.recs.empty() ? "" : journal.recs.front().text) + "|" +
               (journal.running.text ? journal.running.text->utf8 : "");
    }

    void FailWrites(bool fail)
    {
        files.fail = nullptr;
        if (fail) {
            files.fail = [](const std::string& is) { return is.starts_with("write") ? error::DiskFull : 0; };
        }
    }
};

TEST_F(JournalWatchTest, edits_standAtTheNextLook)
{
    watch.Look({}, Idle);
    EXPECT_EQ(FilesThere(), Strings{});
    Edit("one");
    watch.Look({}, Idle);
    EXPECT_EQ(Standing(), "one|");
    Edit("two");
    watch.Look({}, Idle);
    EXPECT_EQ(Standing(), "two|");
}

TEST_F(JournalWatchTest, typing_standsAndGoesWithCancel)
{
    watch.Look({&form}, Busy);
    EXPECT_EQ(FilesThere(), Strings{});
    form.Type("a");
    watch.Look({&form}, Busy);
    EXPECT_EQ(Standing(), "|a");
    form.Type("b");
    watch.Look({&form}, Busy); // a box over the form makes no difference
    EXPECT_EQ(Standing(), "|ab");
    watch.Look({}, Idle);
    EXPECT_EQ(FilesThere(), Strings{});
}

// A look without news must read and write nothing, because scrolling causes many looks and a book may be
// huge.
TEST_F(JournalWatchTest, nothingNew_looksAtNothing)
{
    Edit("one");
    form.Type("a");
    watch.Look({&form}, Busy);
    const int asked = form.asked;
    files.log.clear();
    book.TopicRecs(2).Text = "not told by the flag";
    for (int look = 0; look < 100; ++look) {
        watch.Look({&form}, Busy);
    }
    EXPECT_EQ(form.asked, asked);
    EXPECT_EQ(files.log, Strings{});
    EXPECT_EQ(Standing(), "one|a");
}

TEST_F(JournalWatchTest, twoFormsOneAfterTheOther_areToldApart)
{
    form.Type("first");
    watch.Look({&form}, Busy);
    TypingForm second;
    second.Type("other");
    watch.Look({&second}, Busy);
    EXPECT_EQ(Standing(), "|other");
}

TEST_F(JournalWatchTest, boxOfARunningCommand_acceptedEditStands)
{
    Edit("one");
    watch.Look({}, Busy);
    EXPECT_EQ(Standing(), "one|");
}

// Saving and opening clear the edits before the command ends. Until then the journal must stay.
TEST_F(JournalWatchTest, editsGone_journalGoesOnlyWhenTheCommandIsDone)
{
    Edit("one");
    watch.Look({}, Idle);
    book.BookChanged = false;
    book.TopicCount = 0;
    watch.Look({}, Busy);
    EXPECT_EQ(Standing(), "one|");
    watch.Look({}, Idle);
    EXPECT_EQ(FilesThere(), Strings{});
}

TEST_F(JournalWatchTest, takenAwayFromOutside_isWrittenAgain)
{
    Edit("one");
    watch.Look({}, Idle);
    ASSERT_EQ(files.Remove(JournalPath()), FileError{});
    watch.Look({}, Idle);
    EXPECT_EQ(Standing(2), "one|");
}

TEST_F(JournalWatchTest, cannotBeWritten_isToldOnceAndTriedAgain)
{
    FailWrites(true);
    Edit("one");
    watch.Look({}, Idle);
    watch.Look({}, Idle);
    EXPECT_EQ(told,
              Strings{"Your changes are not in the recovery journal: it cannot be written in "
                      "<</home/state/lodestar-advisor>> due to error #61: Disk full.\n\nYou can go on, but a "
                      "crash would lose what you have not saved. Writing the journal is tried again every "
                      "second; this is told only once."});
    FailWrites(false);
    watch.Look({}, Idle);
    EXPECT_EQ(Standing(), "one|");
    FailWrites(true);
    Edit("two");
    watch.Look({}, Idle);
    EXPECT_EQ(told.size(), 1U);
    EXPECT_EQ(Standing(), "one|"); // the older one stays
    EXPECT_EQ(messages.Take(), Strings{});
}

TEST_F(JournalWatchTest, noHome_isToldOnce)
{
    OwnJournal none(Get(), "", Names());
    JournalWatch homeless(
        book, Get(), none, [] { return 1; }, [this](const std::string& text) { told.push_back(text); });
    homeless.Look({}, Idle);
    EXPECT_EQ(told, Strings{});
    Edit("one");
    homeless.Look({}, Idle);
    homeless.Look({}, Idle);
    ASSERT_EQ(told.size(), 1U);
    EXPECT_TRUE(
        told.front().starts_with("Your changes are not in the recovery journal: there is no folder for "
                                 "it, as you have no home folder.\n\n"));
}

struct JournalWatchEndTest : JournalWatchTest
{
    void End()
    {
        end.SetLastAct([this] { watch.LastAct(open); });
        EndProgram(end, "a fault");
    }
    JournalWatch::Forms open;
};

// The journal must hold the typing since the last look too.
TEST_F(JournalWatchEndTest, fault_writesWhatWasTypedUntilThen)
{
    form.Type("a");
    watch.Look({&form}, Busy);
    form.Type("b");
    Edit("one");
    open = {&form};
    End();
    EXPECT_EQ(Standing(), "one|ab");
    watch.Look({}, Idle); // the form was closed
    watch.Finish();
    EXPECT_EQ(Standing(), "one|ab");
}

TEST_F(JournalWatchEndTest, faultThatTookTheForm_keepsWhatTheLastLookSaw)
{
    form.Type("a");
    watch.Look({&form}, Busy);
    End();
    watch.Finish();
    EXPECT_EQ(Standing(), "|a");
}

TEST_F(JournalWatchEndTest, faultBehindDone_writesWhatWasAccepted)
{
    form.Type("a");
    watch.Look({&form}, Busy);
    Edit("ab");
    End();
    watch.Finish();
    EXPECT_EQ(Standing(), "ab|");
}

TEST_F(JournalWatchEndTest, faultWithoutEdits_leavesNothing)
{
    Edit("one");
    watch.Look({}, Idle);
    book.BookChanged = false; // saved
    End();
    watch.Finish();
    EXPECT_EQ(FilesThere(), Strings{});
}

TEST_F(JournalWatchEndTest, lastWriteFails_isTriedAgainAtTheVeryEnd)
{
    form.Type("a");
    open = {&form};
    FailWrites(true);
    End();
    EXPECT_EQ(Standing(), "");
    FailWrites(false);
    watch.Finish();
    EXPECT_EQ(Standing(), "|a");
    EXPECT_EQ(told, Strings{}); // no message any more
}

TEST_F(JournalWatchEndTest, orderlyEnd_removesTheJournal)
{
    Edit("one");
    watch.Look({}, Idle);
    watch.Finish();
    EXPECT_EQ(FilesThere(), Strings{});
}

} // namespace
} // namespace ls
