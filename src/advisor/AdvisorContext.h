#pragma once

#include "base/LineCursor.h"
#include "base/Seams.h"

namespace ls {

struct AdvisorTables;
struct Book;

/// What the reading half of the advisor works on. One dialogue has one cursor: where its last read left it
/// decides where the next text is searched. The referents outlive it.
struct AdvisorContext
{
    const Book& book;
    AdvisorTables& tables;
    Seams seams;
    LineCursor& cursor;
};

} // namespace ls
