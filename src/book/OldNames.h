#pragma once

#include "base/Array1.h"
#include "base/Count16.h"

#include <cstddef>
#include <string>

namespace ls {

struct Book;

// Names that this program no longer needs, kept for callers of the old names.

/// The part of a book's state that nothing reads any more.
struct OldNames
{
    OldNames();

    int BookFileNo = 2; ///< the file's number, when open files had numbers

    /// Topics shown before. It is emptied with the book and never filled: Back acts as Previous.
    Array1<std::string> BackHistory;
    Count16 BackCount;
};

/// The next line of a topic's text in memory: from the 1-based character `position` up to the next CR LF,
/// which it passes. At the end of the text `doneFlag` becomes -1. `TextBody` replaces it.
std::string NextTopicLine(const Book& book, int topicIndex, std::size_t& position, int& doneFlag);

} // namespace ls
