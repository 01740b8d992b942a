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
/// Returns false for a book's header with an unknown key or a "/" without "="; the fields read before it
/// stay. A line that is no book's header leaves every field empty and returns true.
bool ParseBookHeader(std::string_view line, BookHeader& header);

/// Whether a header belongs to a book: its magic, and a version of 4.0 or later.
[[nodiscard]] bool IsBook(const BookHeader& header);

/// The header line as it is saved, without its line end: version 5.3, then each field that is not empty.
/// A double quote inside a value is not escaped.
[[nodiscard]] std::string HeaderLine(const BookHeader& header);

} // namespace ls
