#include "render/print/PrintTopic.h"

#include "render/print/PrintSettings.h"
#include "render/text/ShowTopicFixture.h"
#include "support/PageText.h"
#include "support/RecordingPrinter.h"
#include "support/RowName.h"

namespace ls {
namespace {

// Prints topics of books in memory. The margins are 6 blanks at the left and 3 rows at the top. A line holds
// 72 characters and a page 51 lines.
struct PrintTopicTest : ShowTopicTest
{
    test::RecordingPrinter printer;
    PrintSettings settings;
    Printed printed;

    void Print(const std::string& topicName, int topicNumber)
    {
        printed = PrintTopic(book, world.Get(), printer, settings, topicName, topicNumber);
    }

    void PrintBody(const std::string& body, const std::string& header = Header)
    {
        ASSERT_TRUE(Scan(header + "[A]\r\n" + body));
        Print("[A]", 1);
        EXPECT_EQ(world.messages.Take(), Strings{});
        EXPECT_TRUE(printed.error.Ok());
        EXPECT_TRUE(printed.located);
    }

    [[nodiscard]] Strings Rows(std::size_t page = 0) const
    {
        return page < printer.Pages().size() ? test::RowTexts(printer.Pages()[page])
                                             : Strings{"no such page"};
    }

    // The rows of a book's first page, without the top margin, the title and the empty row below it.
    [[nodiscard]] Strings BodyRows() const
    {
        const Strings rows = Rows();
        return rows.size() < 5 ? Strings{"no body"} : Strings(rows.begin() + 5, rows.end());
    }

    // Those rows as runs, without the empty run that ends each margin row.
    [[nodiscard]] Strings BodyRuns() const
    {
        const Strings runs = test::RunTexts(printer.Pages().at(0));
        return {runs.begin() + 6, runs.end()};
    }
};

std::string NumberedLines(int count)
{
    std::string text;
    for (int line = 1; line <= count; ++line) {
        text += "line " + std::to_string(line) + "\r\n";
    }
    return text;
}

TEST_F(PrintTopicTest, pica_printsInTwelvePoints)
{
    PrintBody("a\r\n");
    EXPECT_EQ(printer.log, (Strings{"font Courier New 12", "end"}));
    EXPECT_EQ(settings.CharsPerLine, 72);
    EXPECT_EQ(settings.LinesPerPage, 51);
    EXPECT_EQ(settings.LeftMarginChars, 6);
    EXPECT_EQ(settings.TopMarginLines, 3);
}

TEST_F(PrintTopicTest, elite_printsInTenPointsAndHoldsMore)
{
    settings.CharsPerInch = 12;
    PrintBody("a\r\n");
    EXPECT_EQ(printer.log, (Strings{"font Courier New 10", "end"}));
    EXPECT_EQ(settings.CharsPerLine, 86);
}

TEST_F(PrintTopicTest, title_standsAtTheMarginInThreeStyles)
{
    PrintBody("a\r\n");
    ASSERT_EQ(printer.Pages().size(), 1U);
    EXPECT_EQ(test::RunTexts(printer.Pages()[0]),
              (Strings{"--- #000000 ||", "--- #000000 ||", "--- #000000 ||", "--- #000000 |      +",
                       "biu #000000 |A|", "--- #000000 ||", "--- #000000 |      +", "--- #000000 |a|"}));
    EXPECT_EQ(printer.Pages()[0][4].firstColumn, settings.LeftMarginChars + 1);
}

TEST_F(PrintTopicTest, titleInColour_isPurple)
{
    settings.PrintInColour = true;
    PrintBody("a\r\n");
    const Strings runs = test::RunTexts(printer.Pages().at(0));
    EXPECT_EQ(runs[4], "biu #7f007f |A|");
    EXPECT_EQ(runs[5], "--- #000000 ||");
}

TEST_F(PrintTopicTest, titleWithoutBrackets_isThePrintedOne)
{
    ASSERT_TRUE(Scan(Header + "[A [b] c]\r\na\r\n"));
    Print("A [b] c", 1);
    EXPECT_EQ(Rows()[3], "      A [b] c");
}

TEST_F(PrintTopicTest, headingsInColour_haveTheirColoursAndGoBackToBlack)
{
    settings.PrintInColour = true;
    PrintBody("<H1>x</H1>y\r\n<H2>x</H2>y\r\n<H3>x</H3>y\r\n");
    EXPECT_EQ(BodyRuns(), (Strings{"--- #000000 |      +", "b-u #7f0000 |x+", "--- #000000 |y|",
                                   "--- #000000 |      +", "b-- #007f00 |x+", "--- #000000 |y|",
                                   "--- #000000 |      +", "-i- #00007f |x+", "--- #000000 |y|"}));
}

TEST_F(PrintTopicTest, headingsWithoutColour_keepTheirStyles)
{
    PrintBody("<H1>x</H1>y\r\n<H2>x</H2>y\r\n<H3>x</H3>y\r\n");
    EXPECT_EQ(BodyRuns(), (Strings{"--- #000000 |      +", "b-u #000000 |x+", "--- #000000 |y|",
                                   "--- #000000 |      +", "b-- #000000 |x+", "--- #000000 |y|",
                                   "--- #000000 |      +", "-i- #000000 |x+", "--- #000000 |y|"}));
}

TEST_F(PrintTopicTest, tagsAndEntities_areReadAsOnTheScreen)
{
    PrintBody("<B>b</B><I>i</I><U>u</U> &LT;x&GT; &AMP;&amp; 1 > 2 & 3<br>.\r\n");
    EXPECT_EQ(BodyRows(), Strings{"      biu <x> &? 1 > 2 & 3."});
}

TEST_F(PrintTopicTest, styleOpenAtThePageEnd_goesOnOnTheNextPage)
{
    PrintBody("<B>bold\r\n" + NumberedLines(49));
    ASSERT_EQ(printer.Pages().size(), 2U);
    const PageRecorder::Page& second = printer.Pages()[1];
    EXPECT_EQ(test::RunText(second.back()), "b-- #000000 |line 49|");
}

TEST_F(PrintTopicTest, bookBelowVersionFive_printsItsMarkup)
{
    for (const char* version : {"4.0", "4.2", "4.99"}) {
        SCOPED_TRACE(version);
        ResetBook(book);
        PrintBody("<B>b</B> &LT;\r\n", "LODESTAR BOOK V" + std::string(version) + "\r\n");
        EXPECT_EQ(test::RunText(printer.Pages().back().back()), "--- #000000 |<B>b</B> &LT;|");
    }
    EXPECT_EQ(BodyRuns(), (Strings{"--- #000000 |      +", "--- #000000 |<B>b</B> &LT;|"}));
}

TEST_F(PrintTopicTest, bookOfVersionFive_printsWithItsMarkup)
{
    PrintBody("<B>b</B> &LT;\r\n", "LODESTAR BOOK V5.0\r\n");
    EXPECT_EQ(BodyRows(), Strings{"      b <"});
}

TEST_F(PrintTopicTest, lineOfTagsOnly_leavesItsRowOpenBehindItsMargin)
{
    PrintBody("<B></B>\r\nx\r\n");
    EXPECT_EQ(BodyRows(), Strings{"            x"});
}

TEST_F(PrintTopicTest, longLine_wrapsToThePaper)
{
    const std::string word = std::string(30, 'w');
    PrintBody(word + " " + word + " " + word + "\r\n");
    EXPECT_EQ(BodyRows(), (Strings{"      " + word + " " + word, "      " + word}));
}

TEST_F(PrintTopicTest, listItemOfMoreThan50Characters_hangs)
{
    PrintBody("- " + std::string(60, 'x') + " " + std::string(20, 'y') + "\r\n");
    EXPECT_EQ(BodyRows(), (Strings{"      - " + std::string(60, 'x'), "        " + std::string(20, 'y')}));
}

// The line is too short to count as long, but breaks on paper of 25 characters.
TEST_F(PrintTopicTest, listItemOf50Characters_doesNotHang)
{
    printer.state.width = printer.state.scaleWidth = 2 * 936 + 25 * 144;
    PrintBody("- " + std::string(20, 'x') + " " + std::string(20, 'y') + " 123456\r\n" + "- " +
              std::string(20, 'x') + " " + std::string(20, 'y') + " 1234567\r\n");
    EXPECT_EQ(settings.CharsPerLine, 25);
    EXPECT_EQ(BodyRows(), (Strings{"      - " + std::string(20, 'x'), "      " + std::string(20, 'y'),
                                   "      123456", "      - " + std::string(20, 'x'),
                                   "        " + std::string(20, 'y'), "        1234567"}));
}

// The TAB becomes five blanks, which make a row of their own.
TEST_F(PrintTopicTest, remainderThatBecomesBlanks_printsAnEmptyRow)
{
    PrintBody(std::string(72, 'x') + "\t\r\nnext\r\n");
    EXPECT_EQ(BodyRows(), (Strings{"      " + std::string(72, 'x'), "", "      next"}));
}

// With an indent of 10 on paper of 12 characters, a row takes two of the five blanks. Intended: the last two
// blanks cause one more row.
TEST_F(PrintTopicTest, remainderOfBlanksOnly_printsOneMoreEmptyRow)
{
    printer.state.width = printer.state.scaleWidth = 2 * 936 + 12 * 144;
    PrintBody("12345678. " + std::string(48, 'x') + "\t\r\nnext\r\n");
    EXPECT_EQ(settings.CharsPerLine, 12);
    const std::string row = std::string(16, ' ') + std::string(12, 'x');
    EXPECT_EQ(BodyRows(), (Strings{"      12345678.", row, row, row, row, "", "", "      next"}));
}

TEST_F(PrintTopicTest, blanksAtTheEndOfALine_areCut)
{
    PrintBody(std::string(72, 'x') + "   \r\nnext\r\n");
    EXPECT_EQ(BodyRows(), (Strings{"      " + std::string(72, 'x'), "      next"}));
}

TEST_F(PrintTopicTest, emptyLines_printEmptyRowsWithoutMargin)
{
    PrintBody("a\r\n\r\n   \r\nb\r\n");
    EXPECT_EQ(BodyRuns(), (Strings{"--- #000000 |      +", "--- #000000 |a|", "--- #000000 ||",
                                   "--- #000000 ||", "--- #000000 |      +", "--- #000000 |b|"}));
}

TEST_F(PrintTopicTest, leadingTab_isFiveBlanks)
{
    PrintBody("\tx\r\n");
    EXPECT_EQ(BodyRows(), Strings{"           x"});
}

struct EndCase
{
    const char* name;
    const char* line;
};

class PrintEnd : public PrintTopicTest, public testing::WithParamInterface<EndCase>
{
};

TEST_P(PrintEnd, nothingBehindIt_isPrinted)
{
    PrintBody(std::string("a\r\n") + GetParam().line + "\r\nb\r\n");
    EXPECT_EQ(BodyRows(), Strings{"      a"});
}

INSTANTIATE_TEST_SUITE_P(Lines, PrintEnd,
                         testing::Values(EndCase{"reference", "<XREF TOPIC=\"A\">text</XREF>"},
                                         EndCase{"referenceInSmallLetters", "<xref topic=A>t</xref>"},
                                         EndCase{"logic", "<IXML>"}, EndCase{"logicWithBlanks", "  <ixml>  "},
                                         EndCase{"nextTopic", "[B]"}, EndCase{"bracketAlone", "["}),
                         test::RowName());

TEST_F(PrintTopicTest, logicOpeningWithTextBehindIt_isText)
{
    PrintBody("<IXML> x\r\nb\r\n");
    EXPECT_EQ(BodyRows(), (Strings{"       x", "      b"}));
}

TEST_F(PrintTopicTest, plainText_hasNoTitleAndIsPrintedWhole)
{
    OpenPlain("first\r\n[A]\r\n<IXML>\r\n<XREF TOPIC=A>\r\n<B>b</B>\r\n");
    Print("", 0);
    EXPECT_EQ(Rows(), (Strings{"", "", "", "      first", "      [A]", "      <IXML>", "      <XREF TOPIC=A>",
                               "      <B>b</B>"}));
    EXPECT_EQ(world.messages.Take(), Strings{});
}

TEST_F(PrintTopicTest, plainText_countsItsLinesFromZero)
{
    OpenPlain(NumberedLines(52));
    Print("", 0);
    ASSERT_EQ(printer.Pages().size(), 2U);
    EXPECT_EQ(Rows(0).size(), 54U) << "three rows of margin and 51 lines";
    EXPECT_EQ(Rows(0).back(), "      line 51");
    EXPECT_EQ(Rows(1), (Strings{"", "", "", "      line 52"}));
}

TEST_F(PrintTopicTest, plainTextAfterAnOpenStyle_isPlain)
{
    PrintBody("<B><I><U>x\r\n");
    OpenPlain("y\r\n");
    Print("", 0);
    EXPECT_EQ(test::RunText(printer.Pages().back().back()), "--- #000000 |y|");
}

TEST_F(PrintTopicTest, topicLongerThanAPage_breaksAtTheCountedLines)
{
    PrintBody(NumberedLines(101));
    ASSERT_EQ(printer.Pages().size(), 3U);
    EXPECT_EQ(Rows(0).back(), "      line 49") << "the title and the row below it count";
    EXPECT_EQ(Rows(1).size(), 54U);
    EXPECT_EQ(Rows(1)[3], "      line 50");
    EXPECT_EQ(Rows(1).back(), "      line 100");
    EXPECT_EQ(Rows(2), (Strings{"", "", "", "      line 101"}));
}

TEST_F(PrintTopicTest, topicThatFillsItsPage_hasAnEmptyPageBehindIt)
{
    PrintBody(NumberedLines(49));
    ASSERT_EQ(printer.Pages().size(), 2U);
    EXPECT_EQ(Rows(1), (Strings{"", "", ""}));
}

TEST_F(PrintTopicTest, topicThatFillsItsPageWithoutTopMargin_hasNone)
{
    printer.state.scaleHeight -= 2000; // more than the margins is unprintable
    PrintBody(NumberedLines(48));
    EXPECT_EQ(settings.TopMarginLines, 0);
    EXPECT_EQ(settings.LinesPerPage, 50);
    EXPECT_EQ(printer.Pages().size(), 1U);
}

TEST_F(PrintTopicTest, pageOfNoLine_takesOneLineAPage)
{
    printer.state.height = printer.state.scaleHeight = 2 * 864 + 100;
    PrintBody(NumberedLines(2));
    EXPECT_EQ(settings.LinesPerPage, 0);
    ASSERT_EQ(printer.Pages().size(), 3U);
    EXPECT_EQ(Rows(0).back(), "      line 1");
    EXPECT_EQ(Rows(1).back(), "      line 2");
}

TEST_F(PrintTopicTest, paperNarrowerThanAnyIndent_wrapsToElevenCharacters)
{
    printer.state.width = printer.state.scaleWidth = 2 * 936 + 3 * 144;
    PrintBody("12345678. " + std::string(60, 'x') + "\r\n");
    EXPECT_EQ(settings.CharsPerLine, 3);
    EXPECT_EQ(BodyRows()[0], "      12345678.");
    EXPECT_EQ(BodyRows().size(), 7U) << "five rows of 11 characters after their indent, and the rest";
}

TEST_F(PrintTopicTest, paperSmallerThanItsMargins_printsNothing)
{
    printer.state.width = printer.state.scaleWidth = 1000;
    PrintBody("a\r\n");
    EXPECT_LT(settings.CharsPerLine, 0);
    EXPECT_EQ(printer.log, Strings{"font Courier New 12"});
    EXPECT_TRUE(printer.Pages().empty());
}

TEST_F(PrintTopicTest, paperLowerThanItsMargins_printsNothing)
{
    printer.state.height = printer.state.scaleHeight = 1000;
    PrintBody("a\r\n");
    EXPECT_LT(settings.LinesPerPage, 0);
    EXPECT_TRUE(printer.Pages().empty());
}

TEST_F(PrintTopicTest, unknownTopic_printsThatAfterTheMessage)
{
    ASSERT_TRUE(Scan(Header + "[A]\r\na\r\n"));
    Print("Nowhere", 0);
    EXPECT_FALSE(printed.located);
    EXPECT_TRUE(printed.error.Ok());
    EXPECT_EQ(world.messages.Take(), Strings{"warning|Lodestar Advisor|Topic [Nowhere] was not found."});
    ASSERT_EQ(printer.Pages().size(), 1U);
    EXPECT_EQ(Rows(), Strings{"Error on lookup of topic."});
    EXPECT_EQ(printer.log.back(), "end");
}

TEST_F(PrintTopicTest, topicThatVanishedFromTheFile_printsThatAfterTheMessage)
{
    ASSERT_TRUE(Scan(Header + "[A]\r\na\r\n"));
    world.files["/work/Book.IDA"] = Header + "[Z]\r\na\r\n";
    Print("[A]", 1);
    EXPECT_EQ(world.messages.Take(), Strings{"warning|Lodestar Advisor|Error looking up topic: [A]"});
    EXPECT_EQ(Rows(), Strings{"Error on lookup of topic."});
}

TEST_F(PrintTopicTest, editedTopic_printsAsItStandsInTheFile)
{
    ASSERT_TRUE(Scan(Header + "[A]\r\nin the file\r\n"));
    book.TopicRecs(1).Text = "in memory\r\n";
    Print("[A]", 1);
    EXPECT_EQ(BodyRows(), Strings{"      in the file"});
}

TEST_F(PrintTopicTest, topicOfANewBook_isNotInAnyFile)
{
    book.TopicCount = 1;
    book.TopicNames(1) = "[A]";
    book.TopicRecs(1).Text = "in memory\r\n";
    Print("[A]", 1);
    EXPECT_EQ(world.messages.Take(), Strings{"warning|Lodestar Advisor|Topic [A] was not found."});
    EXPECT_EQ(Rows(), Strings{"Error on lookup of topic."});
}

TEST_F(PrintTopicTest, printerFailsAtANewPage_endsThePrintAtOnce)
{
    printer.failNewPage = MakeFileError(error::DeviceUnavailable);
    ASSERT_TRUE(Scan(Header + "[A]\r\n" + NumberedLines(500)));
    Print("[A]", 1);
    EXPECT_EQ(printed.error, MakeFileError(error::DeviceUnavailable));
    EXPECT_EQ(printer.log, Strings{"font Courier New 12"})
        << "the document is not ended, so it is not printed";
}

TEST_F(PrintTopicTest, printAfterOneThatFailed_beginsAtTheTopLeft)
{
    printer.failNewPage = MakeFileError(error::DeviceUnavailable);
    ASSERT_TRUE(Scan(Header + "[A]\r\n" + NumberedLines(500)));
    Print("[A]", 1);
    printer.failNewPage = {};
    OpenPlain("first\r\n");
    Print("", 0);
    EXPECT_EQ(Rows(), (Strings{"", "", "", "      first"}));
}

TEST_F(PrintTopicTest, printerFailsAtTheEnd_isTold)
{
    printer.failEndDoc = MakeFileError(error::DiskFull);
    ASSERT_TRUE(Scan(Header + "[A]\r\na\r\n"));
    Print("[A]", 1);
    EXPECT_EQ(printed.error, MakeFileError(error::DiskFull));
}

TEST_F(PrintTopicTest, paperBeyond16Bits_isAnOverflow)
{
    printer.state.width = printer.state.scaleWidth = 47679;
    ASSERT_TRUE(Scan(Header + "[A]\r\na\r\n"));
    Print("[A]", 1);
    EXPECT_EQ(printed.error, MakeFileError(error::Overflow));
    EXPECT_TRUE(printer.Pages().empty());
}

TEST(PrintLine, segment_standsBehindTheMargin)
{
    RunList runs;
    PrintSettings settings;
    settings.LeftMarginChars = 2;
    settings.PrintInColour = true;
    PrintLine(runs, settings, "a <H2>b", 5.0F);
    ASSERT_EQ(runs.Runs().size(), 3U);
    EXPECT_EQ(test::RunText(runs.Runs()[0]), "--- #000000 |  +");
    EXPECT_EQ(test::RunText(runs.Runs()[1]), "--- #000000 |a +");
    EXPECT_EQ(test::RunText(runs.Runs()[2]), "b-- #007f00 |b|");
}

TEST(ApplyPrintTag, everyTag_setsItsStylesAndColoursOnlyInColour)
{
    struct Row
    {
        const char* tag;
        const char* inColour;
        const char* inBlack;
    };
    const Row rows[] = {
        {"H1", "b-u #7f0000 |x+", "b-u #000000 |x+"}, {"/H1", "--- #000000 |x+", "--- #000000 |x+"},
        {"H2", "b-- #007f00 |x+", "b-- #000000 |x+"}, {"/H2", "--- #000000 |x+", "--- #000000 |x+"},
        {"H3", "-i- #00007f |x+", "-i- #000000 |x+"}, {"/H3", "--- #000000 |x+", "--- #000000 |x+"},
        {"B", "b-- #000000 |x+", "b-- #000000 |x+"},  {"/B", "--- #000000 |x+", "--- #000000 |x+"},
        {"I", "-i- #000000 |x+", "-i- #000000 |x+"},  {"/I", "--- #000000 |x+", "--- #000000 |x+"},
        {"U", "--u #000000 |x+", "--u #000000 |x+"},  {"/U", "--- #000000 |x+", "--- #000000 |x+"},
        {"h1", "--- #000000 |x+", "--- #000000 |x+"}};
    RunList colour;
    RunList black;
    for (const Row& row : rows) {
        ApplyPrintTag(colour, row.tag, true);
        ApplyPrintTag(black, row.tag, false);
        colour.Print("x", false);
        black.Print("x", false);
        EXPECT_EQ(test::RunText(colour.Runs().back()), row.inColour) << row.tag;
        EXPECT_EQ(test::RunText(black.Runs().back()), row.inBlack) << row.tag;
    }
}

} // namespace
} // namespace ls
