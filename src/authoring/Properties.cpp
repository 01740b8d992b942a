#include "authoring/Properties.h"

#include "authoring/TextEditing.h"
#include "base/CodePage.h"
#include "base/Messages.h"
#include "book/Book.h"

#include <array>
#include <optional>
#include <string_view>

namespace ls {

namespace {

constexpr std::string_view AcceptsComments = "YES";

struct Field
{
    const char* name; ///< its label in the form
    std::string BookHeader::*value;
};

constexpr std::array<Field, 4> Fields = {{{"Book Author(s)", &BookHeader::BookAuthor},
                                          {"Book Copyright", &BookHeader::BookCopyright},
                                          {"Web site URL", &BookHeader::BookUrl},
                                          {"Web site accepts comments", &BookHeader::BookPost}}};

// False, after the warning, if the text has a character that books cannot hold.
bool Take(const Seams& seams, const char* name, const std::string& utf8, std::string& value)
{
    Unmapped unmapped;
    std::optional<std::string> bookText = ToBook(utf8, &unmapped);
    if (!bookText) {
        ShowUnmapped(seams, name, unmapped.character);
        return false;
    }
    value = *bookText;
    return true;
}

bool MayKeep(const Seams& seams, const BookHeader& header)
{
    std::string misread;
    for (const std::string& one : MisreadProperties(header)) {
        misread += "\n" + one;
    }
    return misread.empty() ||
           seams.messages.MsgBox("The saved book would not give these back as they stand:\n" + misread +
                                     "\n\nKeep them all the same?",
                                 Icon::Question, Buttons::OkCancel) == Reply::Ok;
}

} // namespace

Properties LoadProperties(const Book& book)
{
    return {FromBook(book.BookAuthor), FromBook(book.BookCopyright), FromBook(book.BookUrl),
            book.BookPost == AcceptsComments};
}

std::vector<std::string> MisreadProperties(const BookHeader& header)
{
    const std::string line = HeaderLine(header);
    BookHeader read;
    const bool valid = ParseBookHeader(std::string_view(line).substr(0, line.find('\r')), read);
    std::vector<std::string> misread;
    for (const Field& field : Fields) {
        if (read.*field.value != header.*field.value) {
            misread.push_back(std::string(field.name) + ": \"" + FromBook(header.*field.value) +
                              "\" would become \"" + FromBook(read.*field.value) + "\".");
        }
    }
    if (misread.empty() && !valid) {
        misread.emplace_back("The header line would be reported as invalid.");
    }
    return misread;
}

bool SaveProperties(Book& book, const Seams& seams, const Properties& properties)
{
    BookHeader header = book;
    if (!Take(seams, Fields[0].name, properties.author, header.BookAuthor) ||
        !Take(seams, Fields[1].name, properties.copyright, header.BookCopyright) ||
        !Take(seams, Fields[2].name, properties.webUrl, header.BookUrl)) {
        return false;
    }
    header.BookPost = properties.webPost ? AcceptsComments : std::string_view();
    if (!MayKeep(seams, header)) {
        return false;
    }
    static_cast<BookHeader&>(book) = header;
    book.BookChanged = true;
    return true;
}

} // namespace ls
