#pragma once

#include "LockingFiles.h"
#include "authoring/TopicTable.h"
#include "base/ProgramEnd.h"
#include "base/Seams.h"
#include "book/Book.h"
#include "book/BookLoader.h"
#include "recovery/ApplyJournal.h"
#include "recovery/FindJournals.h"
#include "recovery/JournalFile.h"
#include "recovery/JournalOf.h"
#include "recovery/OwnJournal.h"
#include "support/RecordingMessages.h"
#include "support/RecordingProcesses.h"
#include "support/TestSeams.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ls {

using Strings = std::vector<std::string>;

/// A journal with something in every part.
inline Journal FullJournal()
{
    Journal journal;
    journal.written = 1700000000;
    journal.book = JournalBook{"/work/B\xC3\xBC"
                               "cher/Book.IDA",
                               1234567890123, true};
    journal.header = JournalHeader{"An \"author\"", "(c)\n@END", "http://127.0.0.1/", "YES"};
    journal.topics = std::vector<JournalTopic>{
        {"[C]", 3, false}, {"[A]", 1, true}, {"[New]", 0, false}, {"[B]", 2, false}};
    journal.recs = {{1, "[C]", false, std::string("text\r\n@TOPIC 3 00000000\n\0nul\x80\xFF\r\n", 32), ""},
                    {2, "[A]", true, "\r\n", "<IXML>\r\n<LOGIC>\r\n"},
                    {3, "[New]", false, "Insert text here.", ""}};
    journal.running.text = RunningText{3, "[New]", "typed \xE2\x86\x92\n[not a topic]"};
    journal.running.logic = RunningText{1, "[C]", "<IXML>\n<LOGIC>\n"};
    journal.running.properties = Properties{"a", "c", "u", true};
    journal.running.removals = {{1, "[C]", true}, {2, "[A]", false}};
    return journal;
}

inline void ExpectSame(const Journal& is, const Journal& shouldBe)
{
    EXPECT_EQ(is.written, shouldBe.written);
    EXPECT_EQ(is.book, shouldBe.book);
    EXPECT_EQ(is.header, shouldBe.header);
    EXPECT_EQ(is.topics, shouldBe.topics);
    EXPECT_EQ(is.recs, shouldBe.recs);
    EXPECT_EQ(is.running.text, shouldBe.running.text);
    EXPECT_EQ(is.running.logic, shouldBe.running.logic);
    EXPECT_EQ(is.running.removals, shouldBe.running.removals);
    EXPECT_TRUE(JournalText(is) == JournalText(shouldBe)); // compares the properties too
}

/// A book of three topics in memory, and a folder for its journals.
struct RecoveryFixture : testing::Test
{
    ProgramEnd end;
    test::LockingFiles files;
    test::RecordingMessages messages{end};
    test::RecordingProcesses processes;
    Book book;
    int names = 0;

    static constexpr const char* BookPath = "/work/Book.IDA";
    static constexpr const char* Folder = "/home/state/lodestar-advisor";

    [[nodiscard]] Seams Get() { return {files, messages, processes, end, UnixPaths}; }

    static std::string ThreeTopics()
    {
        return test::CrLf({"LODESTAR BOOK V5.3 /AUTHOR=\"Ann\"", "[A]", "a", "[B]", "b", "[C]", "c"});
    }

    bool OpenInto(Book& into, const std::string& path = BookPath)
    {
        into.BookPath = path;
        return OpenBook(into, Get()) && ScanBook(into, Get());
    }

    bool OpenThree()
    {
        files[BookPath] = ThreeTopics();
        return OpenInto(book);
    }

    /// Names journals "j1", "j2", ...
    JournalNames Names()
    {
        return [this] { return "j" + std::to_string(++names); };
    }
    static std::string JournalPath(int number = 1)
    {
        return std::string(Folder) + "/j" + std::to_string(number) + ".journal";
    }

    /// The names of a book's topics.
    [[nodiscard]] static Strings NamesOf(const Book& of)
    {
        return {of.TopicNames.begin(), of.TopicNames.begin() + of.TopicCount};
    }

    /// The files in the folder of the journals.
    Strings FilesThere()
    {
        std::vector<FolderEntry> entries;
        static_cast<void>(files.List(Folder, entries));
        Strings there;
        for (const FolderEntry& entry : entries) {
            there.push_back(entry.name);
        }
        return there;
    }
};

} // namespace ls
