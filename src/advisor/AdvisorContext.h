#pragma once

#include "base/LineCursor.h"
#include "base/Seams.h"

namespace ls {

struct AdvisorTables;
struct Book;

/// What the parts of the advisor that read the book work on. A dialogue has one cursor, and the next text is
/// searched from where the last read left it. The referents must outlive the context.
struct AdvisorContext
{
    const Book& book;
    AdvisorTables& tables;
    Seams seams;
    LineCursor& cursor;
};

} // namespace ls
