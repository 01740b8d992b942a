#include "GuideFixture.h"
#include "render/text/ShowTopic.h"

#include <set>
#include <string_view>

namespace ls {
namespace {

using test::GuideFixture;

using GuideTest = GuideFixture;

std::size_t CountOf(std::string_view text, std::string_view piece)
{
    std::size_t count = 0;
    for (auto at = text.find(piece); at != text.npos; at = text.find(piece, at + 1))
        ++count;
    return count;
}

TEST_F(GuideTest, open_header_hasEveryFieldAndNoMessage)
{
    EXPECT_EQ(book.BookAuthor, "The Lodestar Advisor authors");
    EXPECT_EQ(book.BookCopyright, "2026 The Lodestar Advisor authors");
    EXPECT_EQ(book.BookUrl, "http://www.lodestar-advisor.example/guide");
    EXPECT_EQ(book.BookPost, "YES");
    EXPECT_TRUE(world.messages.boxes.empty());
}

TEST_F(GuideTest, bytes_lineEnds_areCrLfThroughout)
{
    EXPECT_EQ(CountOf(bytes, "\n"), CountOf(bytes, "\r\n"));
    EXPECT_EQ(CountOf(bytes, "\r"), CountOf(bytes, "\r\n"));
    EXPECT_EQ(bytes.substr(bytes.size() - 2), "\r\n");
}

TEST_F(GuideTest, bytes_lettersBeyondAscii_areOneByteEach)
{
    EXPECT_NE(bytes.find("caf\xE9, Gr\xF6\xDF"
                         "e"),
              bytes.npos);
    EXPECT_EQ(bytes.find("\xC3\xA9"), bytes.npos) << "the guide was saved as UTF-8";
}

TEST_F(GuideTest, topics_every_isShownWithoutAMessageAndWithItsReferences)
{
    for (int i = 1; i <= book.TopicCount; ++i) {
        std::string name = book.TopicNames(i);
        Count16 number;
        ShownTopic shown;
        EXPECT_EQ(ShowTopic(book, world.Get(), name, number, 77, shown), ShowResult::Shown);
        EXPECT_TRUE(shown.xrefButton) << name;
        EXPECT_EQ(shown.advisorButton, name == "[Where to Read On]") << name;
    }
    EXPECT_TRUE(world.messages.boxes.empty());
}

TEST_F(GuideTest, text_everyMarkListAndEntity_isUsed)
{
    for (const char* piece :
         {"<H1>",   "</H1>",   "<H2>",     "</H2>",   "<H3>",   "</H3>",     "<B>",   "</B>",
          "<I>",    "</I>",    "<U>",      "</U>",    "&LT;",   "&GT;",      "&AMP;", "\r\n - ",
          "\r\n- ", "\r\n1. ", "\r\n12. ", "\r\na) ", "\r\n\t", "\r\n<B>1. "})
        EXPECT_NE(bytes.find(piece), bytes.npos) << piece;
    for (const char* mark : {"H1", "H2", "H3", "B", "I", "U"})
        EXPECT_EQ(CountOf(bytes, std::string("<") + mark + ">"),
                  CountOf(bytes, std::string("</") + mark + ">"))
            << mark;
}

} // namespace
} // namespace ls
