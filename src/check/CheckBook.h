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

/// Everything in the book's file that would surprise its author, by line. Shows no boxes.
///
/// The book is open and scanned. Unsaved edits do not count: the lines are those of the file. After a read
/// error or a cancel, the list holds the findings up to there; `error` is the read error.
[[nodiscard]] std::vector<Finding> CheckBook(const Book& book, const Seams& seams, Progress* progress,
                                             FileError& error);

/// The same for the text of one topic's logic block, "<IXML>" first, as an editor holds it. Lines count in
/// that text. Other blocks that it uses are taken as edited, else from the file. `topic` is the number of the
/// text's topic. After a read error a box is shown and the list is empty, because the unread block could
/// change every result.
[[nodiscard]] std::vector<Finding> CheckLogicText(const Book& book, const Seams& seams, int topic,
                                                  const std::string& text);

/// The box for a read error during a check.
void ShowCheckError(const Book& book, const Seams& seams, const FileError& error);

} // namespace ls
