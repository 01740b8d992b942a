#pragma once

#include <string>
#include <string_view>

namespace ls {

/// The fields of a book's first line. `BookVersion` 0 means a plain text file shown as one topic.
struct BookHeader
{
    std::string BookMagic;
    float BookVersion = 0;
    std::string BookAuthor;
    std::string BookCopyright;
    std::string BookUrl;
    std::string BookPost;

    friend bool operator==(const BookHeader&, const BookHeader&) = default;
};

/// Reads a header line: `LODESTAR BOOK V5.3 /AUTHOR="..." /COPYRIGHT="..." /URL="..." /POST="..."`.
///
/// Returns false when the line is a book's but holds an unknown key or a "/" without "="; the fields read so
/// far are kept. A line that is no book's leaves every field empty and is no fault here.
bool ParseBookHeader(std::string_view line, BookHeader& header);

/// Whether a header belongs to a book: its magic, and a version of 4.0 or later.
[[nodiscard]] bool IsBook(const BookHeader& header);

/// The header line as it is written, without its line end: version 5.3, and each field that is not empty.
/// Values are written as they are; a double quote inside one is not escaped.
[[nodiscard]] std::string HeaderLine(const BookHeader& header);

} // namespace ls
