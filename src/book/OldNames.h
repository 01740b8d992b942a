#pragma once

#include "base/Array1.h"
#include "base/Count16.h"

#include <cstddef>
#include <string>

namespace ls {

struct Book;

// Names that this program no longer needs. They exist for callers of the old names.

/// The fields of a book that no code reads any more.
struct OldNames
{
    OldNames();

    int BookFileNo = 2; ///< the file's number, from a time when open files had numbers

    /// Topics shown before. Always empty, since Back acts as Previous.
    Array1<std::string> BackHistory;
    Count16 BackCount;
};

/// The next line of a topic's text in memory: from character `position` (from 1) to the next CR LF. Moves
/// `position` past the CR LF. At the end of the text `doneFlag` becomes -1. `TextBody` replaces it.
std::string NextTopicLine(const Book& book, int topicIndex, std::size_t& position, int& doneFlag);

} // namespace ls
