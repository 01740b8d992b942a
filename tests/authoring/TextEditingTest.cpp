#include "authoring/TextEditing.h"

#include "book/Book.h"
#include "book/BookLoader.h"
#include "support/RowName.h"
#include "support/TestSeams.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

using Strings = std::vector<std::string>;

struct TopicTextTest : testing::Test
{
    test::TestSeams world;
    Book book;

    TopicTextTest()
    {
        EXPECT_TRUE(book.TopicCount.Add());
        book.TopicNames(1) = "[A]";
        book.TopicRecs(1).Text = "old\r\n";
        book.CurrentTopicNo = 1;
        book.CurrentTopicName = "[A]";
    }

    DoneOutcome Done(const std::string& utf8) { return SaveTopicText(book, world.Get(), utf8); }
    [[nodiscard]] const std::string& Text() const { return book.TopicRecs(1).Text; }
};

TEST_F(TopicTextTest, textToEdit_isTheTextInMemoryAsUtf8)
{
    book.TopicRecs(1).Text = "caf\xE9 \x80\r\n";
    EXPECT_EQ(TextToEdit(book), "caf\xC3\xA9 \xE2\x82\xAC\r\n");
}

TEST_F(TopicTextTest, done_storesTheTextAndMarksTheBookChanged)
{
    EXPECT_TRUE(Done("caf\xC3\xA9\r\nB").stored);
    EXPECT_EQ(Text(), "caf\xE9\r\nB");
    EXPECT_TRUE(book.BookChanged);
    EXPECT_EQ(book.TopicRecs(1).Logic, "");
    EXPECT_EQ(world.messages.Take(), Strings());
}

TEST_F(TopicTextTest, done_everyByteComesBack)
{
    std::string bytes;
    for (int byte = 1; byte < 256; ++byte) {
        if (byte != '\r' && byte != '\n') {
            bytes += static_cast<char>(byte);
        }
    }
    book.TopicRecs(1).Text = bytes;
    EXPECT_TRUE(Done(TextToEdit(book)).stored);
    EXPECT_EQ(Text(), bytes);
}

struct EndCase
{
    const char* name;
    const char* typed;
    const char* stored;
};

struct LineEndsOfText : TopicTextTest, testing::WithParamInterface<EndCase>
{
};

TEST_P(LineEndsOfText, done_storesThemAsCrLf)
{
    EXPECT_TRUE(Done(GetParam().typed).stored);
    EXPECT_EQ(Text(), GetParam().stored);
}

const EndCase EndCases[] = {
    {"crLf", "a\r\nb\r\n", "a\r\nb\r\n"},
    {"lf", "a\nb\n", "a\r\nb\r\n"},
    {"cr", "a\rb\r", "a\r\nb\r\n"},
    {"mixed", "a\n\r\nb\r\rc", "a\r\n\r\nb\r\n\r\nc"},
    {"none", "a", "a"},
    {"emptied", "", "\r\n"},
    {"oneLineEnd", "\n", "\r\n"},
    {"blanksStay", "  a  \n", "  a  \r\n"},
};

INSTANTIATE_TEST_SUITE_P(Ends, LineEndsOfText, testing::ValuesIn(EndCases), test::RowName());

TEST_F(TopicTextTest, characterOutsideTheCodePage_isNamedWithItsLine)
{
    const DoneOutcome outcome = Done("a\r\n\nb \xE2\x86\x92 c");
    EXPECT_FALSE(outcome.stored);
    EXPECT_EQ(outcome.line, 3);
    EXPECT_EQ(
        world.messages.Take(),
        Strings{"warning|Lodestar Advisor|Line 3 holds the character \"\xE2\x86\x92\" (U+2192), which a "
                "book cannot hold. Please replace it."});
    EXPECT_EQ(Text(), "old\r\n");
    EXPECT_FALSE(book.BookChanged);
}

TEST_F(TopicTextTest, characterBeyondTheBasicPlane_isNamedWhole)
{
    EXPECT_FALSE(Done("\xF0\x9F\x98\x80").stored);
    EXPECT_EQ(world.messages.Take(),
              Strings{"warning|Lodestar Advisor|Line 1 holds the character \"\xF0\x9F\x98\x80\" (U+1F600), "
                      "which a book cannot hold. Please replace it."});
}

const char* const Question =
    "question|Lodestar Advisor|Not everything here would be text when the saved book "
    "is opened again:\n\nLine 2, \"[B]\", would start a new topic.\n\nKeep the text "
    "as it is?|OKCancel";

TEST_F(TopicTextTest, specialLineDeclined_keepsTheOldText)
{
    world.messages.replies = {Reply::Cancel};
    const DoneOutcome outcome = Done("a\n[B]\n");
    EXPECT_FALSE(outcome.stored);
    EXPECT_EQ(outcome.line, 2);
    EXPECT_EQ(world.messages.Take(), Strings{Question});
    EXPECT_EQ(Text(), "old\r\n");
    EXPECT_FALSE(book.BookChanged);
}

TEST_F(TopicTextTest, specialLineAccepted_isStored)
{
    world.messages.replies = {Reply::Ok};
    EXPECT_TRUE(Done("a\n[B]\n").stored);
    EXPECT_EQ(world.messages.Take(), Strings{Question});
    EXPECT_EQ(Text(), "a\r\n[B]\r\n");
    EXPECT_TRUE(book.BookChanged);
}

TEST_F(TopicTextTest, longText_isTakenWhole)
{
    std::string typed;
    std::string stored;
    for (int i = 0; i < 20000; ++i) {
        typed += "<XREF TOPIC=B>n</XREF>\n";
        stored += "<XREF TOPIC=B>n</XREF>\r\n";
    }
    EXPECT_TRUE(Done(typed).stored);
    EXPECT_EQ(Text(), stored);
}

TEST(Markup, closingTag_isTheOpeningOneWithASlash)
{
    EXPECT_EQ(ClosingTag("<B>"), "</B>");
    EXPECT_EQ(ClosingTag("<H1>"), "</H1>");
}

TEST(Markup, symbol_givesItsEntityWithoutSemicolon)
{
    test::TestSeams world;
    EXPECT_EQ(SymbolToInsert("<", world.Get()), "&LT");
    EXPECT_EQ(SymbolToInsert(">", world.Get()), "&GT");
    EXPECT_EQ(SymbolToInsert("&", world.Get()), "&AMP");
    EXPECT_EQ(SymbolToInsert("x", world.Get()), "");
    EXPECT_EQ(world.messages.Take(), Strings());
}

TEST(Markup, noSymbol_reminds)
{
    test::TestSeams world;
    EXPECT_EQ(SymbolToInsert("", world.Get()), std::nullopt);
    EXPECT_EQ(world.messages.Take(),
              Strings{"exclamation|Lodestar Advisor|First pick a symbol from the list."});
}

TEST(MayDropText, asksOnlyWhenTheTextWasChanged)
{
    test::TestSeams world;
    EXPECT_TRUE(MayDropText(false, world.Get()));
    EXPECT_EQ(world.messages.Take(), Strings());
    world.messages.replies = {Reply::Ok, Reply::Cancel};
    EXPECT_TRUE(MayDropText(true, world.Get()));
    EXPECT_FALSE(MayDropText(true, world.Get()));
    const std::string box = "question|Lodestar Advisor|Close without keeping your changes?|OKCancel";
    EXPECT_EQ(world.messages.Take(), (Strings{box, box}));
}

} // namespace
} // namespace ls
