#pragma once

#include "base/Seams.h"
#include "book/WriteBook.h"

#include <string>

namespace ls {

/// Writes the book into a new file with the name `path`.
///
/// 1. The book is written to `path` with ".part" added (".part2" and so on if that is taken).
/// 2. The file is flushed to the disk.
/// 3. The file is renamed to `path`. This fails if a file of that name exists by now.
///
/// So a file named `path` is always whole and never overwritten. After a failure (a message is shown) the
/// ".part" file stays. After a cancel it is removed. The book in memory, its open file and its path do not
/// change.
[[nodiscard]] WriteOutcome SaveBook(const Book& book, const Seams& seams, const std::string& path,
                                    Progress* progress = nullptr);

} // namespace ls
