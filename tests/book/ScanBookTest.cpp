#include "book/BookFixture.h"
#include "support/RowName.h"

namespace ls {
namespace {

struct ScanCase
{
    const char* name;
    const char* body; ///< the text after the header line
    Strings topics;
    Strings xrefs;
};

struct ScanTable : BookFixture, testing::WithParamInterface<ScanCase>
{
};

TEST_P(ScanTable, scan_lines_giveTopicsAndXrefs)
{
    ASSERT_TRUE(Scan(std::string("LODESTAR BOOK V5.3\r\n") + GetParam().body));
    EXPECT_EQ(Names(), GetParam().topics);
    EXPECT_EQ(XrefTexts(), GetParam().xrefs);
    EXPECT_TRUE(world.messages.boxes.empty());
}

const ScanCase ScanCases[] = {
    {"twoHeadersInARow_firstIsEmpty", "[A]\r\n[B]\r\n", {"[A]", "[B]"}, {}},
    {"headerTrimmed", "[A]  \r\nx\r\n", {"[A]"}, {}},
    {"blankBeforeBracket_isText", " [A]\r\n[B]\r\n", {"[B]"}, {}},
    {"twoCharacters_areText", "[A]\r\n[]\r\n[\r\n", {"[A]"}, {}},
    {"threeCharactersCount", "[ab\r\n", {"[ab"}, {}},
    {"eof_hidesWhatFollows", "[A]\r\n[EOF]\r\n[B]\r\n", {"[A]"}, {}},
    {"eofInOtherCase_isATopic", "[A]\r\n[eof]\r\n[B]\r\n", {"[A]", "[eof]", "[B]"}, {}},
    {"eofWithBlank_isATopic", "[EOF] \r\n[B]\r\n", {"[EOF]", "[B]"}, {}},
    {"index_listsNoTopics", "[A]\r\n<INDEX>\r\n1234,\"[A]\"\r\n0,\"<END-INDEX>\"\r\n[B]\r\n", {}, {}},
    {"indexWithoutEnd_listsNoTopics", "[A]\r\n<INDEX>\r\n1,\"[A]\"\r\n", {}, {}},
    {"indexWithBlank_isText", "[A]\r\n<INDEX> \r\n[B]\r\n", {"[A]", "[B]"}, {}},
    {"crLineEnds", "[A]\rtext\r[B]\r", {"[A]", "[B]"}, {}},
    {"loneLf_isNoLineEnd", "[A]\r\nx\n[B]\r\n", {"[A]"}, {}},
    {"noFinalLineEnd", "[A]\r\n[B]", {"[A]", "[B]"}, {}},
    {"xref", "[A]\r\n<XREF TOPIC=B>note</XREF>\r\n", {"[A]"}, {"A>B:note"}},
    {"xrefQuoted", "[A]\r\n<XREF TOPIC=\"B c\">n</XREF>\r\n", {"[A]"}, {"A>B c:n"}},
    {"xrefInLowerCase_isText", "[A]\r\n<xref topic=B>n</XREF>\r\n", {"[A]"}, {}},
    {"xrefNotAtTheStart_isText", "[A]\r\n <XREF TOPIC=B>n</XREF>\r\n", {"[A]"}, {}},
    {"xrefBeforeTheFirstTopic_isIgnored", "<XREF TOPIC=B>n</XREF>\r\n[A]\r\n", {"[A]"}, {}},
    {"xrefWithoutTarget_isIgnored", "[A]\r\n<XREF TOPIC=>n</XREF>\r\n", {"[A]"}, {}},
    {"xrefUnclosed_takesHeaders",
     "[A]\r\n<XREF TOPIC=B>n\r\n[C]\r\n</XREF>\r\n[D]\r\n",
     {"[A]", "[D]"},
     {"A>B:n\r\n[C]"}},
    {"xrefWithoutBracket_takesLinesToItsEnd",
     "[A]\r\n<XREF TOPIC=B\r\nx\r\n</XREF>\r\n[D]\r\n",
     {"[A]", "[D]"},
     {}},
    {"xrefLineBehindItsEnd_goesOn",
     "[A]\r\n<XREF TOPIC=B>n</XREF> rest\r\n[C]\r\n",
     {"[A]", "[C]"},
     {"A>B:n"}},
    {"xrefSourceWithBlankedHeader", "[A b]  \r\n<XREF TOPIC=B>n</XREF>\r\n", {"[A b]"}, {"A b>B:n"}},
    {"highBytes_survive",
     "[\x80\xE9\xFF]\r\n<XREF TOPIC=\xE9>\x90</XREF>\r\n",
     {"[\x80\xE9\xFF]"},
     {"\x80\xE9\xFF>\xE9:\x90"}},
    {"emptyTitleInXref", "[ab\r\n<XREF TOPIC=B>n</XREF>\r\n", {"[ab"}, {"a>B:n"}},
};

INSTANTIATE_TEST_SUITE_P(Books, ScanTable, testing::ValuesIn(ScanCases), test::RowName());

struct ScanBookTest : BookFixture
{
};

TEST_F(ScanBookTest, scan_recordsPositionsFrom1)
{
    ASSERT_TRUE(Scan("LODESTAR BOOK V5.3\r\n[A]\r\nx\r[B]\r\n"));
    EXPECT_EQ(book.TopicPos(1), 21);
    EXPECT_EQ(book.TopicPos(2), 28);
    EXPECT_EQ(book.ScanEndPos, 33);
}

TEST_F(ScanBookTest, scan_eof_recordsItsPositionAsTheEnd)
{
    ASSERT_TRUE(Scan("LODESTAR BOOK V5.3\r\n[A]\r\n[EOF]\r\n[B]\r\n"));
    EXPECT_EQ(book.ScanEndPos, 26);
}

TEST_F(ScanBookTest, scan_indexEnd_nothingBehindItIsRead)
{
    int reads = 0;
    world.files.fail = [&reads](const std::string& operation) {
        return operation.starts_with("read") && ++reads > 2 ? error::DeviceIo : 0;
    };
    EXPECT_TRUE(
        Scan("LODESTAR BOOK V5.3\r\n[A]\r\n<INDEX>\r\n0,\"<END-INDEX>\",9\r\n" + std::string(100000, 'x')));
    EXPECT_EQ(book.TopicCount, 0);
    EXPECT_EQ(book.ScanEndPos, 26);
}

TEST_F(ScanBookTest, scan_progress_reportsPositionsOfTheFile)
{
    struct Recorder : Progress
    {
        bool Step(std::int64_t done, std::int64_t total) override
        {
            steps.emplace_back(done, total);
            return false; // asks to cancel; a scan must ignore this
        }
        std::vector<std::pair<std::int64_t, std::int64_t>> steps;
    } progress;
    std::string bytes = "LODESTAR BOOK V5.3\r\n";
    for (int i = 0; i < 20; ++i) {
        bytes += "[T" + std::to_string(i) + "]\r\n" + std::string(1024 * 1024, 'x') + "\r\n";
    }
    ASSERT_TRUE(Open(bytes));
    EXPECT_TRUE(ScanBook(book, world.Get(), &progress));
    EXPECT_EQ(book.TopicCount, 20);
    ASSERT_EQ(progress.steps.size(), 2U);
    EXPECT_LT(progress.steps[0].first, progress.steps[1].first);
    EXPECT_EQ(progress.steps[0].second, static_cast<std::int64_t>(bytes.size()));
}

TEST_F(ScanBookTest, scan_nulBytes_areText)
{
    std::string bytes = "LODESTAR BOOK V5.3\r\n[A?]\r\n?\r\n[B]\r\n";
    for (char& c : bytes) {
        c = c == '?' ? '\0' : c;
    }
    ASSERT_TRUE(Scan(bytes));
    EXPECT_EQ(Names(), (Strings{std::string("[A\0]", 4), "[B]"}));
}

} // namespace
} // namespace ls
