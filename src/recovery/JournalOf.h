#pragma once

#include "base/Seams.h"
#include "recovery/Journal.h"

namespace ls {

struct Book;

/// Whether a book has edits that saving it would keep, or that stand in an open form.
[[nodiscard]] bool HasEdits(const Book& book, const RunningEdits& running);

/// The edits of a book as they stand now. Nothing of it is changed, and nothing is read but the size of its
/// file.
[[nodiscard]] Journal JournalOf(const Book& book, const RunningEdits& running, const Seams& seams);

} // namespace ls
