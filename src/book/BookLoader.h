#pragma once

#include "base/Count16.h"
#include "base/Progress.h"
#include "base/Seams.h"
#include "book/Book.h"

#include <string>

namespace ls {

class LineCursor;

/// The path of the file that `BookPath` names, before the lookup of its exact spelling. "LS:" at the start
/// means the program's folder. A path without a separator is in `WorkDir`, if that is set.
[[nodiscard]] std::string PathToOpen(const Book& book, const Seams& seams);

/// Opens `BookPath` as the book's file and reads its header line.
///
/// The file is the one that `PathToOpen` names. If it is no book, the user may open it as a plain text file
/// (`BookVersion` 0). Returns true with the file open and ready to be shown. Returns false with no file open
/// after a message, or if the user declines. `BookPath` does not change.
bool OpenBook(Book& book, const Seams& seams);

/// Closes the book's file, if one is open.
void CloseBook(Book& book);

/// A cursor at the beginning of the book's file. For a book that was never saved it reads an empty file.
[[nodiscard]] LineCursor CursorOf(const Book& book);

/// Fills the topic table and the cross references from the open file, starting after the header line.
///
/// The caller has set `CurrentTopicNo` to 0. A read error shows its message, ends the program and returns
/// false. A count above 32,767 shows "Overflow", closes the file, resets the book, clears `BookPath` and
/// returns false: with a cut table, a save would lose topics.
bool ScanBook(Book& book, const Seams& seams, Progress* progress = nullptr);

/// The result of looking up a topic in the file.
enum class TopicLocation
{
    Found,
    Unknown,    ///< the table has no such topic, or it is not in the file yet
    Unreadable, ///< a read error, or a file that has become shorter (error 62)
    Moved,      ///< the topic's header line is no longer where the scan found it
};

/// Positions `cursor` at the first body line of the topic with this header line ("[Title]"). Shows no
/// message. `number` is used as in `LocateTopic`. `error` is set for `Unreadable`.
[[nodiscard]] TopicLocation GoToTopic(const Book& book, LineCursor& cursor, const std::string& key,
                                      Count16& number, FileError& error);

/// Positions `cursor` at the first body line of a topic.
///
/// `name` is the title with or without brackets. `number` is its number in the table, or 0 to look it up:
/// then the first topic with exactly that name counts, also a deleted one. If the name is unknown, the file
/// cannot be read, or the header line is no longer where the scan found it, a message is shown and `name` is
/// cleared.
void LocateTopic(const Book& book, const Seams& seams, LineCursor& cursor, std::string& name,
                 Count16& number);

/// The message for a topic that the book does not have; `key` is its title in brackets.
void ShowNotFound(const Seams& seams, const std::string& key);

/// The message for a topic that cannot be read.
void ShowFetchError(const Seams& seams, const std::string& name, const FileError& error);

/// Copies a topic's text and logic block from the file into its `TopicRec`, so that they can be edited.
///
/// On failure a message is shown, the topic stays unedited, `name` is empty, `number` is 0, and the result
/// is false. A plain text file has no table. It is read whole, into `plainText` if that is given.
bool LoadTopicRec(Book& book, const Seams& seams, std::string& name, Count16& number,
                  std::string* plainText = nullptr);

/// Reads the logic block of a topic from the file, from its "<IXML>" line on. The next line need not be
/// "<LOGIC>". The lines of `logic` end in CR LF. If the topic has no block, `logic` does not change. Returns
/// false after a message.
[[nodiscard]] bool LoadLogicFromFile(const Book& book, const Seams& seams, Count16 number,
                                     std::string& logic);

} // namespace ls
