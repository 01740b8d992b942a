#pragma once

#include "base/Seams.h"
#include "recovery/Journal.h"

#include <string>
#include <vector>

namespace ls {

struct Book;

/// Whether a journal's edits belong to an open book that is just scanned and has no edits. The file must be
/// the same (however its path is spelled), with the same size and the same topic names in the same order. A
/// journal whose table or book could not be read fits no book.
[[nodiscard]] bool FitsBook(const Journal& journal, const Book& book, const Seams& seams);

/// Applies the edits to the book that they fit: header fields, the order of topics, added and removed topics,
/// edited texts and logic blocks. The book counts as changed, and no topic is current.
///
/// Returns what the user was typing; its topic numbers are those of the book now.
RunningEdits ApplyJournal(const Journal& journal, Book& book);

/// Whether the new book of `AsNewBook` would hold any of a journal's edits. Removals and moves do not count.
/// Nor do the header fields of a book with a file, because a journal has them whether they were edited or
/// not.
[[nodiscard]] bool HasNewBookEdits(const Journal& journal);

/// Makes a new, never saved book of the edited topics, in their order. The book must be reset and have no
/// file. Topics without edits stay in the old file only. A journal without edited topics gives a book without
/// topics. Otherwise like `ApplyJournal`.
RunningEdits AsNewBook(const Journal& journal, Book& book);

/// Puts what the user was typing into the book, as if it were accepted. A character that books cannot hold
/// becomes its number ("U+2192"). A topic that is not in memory is loaded first; otherwise saving would lose
/// the half (text or logic) that was not edited.
///
/// Returns what the author should check before saving, as whole sentences in UTF-8: such characters, lines
/// that would be read back differently, and choices that were not accepted but are applied now.
std::vector<std::string> KeepRunningEdits(Book& book, const Seams& seams, const RunningEdits& running);

} // namespace ls
