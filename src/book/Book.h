#pragma once

#include "base/Array1.h"
#include "base/ChangeFlag.h"
#include "base/Count16.h"
#include "base/FilePos.h"
#include "base/FileSystem.h"
#include "book/BookHeader.h"
#include "book/OldNames.h"

#include <cstdint>
#include <memory>
#include <string>

namespace ls {

/// The edited parts of one topic. Both texts are empty while the topic is unedited: its text is in the file.
struct TopicRec
{
    std::string Text;
    std::string Logic;
    bool Deleted = false; ///< neither listed nor saved
};

/// A reference from one topic to another, with its note.
struct XrefRec
{
    std::string FromTopic; ///< the title of the topic that holds the reference, without brackets
    std::string ToTopic;   ///< as written, quotes removed
    std::string Text;      ///< at most 32,000 characters and "???"
};

/// The open book: its file, its header, and the tables that one scan of the file fills. The text of a topic
/// stays in the file and is read from its recorded position when it is needed. Only edited topics are in
/// memory.
struct Book : BookHeader, OldNames
{
    Book();

    std::string BookPath; ///< as the user or the command line gave it; empty when none is open
    std::string WorkDir;  ///< default folder of a path that has none
    bool LockBook = false;
    FilePos BookStartPos = 0; ///< position of the first byte after the header line

    Array1<std::string> TopicNames; ///< header lines, trimmed, with their brackets, in file order
    Array1<FilePos> TopicPos;       ///< where each header line begins
    Array1<TopicRec> TopicRecs;
    Count16 TopicCount;
    /// Changes when a topic number begins to mean another topic: in `ResetBook` and when topics move. Code
    /// that stores topic numbers, such as the advisor's answers, compares it.
    std::uint32_t TopicOrder = 0;

    Array1<XrefRec> Xrefs;
    Count16 XrefCount;

    Count16 CurrentTopicNo;       ///< the topic on show; during a scan the running count
    std::string CurrentTopicName; ///< "[Title]" while the topic is on show; a bare title before it is shown
    std::string StartTopic;       ///< the topic named on the command line
    ChangeFlag BookChanged;       ///< set by every edit, after the tables have changed
    FilePos LogicPos = 0;         ///< after the "<IXML>" line of the topic on show

    std::unique_ptr<BookFile> File; ///< open while the book is shown
    std::string OpenPath;           ///< the real path of `File`
    FilePos ScanEndPos = 0;         ///< where the scan stopped: the end of the last topic

    /// Whether there is something to show, edit or save: an open file, or a new book's topics in memory.
    [[nodiscard]] bool IsOpen() const { return !BookPath.empty() || TopicCount > 0; }

    [[nodiscard]] bool IsPlainText() const { return BookVersion == 0; }
};

/// The growth of the tables: when a number passes a table's bound, the new bound is that number plus this.
inline constexpr int TopicGrowthStep = 49;

/// A topic's title: its header line without the brackets.
[[nodiscard]] std::string TitleOf(const Book& book, int number);

/// Makes room for topic `number` in the three topic tables, which always grow together.
void GrowTopicTables(Book& book, int number);

/// Clears the positions, names, header fields, counts and all elements of the tables. The version becomes
/// 5.0 and the bounds of the tables stay. The caller handles the open file and `BookPath`.
void ResetBook(Book& book);

} // namespace ls
