#pragma once

#include "base/Seams.h"

#include <string>
#include <vector>

namespace ls {

struct Book;
struct BookHeader;

/// The header fields of a book, as the properties form shows them. Texts are UTF-8.
struct Properties
{
    std::string author;
    std::string copyright;
    std::string webUrl;
    bool webPost = false; ///< "Web site accepts comments"

    friend bool operator==(const Properties&, const Properties&) = default;
};

/// The fields to show. Comments are accepted only if `BookPost` is "YES", in capitals.
[[nodiscard]] Properties LoadProperties(const Book& book);

/// The fields that would be read back differently from the header line: a whole sentence in UTF-8 for each.
[[nodiscard]] std::vector<std::string> MisreadProperties(const BookHeader& header);

/// O.K.: stores the texts unchanged, sets `BookPost` to "YES" or empties it, and sets `BookChanged`.
///
/// False, with nothing changed, after the warning about a character that books cannot hold, or if the author
/// does not accept values that would be read back differently from the header line.
[[nodiscard]] bool SaveProperties(Book& book, const Seams& seams, const Properties& properties);

} // namespace ls
