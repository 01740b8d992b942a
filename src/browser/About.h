#pragma once

#include "base/Seams.h"

namespace ls {

struct Book;

/// The box that tells about the program, and about the book's author where one is named.
void ShowAbout(const Book& book, const Seams& seams);

} // namespace ls
