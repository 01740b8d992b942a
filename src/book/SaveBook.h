#pragma once

#include "base/Seams.h"
#include "book/WriteBook.h"

#include <string>

namespace ls {

/// Writes the book into a new file of that name.
///
/// It is written under the name with ".part" behind it (".part2" and so on where that is taken), brought to
/// the disk, and then given its name by a step that fails if anything has that name by now: a file under the
/// final name is always whole, and none is ever overwritten. After a failure (a message was shown) what was
/// written stays as ".part"; after a cancel it is removed. The book in memory, its open file and its path
/// stay as they were.
[[nodiscard]] WriteOutcome SaveBook(const Book& book, const Seams& seams, const std::string& path,
                                    Progress* progress = nullptr);

} // namespace ls
