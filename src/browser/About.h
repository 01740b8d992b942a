#pragma once

#include "base/Seams.h"

namespace ls {

struct Book;

/// The box about the program, and about the book's author if the book names one.
void ShowAbout(const Book& book, const Seams& seams);

} // namespace ls
