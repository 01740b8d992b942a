#pragma once

#include "base/Seams.h"

namespace ls {

struct Book;
class OutputFile;
class Progress;

/// What writing a book came to.
enum class WriteOutcome
{
    Written,
    Failed,    ///< a message was shown; what was written so far is of no use
    Cancelled, ///< the user stopped it
};

/// Writes the header and every topic that is not deleted, in table order, into `output`.
///
/// An unedited topic is copied from the book's file, character for character, each line ended by CR LF; an
/// edited one is written from memory, its text and its logic block each followed by one more CR LF (a saved
/// edited topic gains an empty line, which is kept). A block that the editors did not take is copied from the
/// file behind the edited text. A topic whose header line is no longer where the scan saw it, or that no
/// longer ends there, stops the writing: somebody changed the file. No end mark and no index are written. The
/// caller finishes `output`.
[[nodiscard]] WriteOutcome WriteBook(const Book& book, const Seams& seams, OutputFile& output,
                                     Progress* progress = nullptr);

} // namespace ls
