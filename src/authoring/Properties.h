#pragma once

#include "base/Seams.h"

#include <string>
#include <vector>

namespace ls {

struct Book;
struct BookHeader;

/// The header fields of a book as the properties form shows them; texts are UTF-8.
struct Properties
{
    std::string author;
    std::string copyright;
    std::string webUrl;
    bool webPost = false; ///< "Web site accepts comments"

    friend bool operator==(const Properties&, const Properties&) = default;
};

/// The fields to show. Comments count as accepted only when `BookPost` is "YES" in capitals.
[[nodiscard]] Properties LoadProperties(const Book& book);

/// The fields that the header line would not give back as they stand, a whole sentence in UTF-8 for each;
/// none when all is well.
[[nodiscard]] std::vector<std::string> MisreadProperties(const BookHeader& header);

/// O.K.: the fields take the texts as they stand, `BookPost` becomes "YES" or empty, and `BookChanged` is
/// set.
///
/// False, with nothing changed, after the warning about a character that books cannot hold, and when the
/// author declines to keep values that the header line would not give back the same.
[[nodiscard]] bool SaveProperties(Book& book, const Seams& seams, const Properties& properties);

} // namespace ls
