// A book's first line: a header that was read is written, and must read back the same.

#include "Fuzz.h"
#include "book/BookHeader.h"

#include <cmath>

namespace ls::fuzz {

void TestInput(Input& input)
{
    BookHeader header;
    const bool valid = ParseBookHeader(input.Text(), header);
    Require(std::isfinite(header.BookVersion), "the version is a number");
    Require(valid || !header.BookMagic.empty(), "only a book's header can be invalid");
    Require(IsBook(header) == (header.BookMagic == "LODESTAR BOOK" && header.BookVersion >= 4),
            "a book has a magic and a version");
    if (!IsBook(header)) {
        return;
    }
    BookHeader again;
    const bool writtenIsValid = ParseBookHeader(HeaderLine(header), again);
    Require(IsBook(again), "a written header is a book's");
    const std::string fields = header.BookAuthor + header.BookCopyright + header.BookUrl + header.BookPost;
    if (fields.find('"') != std::string::npos) {
        return; // quotes are written without escapes, and the properties form asks about them
    }
    Require(writtenIsValid, "a written header is valid");
    RequireEqual(again.BookAuthor, header.BookAuthor, "the author reads back");
    RequireEqual(again.BookCopyright, header.BookCopyright, "the copyright reads back");
    RequireEqual(again.BookUrl, header.BookUrl, "the address reads back");
    RequireEqual(again.BookPost, header.BookPost, "the comments' mark reads back");
}

} // namespace ls::fuzz
