#pragma once

#include "base/FileError.h"
#include "base/Seams.h"
#include "check/Finding.h"

#include <string>
#include <string_view>
#include <vector>

namespace ls {

struct Book;
class Progress;

/// Everything in the book's file that would surprise its author, by line. Nothing is shown on the way.
///
/// The book is open and scanned. What was edited in memory and not saved does not count: the lines are those
/// of the file. When the file cannot be read to its end `error` tells, and the list ends there; a cancelled
/// check gives what was found so far.
[[nodiscard]] std::vector<Finding> CheckBook(const Book& book, const Seams& seams, Progress* progress,
                                             FileError& error);

/// The same for the text of one topic's logic block, "<IXML>" first, as an editor holds it: lines count in
/// that text. Blocks that it leads to are taken as they were edited, else from the file. `topic` is the
/// number of the topic that the text belongs to. When the file cannot be read a box tells, and nothing
/// is listed: what a block in it holds might make all the difference.
[[nodiscard]] std::vector<Finding> CheckLogicText(const Book& book, const Seams& seams, int topic,
                                                  const std::string& text);

/// The box for a book's file that a check could not read.
void ShowCheckError(const Book& book, const Seams& seams, const FileError& error);

} // namespace ls
