#include "RecoveryFixture.h"

#include "book/SaveBook.h"

namespace ls {
namespace {

struct ApplyJournalTest : RecoveryFixture
{
    Book again; ///< the book as opened after the crash

    /// What saving a book would write.
    std::string Saved(const Book& of)
    {
        const std::string path = "/work/Saved" + std::to_string(++m_saves) + ".IDA";
        EXPECT_EQ(SaveBook(of, Get(), path), WriteOutcome::Written);
        return files[path];
    }

    /// The edits of `book`, written to a journal and read back.
    Journal Kept(const RunningEdits& running = {})
    {
        JournalReading reading = ParseJournal(JournalText(JournalOf(book, running, Get())));
        EXPECT_EQ(reading.state, JournalState::Whole);
        return reading.journal;
    }

    /// Opens the book anew after the crash and applies the edits.
    RunningEdits Recover(const Journal& journal)
    {
        EXPECT_TRUE(OpenInto(again));
        EXPECT_TRUE(FitsBook(journal, again, Get()));
        return ApplyJournal(journal, again);
    }

    /// Makes every kind of edit.
    void EditAll()
    {
        ASSERT_TRUE(OpenThree());
        book.BookAuthor = "Ben";
        book.BookPost = "YES";
        ASSERT_TRUE(AddTopic(book, "New"));
        book.TopicRecs(2).Text = "edited\r\n";
        book.TopicRecs(2).Logic = "<IXML>\r\n<LOGIC>\r\n";
        SetRemoved(book, {{1, true}});
        MoveTopics(book, {3, 4}, 0); // C, New, A, B
    }

private:
    int m_saves = 0;
};

TEST_F(ApplyJournalTest, everyEdit_isRecoveredAsItWas)
{
    EditAll();
    const std::string unsaved = Saved(book);
    EXPECT_TRUE(Recover(Kept()).None());
    EXPECT_EQ(NamesOf(again), (Strings{"[C]", "[New]", "[A]", "[B]"}));
    EXPECT_TRUE(again.TopicRecs(3).Deleted);
    EXPECT_EQ(again.TopicRecs(2).Text, "Insert text here.");
    EXPECT_EQ(again.TopicRecs(1).Text, "");
    EXPECT_EQ(again.BookAuthor, "Ben");
    EXPECT_TRUE(again.BookChanged);
    EXPECT_EQ(again.CurrentTopicNo, 0);
    EXPECT_EQ(again.CurrentTopicName, "");
    EXPECT_EQ(Saved(again), unsaved);
}

TEST_F(ApplyJournalTest, recoveredAndLostAgain_isTheSameOnceMore)
{
    EditAll();
    const Journal first = Kept();
    Recover(first);
    const Journal second = JournalOf(again, {}, Get());
    ExpectSame(second, first);
}

TEST_F(ApplyJournalTest, recovered_changesTheOrderForTheAdvisor)
{
    EditAll();
    ASSERT_TRUE(OpenInto(again));
    const std::uint32_t before = again.TopicOrder;
    ApplyJournal(Kept(), again);
    EXPECT_NE(again.TopicOrder, before);
}

TEST_F(ApplyJournalTest, moreTopicsThanTheTablesHold_areRecovered)
{
    ASSERT_TRUE(OpenThree());
    for (int i = 1; i <= 200; ++i) {
        ASSERT_TRUE(AddTopic(book, "T" + std::to_string(i)));
    }
    const std::string unsaved = Saved(book);
    Recover(Kept());
    EXPECT_EQ(again.TopicCount, 203);
    EXPECT_EQ(Saved(again), unsaved);
}

TEST_F(ApplyJournalTest, topicsOfOneName_keepTheirPlaces)
{
    files[BookPath] = test::CrLf({"LODESTAR BOOK V5.3", "[A]", "one", "[A]", "two", "[B]", "b"});
    ASSERT_TRUE(OpenInto(book));
    MoveTopics(book, {2}, 0);
    const std::string unsaved = Saved(book);
    Recover(Kept());
    EXPECT_EQ(Saved(again), unsaved);
    EXPECT_NE(unsaved.find("two\r\n[A]\r\none"), std::string::npos);
}

TEST_F(ApplyJournalTest, relativePath_isKeptAsAFullOne)
{
    files[BookPath] = ThreeTopics();
    ASSERT_TRUE(OpenInto(book, "Book.IDA"));
    book.LockBook = true;
    EXPECT_EQ(Kept().book, (JournalBook{"/work/Book.IDA", static_cast<FilePos>(ThreeTopics().size()), true}));
}

TEST_F(ApplyJournalTest, otherBooks_doNotFit)
{
    EditAll();
    const Journal journal = Kept();
    const struct
    {
        const char* name;
        const char* path;
        std::string bytes;
        bool fits;
    } rows[] = {
        {"the same", BookPath, ThreeTopics(), true},
        {"another path", "/work/Other.IDA", ThreeTopics(), false},
        {"another size", BookPath, ThreeTopics() + "more\r\n", false},
        {"another name", BookPath,
         test::CrLf({"LODESTAR BOOK V5.3 /AUTHOR=\"Ann\"", "[A]", "a", "[D]", "b", "[C]", "c"}), false},
        {"another order", BookPath,
         test::CrLf({"LODESTAR BOOK V5.3 /AUTHOR=\"Ann\"", "[B]", "a", "[A]", "b", "[C]", "c"}), false},
        {"a topic less", BookPath,
         test::CrLf({"LODESTAR BOOK V5.3 /AUTHOR=\"Ann\"", "[A]", "a", "(B)", "b", "[C]", "c"}), false},
    };
    for (const auto& row : rows) {
        files[row.path] = row.bytes;
        Book other;
        ASSERT_TRUE(OpenInto(other, row.path)) << row.name;
        EXPECT_EQ(FitsBook(journal, other, Get()), row.fits) << row.name;
    }
}

TEST_F(ApplyJournalTest, missingOrBrokenParts_doNotFit)
{
    EditAll();
    const Journal journal = Kept();
    ASSERT_TRUE(OpenInto(again));
    ASSERT_TRUE(FitsBook(journal, again, Get()));
    const auto refused = [&](const char* name, auto change) {
        Journal broken = journal;
        change(broken);
        EXPECT_FALSE(FitsBook(broken, again, Get())) << name;
    };
    refused("no book", [](Journal& j) { j.book.reset(); });
    refused("never saved", [](Journal& j) { j.book->path.clear(); });
    refused("no table", [](Journal& j) { j.topics.reset(); });
    refused("a topic of the file twice", [](Journal& j) { (*j.topics)[0].fileNumber = 1; });
    refused("a topic beyond the file", [](Journal& j) { (*j.topics)[0].fileNumber = 9; });
    refused("a topic left out", [](Journal& j) { j.topics->pop_back(); });
    refused("an edit beyond the table", [](Journal& j) { j.recs[0].topic = 99; });
    refused("an edit of another name", [](Journal& j) { j.recs[0].name = "[X]"; });
    refused("typing of another name", [](Journal& j) { j.running.text = RunningText{1, "[X]", "t"}; });
    refused("a removal of another name", [](Journal& j) { j.running.removals = {{1, "[X]", true}}; });
    refused("typed logic beyond the table", [](Journal& j) { j.running.logic = RunningText{9, "[A]", "t"}; });
    again.BookVersion = 0;
    EXPECT_FALSE(FitsBook(journal, again, Get())) << "a plain text file";
    EXPECT_FALSE(FitsBook(journal, Book(), Get())) << "no file";
}

TEST_F(ApplyJournalTest, asNewBook_holdsTheEditedTopics)
{
    EditAll();
    const RunningEdits running = AsNewBook(Kept(), again);
    EXPECT_TRUE(running.None());
    EXPECT_EQ(NamesOf(again), (Strings{"[New]", "[B]"}));
    EXPECT_EQ(again.BookPath, "");
    EXPECT_TRUE(again.BookChanged);
    EXPECT_EQ(Saved(again),
              "LODESTAR BOOK V5.3 /AUTHOR=\"Ben\" /POST=\"YES\"\r\n[New]\r\nInsert text here.\r\n"
              "[B]\r\nedited\r\n\r\n<IXML>\r\n<LOGIC>\r\n\r\n");
}

TEST_F(ApplyJournalTest, asNewBook_removedTopicCanStillBeRestored)
{
    ASSERT_TRUE(OpenThree());
    book.TopicRecs(1).Text = "edited\r\n";
    SetRemoved(book, {{1, true}});
    AsNewBook(Kept(), again);
    ASSERT_EQ(NamesOf(again), Strings{"[A]"});
    EXPECT_TRUE(again.TopicRecs(1).Deleted);
    EXPECT_EQ(again.TopicRecs(1).Text, "edited\r\n");
}

TEST_F(ApplyJournalTest, bookNeverSaved_comesBackWhole)
{
    ASSERT_TRUE(AddTopic(book, "One"));
    ASSERT_TRUE(AddTopic(book, "Two"));
    MoveTopics(book, {2}, 0);
    const Journal journal = Kept();
    EXPECT_EQ(journal.book, JournalBook{});
    const std::string unsaved = Saved(book);
    AsNewBook(journal, again);
    EXPECT_EQ(NamesOf(again), (Strings{"[Two]", "[One]"}));
    EXPECT_EQ(Saved(again), unsaved);
}

TEST_F(ApplyJournalTest, asNewBookWithoutEditedTopics_hasNone)
{
    ASSERT_TRUE(OpenThree());
    book.BookAuthor = "Ben";
    book.BookChanged = true;
    AsNewBook(Kept(), again);
    EXPECT_EQ(again.TopicCount, 0);
    EXPECT_EQ(again.BookAuthor, "Ben");
}

TEST_F(ApplyJournalTest, runningEdits_comeBackForTheirTopics)
{
    EditAll();
    RunningEdits typed;
    typed.text = RunningText{4, "[B]", "typing"};
    typed.properties = Properties{"Cy", "", "", false};
    EXPECT_EQ(Recover(Kept(typed)).text, typed.text);
    Book fresh;
    const RunningEdits asNew = AsNewBook(Kept(typed), fresh);
    ASSERT_TRUE(asNew.text);
    EXPECT_EQ(asNew.text->topic, 2);
    EXPECT_EQ(asNew.text->utf8, "typing");
}

TEST_F(ApplyJournalTest, typedOnlyInATopicThatIsNotEdited_comesToTheNewBook)
{
    ASSERT_TRUE(OpenThree());
    RunningEdits typed;
    typed.text = RunningText{3, "[C]", "typing"};
    const RunningEdits asNew = AsNewBook(Kept(typed), again);
    EXPECT_EQ(NamesOf(again), Strings{"[C]"});
    EXPECT_EQ(KeepRunningEdits(again, Get(), asNew), Strings{});
    EXPECT_EQ(again.TopicRecs(1).Text, "typing");
}

TEST_F(ApplyJournalTest, keptTyping_replacesTheTextAndKeepsTheLogic)
{
    EditAll();
    RunningEdits typed;
    typed.text = RunningText{4, "[B]", "one\ntwo \xC3\xA9"};
    typed.properties = Properties{"Cy", "c", "u", false};
    EXPECT_EQ(KeepRunningEdits(again, Get(), Recover(Kept(typed))), Strings{});
    EXPECT_EQ(again.TopicRecs(4).Text, "one\r\ntwo \xE9");
    EXPECT_EQ(again.TopicRecs(4).Logic, "<IXML>\r\n<LOGIC>\r\n");
    EXPECT_EQ(again.BookAuthor, "Cy");
    EXPECT_EQ(again.BookCopyright, "c");
    EXPECT_EQ(again.BookUrl, "u");
    EXPECT_EQ(again.BookPost, "");
}

// The journal lost the section with the topic's record.
TEST_F(ApplyJournalTest, keptTyping_topicNotInMemory_keepsItsOtherHalf)
{
    files[BookPath] = test::CrLf({"LODESTAR BOOK V5.3", "[A]", "a", "<IXML>", "<LOGIC>", "TARGET X",
                                  "</LOGIC>", "<DEFINITIONS>", "</DEFINITIONS>", "</IXML>", "[B]", "b"});
    ASSERT_TRUE(OpenInto(book));
    RunningEdits typed;
    typed.text = RunningText{1, "[A]", "new"};
    typed.logic = RunningText{2, "[B]", "<IXML>\r\n<LOGIC>\r\nTARGET Y\r\n</LOGIC>\r\n</IXML>\r\n"};
    EXPECT_EQ(KeepRunningEdits(again, Get(), Recover(Kept(typed))), Strings{});
    EXPECT_EQ(again.TopicRecs(1).Text, "new");
    EXPECT_NE(again.TopicRecs(1).Logic.find("TARGET X"), std::string::npos);
    EXPECT_EQ(again.TopicRecs(2).Text, "b\r\n");
    EXPECT_EQ(again.TopicRecs(2).Logic, typed.logic->utf8);
}

TEST_F(ApplyJournalTest, keptTyping_topicThatCannotBeRead_isTold)
{
    ASSERT_TRUE(OpenThree());
    RunningEdits typed;
    typed.logic = RunningText{2, "[B]", "<IXML>"};
    const RunningEdits running = Recover(Kept(typed));
    files.fail = [](const std::string& is) { return is.starts_with("read") ? error::DeviceIo : 0; };
    EXPECT_EQ(
        KeepRunningEdits(again, Get(), running),
        Strings{"The logic of the topic \"B\" that was typed is not in the book, as the topic cannot be "
                "read:\n<IXML>"});
    EXPECT_EQ(again.TopicRecs(2).Logic, "");
}

TEST_F(ApplyJournalTest, keptTyping_whatTheLogicEditorDrops_isTold)
{
    ASSERT_TRUE(OpenThree());
    book.TopicRecs(2).Text = "b\r\n";
    book.TopicRecs(2).Logic = "<IXML>\r\n<LOGIC>\r\nTARGET X\r\n</LOGIC>\r\n<DEFINITIONS>\r\n* "
                              "old\r\n</DEFINITIONS>\r\n</IXML>\r\n";
    book.BookChanged = true;
    RunningEdits typed;
    typed.logic = RunningText{2, "[B]", "<IXML>\r\n<LOGIC>\r\n"};
    EXPECT_EQ(
        KeepRunningEdits(again, Get(), Recover(Kept(typed))),
        Strings{"The logic of the topic \"B\", line 6 before it was edited: The comment \"* old\" would be "
                "dropped."});
}

TEST_F(ApplyJournalTest, keptProperties_misread_isTold)
{
    ASSERT_TRUE(OpenThree());
    RunningEdits typed;
    typed.properties = Properties{"a\" /URL=\"b", "", "", false};
    const Strings notes = KeepRunningEdits(again, Get(), Recover(Kept(typed)));
    ASSERT_FALSE(notes.empty());
    EXPECT_TRUE(notes.front().starts_with("Book Author(s): \"")) << notes.front();
}

TEST_F(ApplyJournalTest, keptRemovals_areDoneAndTold)
{
    ASSERT_TRUE(OpenThree());
    SetRemoved(book, {{3, true}});
    RunningEdits typed;
    typed.removals = {{1, "[A]", true}, {3, "[C]", false}};
    EXPECT_EQ(
        KeepRunningEdits(again, Get(), Recover(Kept(typed))),
        (Strings{"The topic \"A\" was checked in Topic Deletion, and is removed now. The same form restores "
                 "it.",
                 "The topic \"C\" was unchecked in Topic Deletion, and is restored now."}));
    EXPECT_TRUE(again.TopicRecs(1).Deleted);
    EXPECT_FALSE(again.TopicRecs(3).Deleted);
    Book fresh;
    EXPECT_EQ(AsNewBook(Kept(typed), fresh).removals, std::vector<RunningRemoval>{}); // no edited topics
    book.TopicRecs(3).Text = "c2\r\n";
    EXPECT_EQ(AsNewBook(Kept(typed), fresh).removals, (std::vector<RunningRemoval>{{1, "[C]", false}}));
}

TEST_F(ApplyJournalTest, keptTyping_emptiedText_isNotTheOldOne)
{
    ASSERT_TRUE(OpenThree());
    RunningEdits typed;
    typed.text = RunningText{1, "[A]", ""};
    EXPECT_EQ(KeepRunningEdits(again, Get(), Recover(Kept(typed))), Strings{});
    EXPECT_EQ(again.TopicRecs(1).Text, "\r\n");
}

TEST_F(ApplyJournalTest, keptTyping_whatABookCannotHold_isTold)
{
    ASSERT_TRUE(OpenThree());
    RunningEdits typed;
    typed.text = RunningText{1, "[A]", "a \xE2\x86\x92 b \xE2\x86\x92\n[Heading]\n"};
    typed.logic = RunningText{2, "[B]", "<IXML>\r\n<LOGIC>\r\n* \xE2\x86\x92\r\n"};
    typed.properties = Properties{"\xE2\x86\x92", "", "", false};
    EXPECT_EQ(
        KeepRunningEdits(again, Get(), Recover(Kept(typed))),
        (Strings{
            "The text of the topic \"A\" held the character \"\xE2\x86\x92\", which a book cannot hold; "
            "\"U+2192\" stands there now.",
            "Line 2 of the text of the topic \"A\" would start a new topic in the saved book.",
            "The logic of the topic \"B\" held the character \"\xE2\x86\x92\", which a book cannot hold; "
            "\"U+2192\" stands there now.",
            "The book's author held the character \"\xE2\x86\x92\", which a book cannot hold; \"U+2192\" "
            "stands "
            "there now."}));
    EXPECT_EQ(again.TopicRecs(1).Text, "a U+2192 b U+2192\r\n[Heading]\r\n");
    EXPECT_EQ(again.TopicRecs(2).Logic, "<IXML>\r\n<LOGIC>\r\n* U+2192\r\n");
    EXPECT_EQ(again.BookAuthor, "U+2192");
}

TEST_F(ApplyJournalTest, asNewBookOfADamagedJournal_holdsWhatCanBeRead)
{
    EditAll();
    const std::string whole = JournalText(JournalOf(book, {}, Get()));
    std::string bytes = whole;
    bytes[bytes.find("@TABLE")] = 'x';
    bytes[bytes.find("Insert text")] = 'x';
    const JournalReading reading = ParseJournal(bytes);
    EXPECT_EQ(reading.state, JournalState::Damaged);
    AsNewBook(reading.journal, again);
    EXPECT_EQ(NamesOf(again), Strings{"[B]"});
    EXPECT_EQ(again.TopicRecs(1).Text, "edited\r\n");
}

} // namespace
} // namespace ls
