#pragma once

#include "base/LineCursor.h"
#include "base/Seams.h"

#include <string_view>

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

/// Whether the line is the first of the next topic. It ends every scan of a logic block.
[[nodiscard]] inline bool StartsTopic(std::string_view line)
{
    return !line.empty() && line.front() == '[';
}

} // namespace ls
