#pragma once

#include "base/LineCursor.h"
#include "base/Seams.h"

namespace ls {

struct AdvisorTables;
struct Book;

/// The data shared by the parts of the advisor that read the book. A dialogue has one cursor: each search for
/// a text starts where the last read ended. All that the context refers to must outlive it.
struct AdvisorContext
{
    const Book& book;
    AdvisorTables& tables;
    Seams seams;
    LineCursor& cursor;
};

} // namespace ls
