#pragma once

#include "base/Seams.h"
#include "recovery/Journal.h"

namespace ls {

struct Book;

/// Whether a book has edits that saving it would store, or an open form holds edits.
[[nodiscard]] bool HasEdits(const Book& book, const RunningEdits& running);

/// The present edits of a book. Does not change the book, and reads nothing but the size of its file.
[[nodiscard]] Journal JournalOf(const Book& book, const RunningEdits& running, const Seams& seams);

} // namespace ls
