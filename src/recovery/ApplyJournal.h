#pragma once

#include "base/Seams.h"
#include "recovery/Journal.h"

#include <string>
#include <vector>

namespace ls {

struct Book;

/// Whether a journal's edits belong to an open book, which was just scanned and is not edited: the same file
/// (however its path is spelled), of the same size, with the same topic names in the same order. A journal
/// whose table or whose book could not be read fits none.
[[nodiscard]] bool FitsBook(const Journal& journal, const Book& book, const Seams& seams);

/// Brings the edits into the book that they fit: its header fields, its topics in their order with those that
/// were added, what was removed, and the edited texts and logic blocks. The book is marked as changed, and no
/// topic is the current one.
///
/// Gives what was being typed, by the numbers that the topics have in the book now.
RunningEdits ApplyJournal(const Journal& journal, Book& book);

/// Whether anything of a journal's edits would be in the new book that `AsNewBook` makes. What was removed or
/// moved in a file would not; nor would the header of a file, which the journal holds whether it was edited
/// or not.
[[nodiscard]] bool HasNewBookEdits(const Journal& journal);

/// Makes a new book, never saved, of the topics that were edited, in their order. The book was reset and has
/// no file; topics that were not edited stand in the old file only. The rest is as with `ApplyJournal`; a
/// journal without edited topics gives a book without topics.
RunningEdits AsNewBook(const Journal& journal, Book& book);

/// Takes what was being typed into the book as if it had been accepted. A character that books cannot hold
/// becomes its number ("U+2192"). A topic that is not in memory is brought there first: its other half would
/// be lost when the book is saved.
///
/// Gives whatever the author should look at before the book is saved, as whole sentences in UTF-8: such
/// characters, what would not be read back as it was typed, and what was not accepted but is done now.
std::vector<std::string> KeepRunningEdits(Book& book, const Seams& seams, const RunningEdits& running);

} // namespace ls
