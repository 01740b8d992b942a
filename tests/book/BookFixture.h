#pragma once

#include "book/Book.h"
#include "book/BookLoader.h"
#include "support/TestSeams.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ls {

using Strings = std::vector<std::string>;

/// A book in memory that the real loader opens and scans.
struct BookFixture : testing::Test
{
    test::TestSeams world;
    Book book;

    bool Open(const std::string& bytes)
    {
        world.files["/work/Book.IDA"] = bytes;
        book.BookPath = "/work/Book.IDA";
        return OpenBook(book, world.Get());
    }

    bool Scan(const std::string& bytes) { return Open(bytes) && ScanBook(book, world.Get()); }

    [[nodiscard]] Strings Names() const
    {
        return {book.TopicNames.begin(), book.TopicNames.begin() + book.TopicCount};
    }

    /// Every cross reference as "from>to:text".
    [[nodiscard]] Strings XrefTexts() const
    {
        Strings texts;
        for (int i = 1; i <= book.XrefCount; ++i) {
            const XrefRec& xref = book.Xrefs(i);
            texts.push_back(xref.FromTopic + ">" + xref.ToTopic + ":" + xref.Text);
        }
        return texts;
    }
};

} // namespace ls
