// Pages in real PDF files, looked at by other programs.

#include "gui/PrintPdfFixture.h"

#include <QColor>
#include <QImage>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>
#include <sstream>

namespace ls {
namespace {

TEST_F(PrintPdfTest, noPrinters_onlyPdfIsThereAndCurrent)
{
    EXPECT_EQ(printer.Names(), Strings{"Print to PDF"});
    EXPECT_EQ(printer.Current(), "Print to PDF");
    EXPECT_TRUE(printer.AsksForFile());
    EXPECT_EQ(printer.Choose("Office"), MakeFileError(error::DeviceUnavailable));
    EXPECT_EQ(printer.Current(), "Print to PDF");
}

TEST_F(PrintPdfTest, state_isTheSheetInTwips)
{
    struct Row
    {
        int code;
        int width;
        int height;
    };
    for (const Row& row : {Row{1, 12240, 15840}, Row{5, 12240, 20160}, Row{9, 11900, 16840}}) {
        ASSERT_EQ(printer.SetPaperSize(row.code), FileError{});
        const PrinterState upright = printer.State();
        EXPECT_EQ(upright.paperSize, row.code);
        EXPECT_FALSE(upright.landscape);
        EXPECT_EQ(upright.width, row.width);
        EXPECT_EQ(upright.height, row.height);
        EXPECT_EQ(upright.scaleWidth, row.width) << "all of it can be printed on";
        EXPECT_EQ(upright.scaleHeight, row.height);
        ASSERT_EQ(printer.SetLandscape(true), FileError{});
        EXPECT_TRUE(printer.State().landscape);
        EXPECT_EQ(printer.State().width, row.height);
        EXPECT_EQ(printer.State().scaleHeight, row.width);
        ASSERT_EQ(printer.SetLandscape(false), FileError{});
    }
    EXPECT_EQ(printer.SetPaperSize(4711), MakeFileError(error::InvalidCall)) << "no system has that paper";
    EXPECT_EQ(printer.State().paperSize, 9);
}

TEST_F(PrintPdfTest, colourMode_isKept)
{
    EXPECT_TRUE(printer.State().colour);
    EXPECT_EQ(printer.SetColour(false), FileError{});
    EXPECT_FALSE(printer.State().colour);
    EXPECT_EQ(printer.SetColour(true), FileError{});
    EXPECT_TRUE(printer.State().colour);
}

TEST_F(PrintPdfTest, fonts_haveTheColumnsOfTheirPitch)
{
    printer.SetFont("Courier New", 12);
    EXPECT_NEAR(printer.Surface().TextWidth(std::string(100, 'x')), 14400, 10) << "10 characters an inch";
    EXPECT_EQ(printer.Surface().TextHeight("_"), 272);
    printer.SetFont("Courier New", 10);
    EXPECT_NEAR(printer.Surface().TextWidth(std::string(120, 'x')), 14400, 10);
    EXPECT_EQ(printer.Surface().TextHeight("_"), 227);
}

struct SheetCase
{
    const char* name;
    int paper;
    int charsPerInch;
    bool landscape;
    int pages; ///< that 200 lines and a title take
    const char* size;
};

class PrintPdfSheet : public PrintPdfTest, public testing::WithParamInterface<SheetCase>
{
protected:
    void SetUp() override
    {
        ASSERT_EQ(printer.SetPaperSize(GetParam().paper), FileError{});
        ASSERT_EQ(printer.SetLandscape(GetParam().landscape), FileError{});
        settings.CharsPerInch = GetParam().charsPerInch;
    }
};

TEST_P(PrintPdfSheet, pages_haveTheSheetTheCountAndTheLines)
{
    std::string body;
    for (int line = 1; line <= 200; ++line) {
        body += "Line " + std::to_string(line) + "\r\n";
    }
    Open(folder.Write("Long.IDA", "LODESTAR BOOK V5.3\r\n[A]\r\n" + body));
    const std::string pdf = Print(1);
    EXPECT_EQ(test::PdfInfo(pdf, "Page size"), GetParam().size);
    EXPECT_EQ(test::PdfInfo(pdf, "Pages"), std::to_string(GetParam().pages));
    const PageRows pages = test::PdfPages(pdf);
    EXPECT_EQ(pages, BookPages(1));
    ASSERT_EQ(pages.size(), static_cast<std::size_t>(GetParam().pages));
    EXPECT_EQ(pages.back().back(), "Line 200");
}

TEST_P(PrintPdfSheet, wrappedTopic_hasTheLines)
{
    Open(std::string(LS_SAMPLES) + "/Guide.IDA");
    for (int number = 1; number <= 4; ++number) {
        EXPECT_EQ(test::PdfPages(Print(number)), BookPages(number)) << number;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Sheets, PrintPdfSheet,
    testing::Values(SheetCase{"letter_pica", 1, 10, false, 4, "612 x 792 pts (letter)"},
                    SheetCase{"legal_pica", 5, 10, false, 4, "612 x 1008 pts"},
                    SheetCase{"a4_pica", 9, 10, false, 4, "595 x 842 pts (A4)"},
                    SheetCase{"letter_elite", 1, 12, false, 4, "612 x 792 pts (letter)"},
                    SheetCase{"legal_elite", 5, 12, false, 3, "612 x 1008 pts"},
                    SheetCase{"a4_elite", 9, 12, false, 4, "595 x 842 pts (A4)"},
                    SheetCase{"letter_pica_sideways", 1, 10, true, 6, "792 x 612 pts (letter)"},
                    SheetCase{"legal_pica_sideways", 5, 10, true, 6, "1008 x 612 pts"},
                    SheetCase{"a4_pica_sideways", 9, 10, true, 6, "842 x 595 pts (A4)"},
                    SheetCase{"letter_elite_sideways", 1, 12, true, 5, "792 x 612 pts (letter)"},
                    SheetCase{"legal_elite_sideways", 5, 12, true, 5, "1008 x 612 pts"},
                    SheetCase{"a4_elite_sideways", 9, 12, true, 5, "842 x 595 pts (A4)"}),
    [](const auto& row) { return row.param.name; });

TEST_F(PrintPdfTest, everyTopicOfTheSamples_hasTheLines)
{
    for (const char* sample : {"/Guide.IDA", "/Advice.IDA"}) {
        Open(LS_SAMPLES + std::string(sample));
        for (int number = 1; number <= book.TopicCount; ++number) {
            EXPECT_EQ(test::PdfPages(Print(number)), BookPages(number)) << sample << " " << number;
        }
        CloseBook(book);
        ResetBook(book);
    }
}

TEST_F(PrintPdfTest, plainText_hasTheLines)
{
    Open(std::string(LS_SAMPLES) + "/Tides.TXT", true);
    const std::string pdf = Print(0);
    EXPECT_EQ(test::PdfPages(pdf), BookPages(0));
}

TEST_F(PrintPdfTest, charactersOfTheCodePage_canBeSearched)
{
    Open(folder.Write("a.IDA", "LODESTAR BOOK V5.3\r\n[\xC4rger]\r\n<B>na\xEFve</B> \x80 5 \x84quoted\x93 "
                               "<I>caf\xE9</I> <U>d\xE9j\xE0 vu</U>\r\n"));
    EXPECT_EQ(test::PdfPages(Print(1)), (PageRows{{"Ärger", "naïve € 5 „quoted“ café déjà vu"}}));
}

TEST_F(PrintPdfTest, fonts_areEmbeddedWithTheirCharacters)
{
    Open(folder.Write("a.IDA", "LODESTAR BOOK V5.3\r\n[A]\r\nx<B>b<I>bi</I></B><I>i</I>\r\n"));
    const std::string pdf = Print(1);
    std::istringstream fonts(test::OutputOf(QStringLiteral("pdffonts"), {QString::fromStdString(pdf)}));
    std::string line;
    std::getline(fonts, line);
    const std::size_t embedded = line.find("emb");
    const std::size_t unicode = line.find("uni");
    std::getline(fonts, line); // a rule
    int count = 0;
    while (std::getline(fonts, line)) {
        EXPECT_EQ(line.substr(embedded, 3), "yes") << line;
        EXPECT_EQ(line.substr(unicode, 3), "yes") << line;
        ++count;
    }
    EXPECT_EQ(count, 4) << "regular, bold, italic and both";
}

TEST_F(PrintPdfTest, title_isInTheFile)
{
    Open(folder.Write("a.IDA", "LODESTAR BOOK V5.3\r\n[A]\r\nx\r\n"));
    printer.SetTitle("Ärger & Co");
    const std::string pdf = Print(1);
    EXPECT_EQ(test::PdfInfo(pdf, "Title"), "Ärger & Co");
    EXPECT_EQ(test::PdfInfo(pdf, "Creator"), "Lodestar Advisor");
}

TEST_F(PrintPdfTest, blackAndWhite_hasNoColour)
{
    Open(folder.Write("a.IDA", "LODESTAR BOOK V5.3\r\n[A]\r\n<H1>Heading</H1>\r\n"));
    const auto coloured = [](const std::string& pdf) {
        const QTemporaryDir place;
        test::OutputOf(QStringLiteral("pdftoppm"),
                       {QStringLiteral("-r"), QStringLiteral("50"), QString::fromStdString(pdf),
                        place.filePath(QStringLiteral("p"))});
        const QImage page(place.filePath(QStringLiteral("p-1.ppm")));
        int count = 0;
        for (int y = 0; y < page.height(); ++y) {
            for (int x = 0; x < page.width(); ++x) {
                const QColor colour = page.pixelColor(x, y);
                count += std::abs(colour.red() - colour.green()) > 20 ? 1 : 0;
            }
        }
        return count;
    };
    EXPECT_TRUE(printer.SetColour(false).Ok());
    EXPECT_EQ(coloured(Print(1)), 0);
    EXPECT_TRUE(printer.SetColour(true).Ok());
    settings.PrintInColour = true;
    EXPECT_GT(coloured(Print(1)), 20);
}

TEST_F(PrintPdfTest, text_beginsAtTheMarginsOfThePaper)
{
    Open(folder.Write("a.IDA", "LODESTAR BOOK V5.3\r\n[Title]\r\nx\r\n"));
    const std::string boxes =
        test::OutputOf(QStringLiteral("pdftotext"),
                       {QStringLiteral("-bbox"), QString::fromStdString(Print(1)), QStringLiteral("-")});
    const std::size_t word = boxes.find(">Title<");
    ASSERT_NE(word, std::string::npos) << boxes;
    const std::string box = boxes.substr(boxes.rfind('<', word), word - boxes.rfind('<', word));
    double left = 0;
    double top = 0;
    ASSERT_EQ(std::sscanf(box.c_str(), "<word xMin=\"%lf\" yMin=\"%lf\"", &left, &top), 2) << box;
    EXPECT_NEAR(left, 6 * 7.2, 0.2) << "six characters of 7.2 points";
    EXPECT_NEAR(top, 3 * 13.6, 3) << "three lines of 13.6 points";
}

} // namespace
} // namespace ls
