#include "browser/About.h"

#include "book/Book.h"
#include "support/TestSeams.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

using Strings = std::vector<std::string>;

const std::string Program =
    "information|Lodestar Advisor|Lodestar Advisor, version 5.3. Copyright (c) 2026 The "
    "Lodestar Advisor authors. It is available at http://www.lodestar-advisor.example/";

struct AboutTest : testing::Test
{
    test::TestSeams world;
    Book book;

    Strings Shown()
    {
        ShowAbout(book, world.Get());
        return world.messages.Take();
    }
};

TEST_F(AboutTest, noAuthor_tellsOfTheProgramOnly)
{
    EXPECT_EQ(Shown(), Strings{Program});
    book.BookCopyright = "2026";
    EXPECT_EQ(Shown(), Strings{Program}) << "a copyright without an author is not shown";
}

TEST_F(AboutTest, author_isNamedInAParagraphOfItsOwn)
{
    book.BookAuthor = "Ren\xE9";
    EXPECT_EQ(Shown(), Strings{Program + "\r\n\r\nThe book you are viewing was written by René"});
}

TEST_F(AboutTest, copyright_followsTheAuthor)
{
    book.BookAuthor = "Ann <b> \"Author\"";
    book.BookCopyright = "\xA9 2026 Ann";
    EXPECT_EQ(Shown(),
              Strings{Program + "\r\n\r\nThe book you are viewing was written by Ann <b> \"Author\", "
                                "copyright © 2026 Ann"});
}

} // namespace
} // namespace ls
