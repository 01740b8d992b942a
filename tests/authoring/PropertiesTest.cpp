#include "authoring/Properties.h"

#include "book/Book.h"
#include "support/RowName.h"
#include "support/TestSeams.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

using Strings = std::vector<std::string>;

struct PropertiesTest : testing::Test
{
    test::TestSeams world;
    Book book;

    bool Save(const Properties& properties) { return SaveProperties(book, world.Get(), properties); }

    /// "author|copyright|url|post"
    [[nodiscard]] std::string Fields() const
    {
        return book.BookAuthor + "|" + book.BookCopyright + "|" + book.BookUrl + "|" + book.BookPost;
    }
};

TEST_F(PropertiesTest, load_showsTheFieldsAsUtf8)
{
    book.BookAuthor = "Ren\xE9";
    book.BookCopyright = "\xA9 2001";
    book.BookUrl = "http://x";
    book.BookPost = "YES";
    const Properties shown = LoadProperties(book);
    EXPECT_EQ(shown.author, "Ren\xC3\xA9");
    EXPECT_EQ(shown.copyright, "\xC2\xA9 2001");
    EXPECT_EQ(shown.webUrl, "http://x");
    EXPECT_TRUE(shown.webPost);
}

TEST_F(PropertiesTest, load_postInOtherSpelling_isUnchecked)
{
    for (const char* post : {"yes", "Yes", "YES ", "NO", ""}) {
        book.BookPost = post;
        EXPECT_FALSE(LoadProperties(book).webPost) << post;
    }
}

TEST_F(PropertiesTest, ok_takesTheTextsAsTheyStand)
{
    book.BookVersion = 5.0F;
    EXPECT_TRUE(Save({" Ren\xC3\xA9", "\xC2\xA9", "no address", true}));
    EXPECT_EQ(Fields(), " Ren\xE9|\xA9|no address|YES");
    EXPECT_TRUE(book.BookChanged);
    EXPECT_EQ(book.BookVersion, 5.0F);
    EXPECT_EQ(world.messages.Take(), Strings());
}

TEST_F(PropertiesTest, ok_allEmpty_isAccepted)
{
    book.BookUrl = "http://x";
    book.BookPost = "YES";
    EXPECT_TRUE(Save({}));
    EXPECT_EQ(Fields(), "|||");
    EXPECT_TRUE(book.BookChanged);
}

TEST_F(PropertiesTest, lowerCaseYes_okWithoutTouchingIt_clearsIt)
{
    book.BookPost = "yes";
    EXPECT_TRUE(Save(LoadProperties(book)));
    EXPECT_EQ(book.BookPost, "");
}

TEST_F(PropertiesTest, characterOutsideTheCodePage_namesFieldAndCharacter)
{
    EXPECT_FALSE(Save({"\xE2\x86\x92", "", "", false}));
    EXPECT_FALSE(Save({"a", "\xE2\x86\x92", "", false}));
    EXPECT_FALSE(Save({"a", "b", "\xE2\x86\x92", false}));
    const std::string end =
        " holds the character \"\xE2\x86\x92\" (U+2192), which a book cannot hold. Please replace it.";
    EXPECT_EQ(world.messages.Take(), (Strings{"warning|Lodestar Advisor|Book Author(s)" + end,
                                              "warning|Lodestar Advisor|Book Copyright" + end,
                                              "warning|Lodestar Advisor|Web site URL" + end}));
    EXPECT_EQ(Fields(), "|||");
    EXPECT_FALSE(book.BookChanged);
}

struct MisreadCase
{
    const char* name;
    Properties entered;
    const char* told; ///< the middle lines of the question; empty if nothing is asked
};

struct Misread : PropertiesTest, testing::WithParamInterface<MisreadCase>
{
};

TEST_P(Misread, ok_asksWhenTheHeaderWouldNotGiveItBack)
{
    const std::string told = GetParam().told;
    const Strings asked{
        "question|Lodestar Advisor|The saved book would not give these back as they stand:\n" + told +
        "\n\nKeep them all the same?|OKCancel"};
    if (told.empty()) {
        EXPECT_TRUE(Save(GetParam().entered));
        EXPECT_EQ(world.messages.Take(), Strings());
        return;
    }
    world.messages.replies = {Reply::Cancel};
    EXPECT_FALSE(Save(GetParam().entered));
    EXPECT_EQ(world.messages.Take(), asked);
    EXPECT_EQ(Fields(), "|||");
    EXPECT_FALSE(book.BookChanged);
    world.messages.replies = {Reply::Ok};
    EXPECT_TRUE(Save(GetParam().entered));
    EXPECT_EQ(world.messages.Take(), asked);
    EXPECT_EQ(LoadProperties(book).author, GetParam().entered.author);
    EXPECT_TRUE(book.BookChanged);
}

const MisreadCase MisreadCases[] = {
    {"plain", {"A", "B", "http://x.y/z?a=b", true}, ""},
    {"slashes", {"A/B", "C/D", "", true}, ""},
    {"blanksInside", {"  A B  ", "", "", false}, ""},
    {"quoteInTheMiddle", {"A\"B", "", "", false}, ""},
    {"quoteAndSlash", {"A\"/B=", "", "", false}, "\nBook Author(s): \"A\"/B=\" would become \"A\"."},
    {"quotedSlash", {"\"A/B\"", "", "", false}, "\nBook Author(s): \"\"A/B\"\" would become \"\"A\"."},
    {"carriageReturn", {"A\rB", "", "", false}, "\nBook Author(s): \"A\rB\" would become \"A\"."},
};

INSTANTIATE_TEST_SUITE_P(Values, Misread, testing::ValuesIn(MisreadCases), test::RowName());

} // namespace
} // namespace ls
