#include "render/print/PageSetup.h"

#include "render/print/PageRecorder.h"
#include "render/print/PrintSettings.h"
#include "support/RowName.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

struct SetupCase
{
    const char* name;
    int width;
    int height;
    int scaleWidth;
    int scaleHeight;
    bool landscape;
    int charsPerInch;
    double lineHeight;
    // expected
    int printableWidth;
    int printableHeight;
    int charsPerLine;
    int linesPerPage;
    int leftMarginChars;
    int topMarginLines;
};

PageRecorder RecorderFor(const SetupCase& setup)
{
    PrinterState state;
    state.width = setup.width;
    state.height = setup.height;
    state.scaleWidth = setup.scaleWidth;
    state.scaleHeight = setup.scaleHeight;
    state.landscape = setup.landscape;
    PageRecorder printer(state, setup.lineHeight);
    printer.SetFont("Courier New", 12);
    return printer;
}

class PageSetupCase : public testing::TestWithParam<SetupCase>
{
};

TEST_P(PageSetupCase, settings_computedAsExpected)
{
    const SetupCase& setup = GetParam();
    PageRecorder printer = RecorderFor(setup);
    PrintSettings settings;
    settings.CharsPerInch = setup.charsPerInch;
    ASSERT_TRUE(PageSetup(settings, printer).Ok());
    EXPECT_EQ(settings.PrintableWidth, setup.printableWidth);
    EXPECT_EQ(settings.PrintableHeight, setup.printableHeight);
    EXPECT_EQ(settings.CharsPerLine, setup.charsPerLine);
    EXPECT_EQ(settings.LinesPerPage, setup.linesPerPage);
    EXPECT_EQ(settings.LeftMarginChars, setup.leftMarginChars);
    EXPECT_EQ(settings.TopMarginLines, setup.topMarginLines);
}

// Computed by hand from the margins: 936 and 864 twips, or 720 and 936 for a sheet on its side.
const SetupCase Cases[] = {
    // The whole sheet is printable.
    {"letter_pica", 12240, 15840, 12240, 15840, false, 10, 272, 10368, 14112, 72, 51, 6, 3},
    {"letter_elite", 12240, 15840, 12240, 15840, false, 12, 227, 10368, 14112, 86, 62, 8, 4},
    {"letter_sideways", 15840, 12240, 15840, 12240, true, 10, 272, 14400, 10368, 100, 38, 5, 3},
    // On its side, with an unprintable half inch at the left and right and an inch above and below:
    // 720 - 1440 / 2 = 0 and 936 - 2880 / 2 = -504, raised to 0.
    {"letter_sidewaysWideEdges", 15840, 12240, 14400, 9360, true, 10, 272, 14400, 9360, 100, 34, 0, 0},
    // 720 - 720 / 2 = 360 and 936 - 480 / 2 = 696.
    {"letter_sidewaysNarrowEdges", 15840, 12240, 15120, 11760, true, 10, 272, 14400, 10368, 100, 38, 2, 3},
    {"a4_pica", 11906, 16838, 11906, 16838, false, 10, 272, 10034, 15110, 69, 55, 6, 3},
    // Half an inch at the left and right, and an inch above and below, is unprintable.
    {"letter_wideEdges", 12240, 15840, 10800, 12960, false, 10, 272, 10368, 12960, 72, 47, 2, 0},
    // The unprintable edges exceed the margins, which become 0.
    {"letter_edgesBeyondTheMargins", 12240, 15840, 9000, 12000, false, 10, 272, 9000, 12000, 62, 44, 0, 0},
    // 936 - 721 / 2 = 575.5 and 864 - 361 / 2 = 683.5: halves go to the even 576 and 684.
    {"halves_goToTheEvenNeighbour", 12240, 15840, 11519, 15479, false, 10, 272, 10367, 14111, 71, 51, 4, 3},
    // 936 - 719 / 2 = 576.5 and 864 - 363 / 2 = 682.5: to 576 and 682.
    {"halves_goDownToTheEvenNeighbour", 12240, 15840, 11521, 15477, false, 10, 272, 10369, 14113, 72, 51, 4,
     3},
    // 864 / 345.6 = 2.5 lines, and 936 / 144 = 6.5 characters.
    {"margins_inHalfLines", 12240, 15840, 12240, 15840, false, 10, 345.6, 10368, 14112, 72, 40, 6, 2},
    {"lines_areRoundedDown", 12240, 15840, 12240, 15840, false, 10, 14112.5, 10368, 14112, 72, 0, 6, 0},
    {"sheet_smallerThanItsMargins", 1000, 1000, 1000, 1000, false, 10, 272, -872, -728, -7, -3, 6, 3},
};

INSTANTIATE_TEST_SUITE_P(Sheets, PageSetupCase, testing::ValuesIn(Cases), test::RowName());

// A page on which "_" has the height of a line, and "|" twice that.
class UnevenPage : public PageRuns
{
public:
    [[nodiscard]] double TextHeight(std::string_view text) const override { return text == "|" ? 600 : 300; }
};

class UnevenPrinter : public PageRecorder
{
public:
    using PageRecorder::PageRecorder;
    TextSurface& Surface() override { return m_uneven; }

private:
    UnevenPage m_uneven;
};

TEST(PageSetup, lines_areMeasuredByTheUnderlineAndTheTopMarginByTheBar)
{
    PrinterState state;
    state.width = state.scaleWidth = 12240;
    state.height = state.scaleHeight = 15840;
    UnevenPrinter printer(state, 272);
    PrintSettings settings;
    ASSERT_TRUE(PageSetup(settings, printer).Ok());
    EXPECT_EQ(settings.LinesPerPage, 47) << "14112 / 300";
    EXPECT_EQ(settings.TopMarginLines, 1) << "864 / 600";
}

TEST(PageSetup, elite_holdsAFifthMoreThanPica)
{
    SetupCase setup = Cases[0];
    setup.width = setup.scaleWidth = 936 * 2 + 14400; // ten inches of text
    PageRecorder printer = RecorderFor(setup);
    PrintSettings settings;
    ASSERT_TRUE(PageSetup(settings, printer).Ok());
    EXPECT_EQ(settings.CharsPerLine, 100);
    settings.CharsPerInch = 12;
    ASSERT_TRUE(PageSetup(settings, printer).Ok());
    EXPECT_EQ(settings.CharsPerLine, 120);
}

TEST(PageSetup, lengthBeyond16Bits_isAnOverflowAndChangesNothing)
{
    SetupCase setup = Cases[0];
    setup.width = setup.scaleWidth = 2 * 936 + 32767;
    PrintSettings settings;
    PageRecorder largest = RecorderFor(setup);
    ASSERT_TRUE(PageSetup(settings, largest).Ok());
    EXPECT_EQ(settings.PrintableWidth, 32767);

    ++setup.width;
    ++setup.scaleWidth;
    PageRecorder tooLarge = RecorderFor(setup);
    settings = PrintSettings{};
    EXPECT_EQ(PageSetup(settings, tooLarge), MakeFileError(error::Overflow));
    EXPECT_EQ(settings.PrintableWidth, 0);
    EXPECT_EQ(settings.CharsPerLine, 0);
}

TEST(PageSetup, fontWithoutHeight_isRefused)
{
    SetupCase setup = Cases[0];
    setup.lineHeight = 0;
    PageRecorder printer = RecorderFor(setup);
    PrintSettings settings;
    EXPECT_EQ(PageSetup(settings, printer), MakeFileError(error::InvalidCall));
    EXPECT_EQ(settings.LinesPerPage, 0);
}

} // namespace
} // namespace ls
