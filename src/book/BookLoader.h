#pragma once

#include "base/Count16.h"
#include "base/Progress.h"
#include "base/Seams.h"
#include "book/Book.h"

#include <string>

namespace ls {

class LineCursor;

/// Where the file lies that `BookPath` names, before its spelling is looked up: "LS:" at the start names the
/// program's folder, and a path without a separator is taken in `WorkDir` when that is set.
[[nodiscard]] std::string PathToOpen(const Book& book, const Seams& seams);

/// Opens `BookPath` as the book's file and reads its header line.
///
/// The file is the one that `PathToOpen` names. A file that is no book is offered as a plain text file
/// (`BookVersion` 0). True when a file is open and may be shown; false after a message, or when the user
/// declined, with no file open. `BookPath` stays as given.
bool OpenBook(Book& book, const Seams& seams);

/// Closes the book's file, if one is open.
void CloseBook(Book& book);

/// A cursor at the beginning of the book's file. A book that was never saved has none and reads as empty.
[[nodiscard]] LineCursor CursorOf(const Book& book);

/// Fills the topic table and the cross references from the open file, starting behind the header line.
///
/// The caller has set `CurrentTopicNo` to 0. A read error shows its message and ends the program. A count
/// that passes 32,767 shows "Overflow", closes the file, resets the book and clears `BookPath`, since a cut
/// table would be saved short; false then and after a read error.
bool ScanBook(Book& book, const Seams& seams, Progress* progress = nullptr);

/// What looking a topic up in the file came to.
enum class TopicLocation
{
    Found,
    Unknown,    ///< the table has no such topic, or it was never saved
    Unreadable, ///< a read error, or a file that has become shorter (error 62)
    Moved,      ///< its header line is no longer where the scan saw it
};

/// Positions `cursor` at the first body line of the topic with this header line ("[Title]"), without any
/// message. `number` as for `LocateTopic`; `error` is the error of one that is `Unreadable`.
[[nodiscard]] TopicLocation GoToTopic(const Book& book, LineCursor& cursor, const std::string& key,
                                      Count16& number, FileError& error);

/// Positions `cursor` at the first body line of a topic.
///
/// `name` is the title with or without brackets; `number` its place in the table, or 0 when it is to be
/// looked up: then the first topic of exactly that name counts, deleted ones too. On failure a message is
/// shown and `name` is cleared: the name is unknown, the file cannot be read, or the header line is no longer
/// where the scan saw it.
void LocateTopic(const Book& book, const Seams& seams, LineCursor& cursor, std::string& name,
                 Count16& number);

/// The message for a topic that the book does not have; `key` is its title in brackets.
void ShowNotFound(const Seams& seams, const std::string& key);

/// The message for a topic that cannot be read.
void ShowFetchError(const Seams& seams, const std::string& name, const FileError& error);

/// Brings a topic's text and logic block from the file into its `TopicRec`, ready to be edited.
///
/// On failure (after `LocateTopic`'s message, or that of a read error) the topic stays unedited, `name` is
/// empty and `number` 0, and the answer is false. A plain text file is read whole; it has no table, and its
/// text is put into `plainText` when that is given.
bool LoadTopicRec(Book& book, const Seams& seams, std::string& name, Count16& number,
                  std::string* plainText = nullptr);

/// The logic block of a topic as it stands in the file, from its "<IXML>" line on, whatever follows that
/// line; its lines end in CR LF, and `logic` stays as it is where the topic has no block. False after a
/// message.
[[nodiscard]] bool LoadLogicFromFile(const Book& book, const Seams& seams, Count16 number,
                                     std::string& logic);

} // namespace ls
