// Books with results that were worked out by hand. A file next to each book holds them.

#include "base/CodePage.h"
#include "base/Text.h"
#include "book/BookLoader.h"
#include "render/text/ShowTopic.h"
#include "support/Cases.h"
#include "support/Json.h"
#include "support/TestSeams.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

using test::Json;
using test::TestSeams;
using Strings = std::vector<std::string>;

constexpr const char* Folder = "cases/text";

class BookCase : public testing::TestWithParam<std::string>
{
protected:
    void SetUp() override
    {
        m_expected = Json::ParseFile(test::CasePath(Folder, GetParam()) + ".json");
        m_test.files["/case.IDA"] = test::ReadWholeFile(test::CasePath(Folder, GetParam()) + ".IDA");
        m_book.BookPath = "/case.IDA";
        const bool isBook = m_expected["info"]["is_book"].Bool();
        if (!isBook) {
            m_test.messages.replies = {Reply::Ok};
        }
        ASSERT_TRUE(OpenBook(m_book, m_test.Get()));
        if (isBook) {
            ASSERT_TRUE(ScanBook(m_book, m_test.Get()));
        }
        m_openingBoxes = m_test.messages.Take();
    }

    TestSeams m_test;
    Book m_book;
    Json m_expected;
    Strings m_openingBoxes;
};

TEST_P(BookCase, header_readAsExpected)
{
    const Json& info = m_expected["info"];
    EXPECT_EQ(FromBook(m_book.BookMagic), info["magic"].String());
    EXPECT_EQ(FromBook(m_book.BookAuthor), info["author"].String());
    EXPECT_EQ(FromBook(m_book.BookCopyright), info["copyright"].String());
    EXPECT_EQ(FromBook(m_book.BookUrl), info["url"].String());
    EXPECT_EQ(FromBook(m_book.BookPost), info["post"].String());
    EXPECT_EQ(m_book.TopicCount, info["topic_count"].Int());
    EXPECT_EQ(m_book.XrefCount, info["xref_count"].Int());
}

TEST_P(BookCase, topicTable_filledAsExpected)
{
    Strings found;
    for (int i = 1; i <= m_book.TopicCount; ++i) {
        found.push_back(std::to_string(i) + " " + FromBook(WithoutBrackets(m_book.TopicNames(i))) + " at " +
                        std::to_string(m_book.TopicPos(i)));
    }
    Strings expected;
    for (const Json& topic : m_expected["topics"].Items()) {
        expected.push_back(std::to_string(topic["number"].Int()) + " " + topic["title"].String() + " at " +
                           std::to_string(topic["pos"].Int()));
    }
    EXPECT_EQ(found, expected);
}

TEST_P(BookCase, crossReferences_readAsExpected)
{
    Strings found;
    for (int i = 1; i <= m_book.XrefCount; ++i) {
        const XrefRec& xref = m_book.Xrefs(i);
        found.push_back(FromBook(xref.FromTopic + " > " + xref.ToTopic + ": " + xref.Text));
    }
    Strings expected;
    for (const Json& xref : m_expected["xrefs"].Items()) {
        expected.push_back(xref["from"].String() + " > " + xref["to"].String() + ": " +
                           xref["text"].String());
    }
    EXPECT_EQ(found, expected);
}

TEST_P(BookCase, topics_shownAsExpected)
{
    for (const Json& show : m_expected["show"].Items()) {
        Count16 number = show["number"].Int();
        SCOPED_TRACE("topic " + std::to_string(number) + ", width " + std::to_string(show["width"].Int()));
        std::string name = m_book.TopicNames(number);
        ShownTopic shown;
        ASSERT_EQ(ShowTopic(m_book, m_test.Get(), name, number, show["width"].Int(), shown),
                  ShowResult::Shown);
        Strings lines;
        for (int line = 1; line <= shown.lines.Count; ++line) {
            lines.push_back(FromBook(shown.lines(line)));
        }
        EXPECT_EQ(lines, show["lines"].Strings());
        EXPECT_EQ(shown.xrefButton, show["xref_button"].Bool());
        EXPECT_EQ(shown.advisorButton, show["advisor_button"].Bool());
        EXPECT_EQ(shown.logicPos, show["logic_pos"].Int());
        EXPECT_EQ(m_test.messages.Take(), Strings{});
    }
}

INSTANTIATE_TEST_SUITE_P(Cases, BookCase, testing::ValuesIn(test::CaseNames(Folder)), test::CaseTestName);

} // namespace
} // namespace ls
