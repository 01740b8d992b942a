#include "book/XrefLists.h"

#include "book/Book.h"

namespace ls {

XrefLists FindXrefs(const Book& book, std::string_view title)
{
    XrefLists lists;
    for (int i = 1; i <= book.XrefCount; ++i) {
        const XrefRec& xref = book.Xrefs(i);
        if (xref.FromTopic == title) {
            lists.to.push_back({xref.ToTopic, i});
        }
        if (xref.ToTopic == title) {
            lists.in.push_back({xref.FromTopic, i});
        }
    }
    return lists;
}

} // namespace ls
