#include "browser/About.h"

#include "base/CodePage.h"
#include "base/Messages.h"
#include "base/Text.h"
#include "book/Book.h"
#include "render/html/WebSite.h"

namespace ls {

void ShowAbout(const Book& book, const Seams& seams)
{
    std::string text = std::string(AppTitle) +
                       ", version 5.3. Copyright (c) 2026 The Lodestar Advisor authors. It is available at " +
                       std::string(ProgramsWebSite);
    if (!book.BookAuthor.empty()) {
        text.append(LineEnd).append(LineEnd);
        text += "The book you are viewing was written by " + FromBook(book.BookAuthor);
        if (!book.BookCopyright.empty()) {
            text += ", copyright " + FromBook(book.BookCopyright);
        }
    }
    seams.messages.MsgBox(text, Icon::Information);
}

} // namespace ls
