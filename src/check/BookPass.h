#pragma once

#include "base/FileError.h"
#include "base/LineCursor.h"
#include "check/CheckedBlockReader.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace ls {

struct Book;
class BlockStore;
class Findings;
class Progress;

/// One pass over a book's file: it checks what a line tells by itself, and gathers the logic blocks.
///
/// Where topics begin is what the book's own scan says.
class BookPass
{
public:
    BookPass(const Book& book, Findings& findings, BlockStore& store, Progress* progress);

    /// The error that ended it; a cancelled pass ends without one.
    FileError Run();

private:
    void TakeLine(std::string_view line, FilePos pos, int number);
    void EndTopic();
    bool ReportProgress(FilePos pos);

    const Book& m_book;
    Findings& m_findings;
    BlockStore& m_store;
    Progress* m_progress;
    FilePos m_size = 0;
    FilePos m_nextReport = 0;
    int m_topic = 0;
    std::optional<CheckedBlockReader> m_block;
};

} // namespace ls
