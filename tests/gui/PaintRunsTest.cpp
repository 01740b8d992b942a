#include "render/pane/PaintRuns.h"
#include "base/CodePage.h"
#include "forms/CellMetrics.h"
#include "render/text/RunList.h"

#include <gtest/gtest.h>

#include <QFontInfo>
#include <QFontMetricsF>
#include <QImage>
#include <QPainter>

#include <cmath>
#include <limits>

namespace ls {
namespace {

constexpr int Columns = 82;
constexpr int ScreenDpi = 96;
constexpr double Scales[] = {1, 1.25, 1.5, 2};

const CellMetrics& Cells()
{
    static const CellMetrics cells = MeasureCells(ScreenDpi);
    return cells;
}

Run MakeRun(int row, int column, std::string text, std::size_t face = RegularFace)
{
    Run run;
    run.row = row;
    run.firstColumn = column;
    run.text = std::move(text);
    run.bold = (face & BoldFace) != 0;
    run.italic = (face & ItalicFace) != 0;
    return run;
}

// A white picture of that many rows and columns at that scale of the screen, with the runs painted on it.
QImage Paint(const std::vector<ls::Run>& runs, double scale = 1, int rows = 1,
             const CellMetrics& cells = Cells())
{
    const QSizeF size(Columns * cells.charWidth, rows * cells.rowHeight);
    QImage image((size * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::white);
    QPainter painter(&image);
    PaintRuns(painter, runs, cells, QRectF(QPointF(), size));
    return image;
}

bool IsWhite(const QImage& image)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != qRgb(255, 255, 255)) {
                return false;
            }
        }
    }
    return true;
}

// Whether every pixel with ink in `part` has at least as much ink in `whole`. So `whole` shows the same
// drawing at the same place, among others.
bool Contains(const QImage& whole, const QImage& part)
{
    for (int y = 0; y < part.height(); ++y) {
        for (int x = 0; x < part.width(); ++x) {
            if (qGray(whole.pixel(x, y)) > qGray(part.pixel(x, y))) {
                return false;
            }
        }
    }
    return true;
}

// The first and last pixel column with ink; first > last for a white picture.
std::pair<int, int> InkedColumns(const QImage& image)
{
    int first = image.width();
    int last = -1;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qGray(image.pixel(x, y)) < 128) {
                first = std::min(first, x);
                last = std::max(last, x);
            }
        }
    }
    return {first, last};
}

// The number of reddish pixels. Thin strokes are paler than the colour itself.
int RedPixels(const QImage& image)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            count += qRed(pixel) > qGreen(pixel) + 60 && qGreen(pixel) == qBlue(pixel) ? 1 : 0;
        }
    }
    return count;
}

// For each face and scale: a bar after 79 characters must be at the same place as after 79 blanks.
struct FaceAndScale
{
    const char* name;
    std::size_t face;
};

class Grid : public testing::TestWithParam<std::tuple<FaceAndScale, double>>
{
protected:
    std::size_t face = std::get<0>(GetParam()).face;
    double scale = std::get<1>(GetParam());
    QImage bar = Paint({MakeRun(1, 80, "|", face)}, scale);

    [[nodiscard]] QImage Row(const std::string& before) const
    {
        return Paint({MakeRun(1, 1, before + "|", face)}, scale);
    }
};

INSTANTIATE_TEST_SUITE_P(Faces, Grid,
                         testing::Combine(testing::Values(FaceAndScale{"Regular", RegularFace},
                                                          FaceAndScale{"Bold", BoldFace},
                                                          FaceAndScale{"Italic", ItalicFace},
                                                          FaceAndScale{"BoldItalic", BoldFace + ItalicFace}),
                                          testing::ValuesIn(Scales)),
                         [](const auto& variant) {
                             return std::get<0>(variant.param).name + std::string("At") +
                                    std::to_string(static_cast<int>(std::get<1>(variant.param) * 100));
                         });

TEST_P(Grid, bar_standsInItsCell)
{
    const auto [first, last] = InkedColumns(bar);
    EXPECT_GE(first, std::floor(79 * Cells().charWidth * scale));
    EXPECT_LT(last, std::ceil(80.5 * Cells().charWidth * scale)); // a slanted bar may lean out of its cell
}

TEST_P(Grid, anyCharacterSeventyNineTimes_leavesTheBarInPlace)
{
    for (int byte = 0; byte < 256; ++byte) {
        EXPECT_TRUE(Contains(Row(std::string(79, static_cast<char>(byte))), bar)) << "byte " << byte;
    }
}

TEST_P(Grid, mixedCharacters_leaveTheBarInPlace)
{
    unsigned seed = 20;
    for (int row = 0; row < 50; ++row) {
        std::string text;
        for (int i = 0; i < 79; ++i) {
            seed = seed * 1664525U + 1013904223U;
            text += static_cast<char>(seed >> 24U);
        }
        EXPECT_TRUE(Contains(Row(text), bar)) << FromBook(text);
    }
}

TEST_P(Grid, barOneCellOff_isNoticed)
{
    EXPECT_FALSE(Contains(Row(std::string(78, 'i')), bar));
    EXPECT_FALSE(Contains(Row(std::string(80, 'i')), bar));
}

TEST_P(Grid, narrowAndWideLetters_standInTheirCells)
{
    for (const char letter : {'i', 'W', '.', '\xCF', '\x99'}) {
        const QImage inRow = Paint({MakeRun(1, 1, std::string(60, ' ') + letter, face)}, scale);
        const QImage alone = Paint({MakeRun(1, 61, std::string(1, letter), face)}, scale);
        EXPECT_FALSE(IsWhite(alone)) << letter;
        EXPECT_EQ(inRow, alone) << letter;
    }
}

TEST_P(Grid, cellByCell_paintsAsInOneGo)
{
    CellMetrics cells = Cells();
    for (auto& exact : cells.exact) {
        exact.reset();
    }
    const std::vector<ls::Run> runs = {MakeRun(1, 1, "The quick brown fox, 1234567890 \xE4\xF6\xFC.", face)};
    const QImage oneGo = Paint(runs, scale);
    EXPECT_FALSE(IsWhite(oneGo));
    EXPECT_EQ(Paint(runs, scale, 1, cells), oneGo);
}

// A proportional font, as if no font of fixed pitch were installed.
TEST_P(Grid, proportionalFont_isForcedIntoTheCells)
{
    QFont sans(QStringLiteral("Liberation Sans"));
    sans.setPixelSize(13);
    ASSERT_FALSE(QFontInfo(sans).fixedPitch());
    const CellMetrics cells = MeasureCells(sans);
    const QImage reference = Paint({MakeRun(1, 80, "|", face)}, scale, 1, cells);
    for (const char letter : {'i', 'm', ' '}) {
        const std::string text = std::string(79, letter) + "|";
        EXPECT_TRUE(Contains(Paint({MakeRun(1, 1, text, face)}, scale, 1, cells), reference)) << letter;
    }
}

TEST(PaintRuns, faces_lookDifferent)
{
    std::vector<QImage> images;
    for (std::size_t face = 0; face < FaceCount; ++face) {
        images.push_back(Paint({MakeRun(1, 1, "Topic", face)}));
        for (std::size_t other = 0; other < face; ++other) {
            EXPECT_NE(images[face], images[other]) << face << " and " << other;
        }
    }
}

TEST(PaintRuns, colour_isThatOfTheRun)
{
    ls::Run run = MakeRun(1, 1, "WWWW");
    EXPECT_EQ(RedPixels(Paint({run})), 0);
    run.colour = DarkRed;
    EXPECT_GT(RedPixels(Paint({run})), 10);
}

TEST(PaintRuns, underline_runsUnderEveryCellAndBlanksToo)
{
    ls::Run run = MakeRun(1, 3, "a b  ");
    run.underline = true;
    run.colour = DarkRed;
    const QImage image = Paint({run});
    const int y = static_cast<int>(Cells().underlineTop);
    const int begin = static_cast<int>(std::ceil(2 * Cells().charWidth));
    const int end = static_cast<int>(std::floor(7 * Cells().charWidth));
    for (int x = begin; x < end; ++x) {
        EXPECT_EQ(image.pixel(x, y), qRgb(127, 0, 0)) << x;
    }
    EXPECT_EQ(image.pixel(begin - 2, y), qRgb(255, 255, 255));
    EXPECT_EQ(image.pixel(end + 1, y), qRgb(255, 255, 255));
}

TEST(PaintRuns, noUnderline_leavesTheLineFree)
{
    EXPECT_TRUE(IsWhite(Paint({MakeRun(1, 1, "     ")})));
}

TEST(PaintRuns, secondRun_standsBehindTheFirst)
{
    const QImage apart = Paint({MakeRun(1, 1, "Read"), MakeRun(1, 5, " me")});
    EXPECT_EQ(apart, Paint({MakeRun(1, 1, "Read me")}));
}

TEST(PaintRuns, rows_standOneHeightApart)
{
    const QImage both = Paint({MakeRun(1, 1, "Wj"), MakeRun(2, 1, "Wj")}, 1, 2);
    const int height = static_cast<int>(Cells().rowHeight);
    EXPECT_FALSE(IsWhite(both.copy(0, 0, both.width(), height)));
    EXPECT_EQ(both.copy(0, 0, both.width(), height), both.copy(0, height, both.width(), height));
}

TEST(PaintRuns, outsideTheArea_isNotDrawn)
{
    const std::vector<ls::Run> runs = {MakeRun(1, 1, "WWWW"), MakeRun(2, 1, std::string(70, 'W')),
                                       MakeRun(3, 1, "WWWW")};
    const double height = Cells().rowHeight;
    QImage image(static_cast<int>(Columns * Cells().charWidth), static_cast<int>(3 * height),
                 QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    PaintRuns(painter, runs, Cells(), QRectF(0, height, 10 * Cells().charWidth, height));
    painter.end();
    const int row = static_cast<int>(height);
    EXPECT_TRUE(IsWhite(image.copy(0, 0, image.width(), row)));
    EXPECT_TRUE(IsWhite(image.copy(0, 2 * row, image.width(), row)));
    const auto [first, last] = InkedColumns(image);
    EXPECT_LT(first, Cells().charWidth);
    EXPECT_GT(last, 9 * Cells().charWidth);
    EXPECT_LT(last,
              12 * Cells().charWidth); // letters lean into one cell more
}

TEST(PaintRuns, areaInTheMiddle_paintsWhatThePartOfTheWholeShows)
{
    const std::vector<ls::Run> runs = {MakeRun(1, 1, std::string(80, 'f'), BoldFace + ItalicFace)};
    // Begins at the left edge of a cell. The letter before it leans into the area.
    const QRect middle(static_cast<int>(std::lround(13 * Cells().charWidth)), 0, 57,
                       static_cast<int>(Cells().rowHeight));
    QImage image = Paint({});
    QPainter painter(&image);
    painter.setClipRect(middle);
    PaintRuns(painter, runs, Cells(), middle);
    painter.end();
    EXPECT_EQ(image.copy(middle), Paint(runs).copy(middle));
}

TEST(PaintRuns, desktopFromRightToLeft_changesNothing)
{
    const std::vector<ls::Run> runs = {MakeRun(1, 1, "(a) First, see [b].")};
    QImage image = Paint({});
    QPainter painter(&image);
    painter.setLayoutDirection(Qt::RightToLeft);
    PaintRuns(painter, runs, Cells(), QRectF(0, 0, image.width(), image.height()));
    painter.end();
    EXPECT_EQ(image, Paint(runs));
}

TEST(PaintRuns, painter_isLeftAsItWas)
{
    QImage image = Paint({});
    QPainter painter(&image);
    const QFont font = painter.font();
    painter.setPen(Qt::green);
    PaintRuns(painter, std::vector<ls::Run>{MakeRun(1, 1, "text")}, Cells(), image.rect());
    EXPECT_EQ(painter.font(), font);
    EXPECT_EQ(painter.pen().color(), QColor(Qt::green));
}

TEST(PaintRuns, hugeRun_isPaintedLikeItsVisiblePart)
{
    constexpr std::size_t huge = 100U * 1024U * 1024U;
    const QImage image = Paint({MakeRun(1, 1, std::string(huge, 'W'))});
    EXPECT_EQ(image, Paint({MakeRun(1, 1, std::string(Columns, 'W'))}));
}

TEST(PaintRuns, runBeyondTheRightEdge_drawsNothing)
{
    EXPECT_TRUE(IsWhite(Paint({MakeRun(1, 200, "WWWW"), MakeRun(1, std::numeric_limits<int>::max(), "W")})));
}

TEST(PaintRuns, nothing_drawsNothing)
{
    EXPECT_TRUE(IsWhite(Paint({})));
    EXPECT_TRUE(IsWhite(Paint({MakeRun(1, 1, "")})));
}

} // namespace
} // namespace ls
