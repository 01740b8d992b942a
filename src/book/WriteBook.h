#pragma once

#include "base/Seams.h"

namespace ls {

struct Book;
class OutputFile;
class Progress;

/// The result of writing a book.
enum class WriteOutcome
{
    Written,
    Failed,    ///< a message was shown; the output is useless
    Cancelled, ///< the user cancelled
};

/// Writes the header and every topic that is not deleted, in table order, into `output`.
///
/// An unedited topic is copied from the book's file, character by character, and each line ends in CR LF. An
/// edited topic is written from memory. Intended: one more CR LF follows its text and its logic block, so a
/// saved edited topic gains an empty line. A block that the logic editor did not take is copied from the file
/// after the edited text.
///
/// The writing stops if another program changed the file: a topic's header line or its end is no longer where
/// the scan found it. No end mark and no index are written. The caller finishes `output`.
[[nodiscard]] WriteOutcome WriteBook(const Book& book, const Seams& seams, OutputFile& output,
                                     Progress* progress = nullptr);

} // namespace ls
