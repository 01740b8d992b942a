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

/// What a check of the open book came to, as the window shows it.
struct CheckedBook
{
    std::vector<Finding> findings;
    std::string summary; ///< how many there are, or that there are none, UTF-8
    std::string notes;   ///< what the list leaves out, each sentence a line; empty when nothing, UTF-8
};

/// Checks the file of the open book as it stands: the list is the one that `lsbook check` gives of that file,
/// also while topics in memory were edited, moved or removed. A read error is told in a box.
[[nodiscard]] CheckedBook CheckOpenBook(const Book& book, const Seams& seams, Progress* progress);

/// The main window's Check Book: shows what the check finds, and goes to the topic of a finding that was
/// chosen there.
void CheckItem_Click(Book& book, const Seams& seams, MainView& view, Navigation& navigation);

} // namespace ls
