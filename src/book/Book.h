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

/// What was edited of one topic. Empty texts mean that the topic is unedited and stands in the file.
struct TopicRec
{
    std::string Text;
    std::string Logic;
    bool Deleted = false; ///< neither listed nor saved
};

/// A reference from one topic to another, with its note.
struct XrefRec
{
    std::string FromTopic; ///< the topic it stands in, without brackets
    std::string ToTopic;   ///< as written, quotes removed
    std::string Text;      ///< at most 32,000 characters and "???"
};

/// The open book: its file, its header, and the tables that one scan of it filled. A topic's text stays in
/// the file and is read from its recorded position whenever it is needed; only edited topics are held in
/// memory.
struct Book : BookHeader, OldNames
{
    Book();

    std::string BookPath; ///< as the user or the command line gave it; empty when none is open
    std::string WorkDir;  ///< default folder of a path that has none
    bool LockBook = false;
    FilePos BookStartPos = 0; ///< of the first byte behind the header line

    Array1<std::string> TopicNames; ///< header lines, trimmed, with their brackets, in file order
    Array1<FilePos> TopicPos;       ///< where each header line begins
    Array1<TopicRec> TopicRecs;
    Count16 TopicCount;
    /// Changes whenever topic numbers begin to mean other topics: by `ResetBook` and by a move. Whoever keeps
    /// topic numbers beyond that (the advisor's answers) compares it.
    std::uint32_t TopicOrder = 0;

    Array1<XrefRec> Xrefs;
    Count16 XrefCount;

    Count16 CurrentTopicNo;       ///< the topic on show; the running counter while scanning
    std::string CurrentTopicName; ///< a bare title when navigation asks for it, "[Title]" while it is on show
    std::string StartTopic;       ///< asked for on the command line
    ChangeFlag BookChanged;       ///< set by every edit, when the tables hold it
    FilePos LogicPos = 0;         ///< behind the "<IXML>" line of the topic on show

    std::unique_ptr<BookFile> File; ///< open as long as the book is shown
    std::string OpenPath;           ///< the real path of `File`
    FilePos ScanEndPos = 0;         ///< where the scan stopped: the end of the last topic

    /// Whether there is anything to show, edit or save: an open file, or a new book's topics in memory.
    [[nodiscard]] bool IsOpen() const { return !BookPath.empty() || TopicCount > 0; }

    [[nodiscard]] bool IsPlainText() const { return BookVersion == 0; }
};

/// How the tables grow: past its bound, a table's bound becomes the new number plus this.
inline constexpr int TopicGrowthStep = 49;

/// Makes room for topic `number` in the three topic tables, which always grow together.
void GrowTopicTables(Book& book, int number);

/// Forgets the book: positions, names, header fields (the version goes back to 5.0), counts, and every
/// element of the tables, whose bounds stay. The open file and `BookPath` are the caller's business.
void ResetBook(Book& book);

} // namespace ls
