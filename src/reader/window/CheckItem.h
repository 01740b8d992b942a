#pragma once

#include "base/Seams.h"
#include "check/Finding.h"

#include <string>
#include <vector>

namespace ls {

struct Book;
class MainView;
class Navigation;
class Progress;

/// The result of checking the open book, for the window.
struct CheckedBook
{
    std::vector<Finding> findings;
    std::string summary; ///< how many findings there are, UTF-8
    std::string notes;   ///< what the list leaves out, one sentence a line; may be empty; UTF-8
};

/// Checks the file of the open book. The findings are those of `lsbook check` for that file: topics that were
/// edited, moved or removed in memory change nothing. A read error is reported in a box.
[[nodiscard]] CheckedBook CheckOpenBook(const Book& book, const Seams& seams, Progress* progress);

/// Check Book of the main window: shows the findings and goes to the topic of the one that the user chooses.
void CheckItem_Click(Book& book, const Seams& seams, MainView& view, Navigation& navigation);

} // namespace ls
