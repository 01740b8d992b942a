#include "forms/CellMetrics.h"

#include "render/pane/PaintRuns.h"

#include <gtest/gtest.h>

#include <QFontInfo>
#include <QFontMetricsF>

#include <cmath>

namespace ls {
namespace {

const CellMetrics& Cells()
{
    static const CellMetrics cells = MeasureCells(96);
    return cells;
}

TEST(CellMetrics, font_isFixedPitchOfNineAndThreeQuarterPoints)
{
    for (const QFont& font : Cells().fonts) {
        EXPECT_TRUE(QFontInfo(font).fixedPitch()) << QFontInfo(font).family().toStdString();
        EXPECT_EQ(font.pixelSize(), 13); // 9.75 points at 96 dots to the inch
    }
    EXPECT_TRUE(Cells().fonts[BoldFace].bold());
    EXPECT_TRUE(Cells().fonts[ItalicFace].italic());
    EXPECT_TRUE(Cells().fonts[BoldFace + ItalicFace].bold() && Cells().fonts[BoldFace + ItalicFace].italic());
}

TEST(CellMetrics, dotsPerInch_scaleTheFont)
{
    EXPECT_EQ(MeasureCells(192).fonts[RegularFace].pixelSize(), 26);
    EXPECT_NEAR(MeasureCells(192).charWidth, 2 * Cells().charWidth, 1);
}

TEST(CellMetrics, charWidth_isThatOfW)
{
    const QFontMetricsF metrics(Cells().fonts[RegularFace]);
    EXPECT_DOUBLE_EQ(Cells().charWidth, metrics.horizontalAdvance(QLatin1Char('W')));
}

TEST(CellMetrics, rowHeight_isWholeAndHoldsTheFont)
{
    EXPECT_DOUBLE_EQ(Cells().rowHeight, std::round(Cells().rowHeight));
    for (const QFont& font : Cells().fonts) {
        EXPECT_GE(Cells().rowHeight, QFontMetricsF(font).height());
    }
    EXPECT_LE(Cells().underlineTop + Cells().underlineSize, Cells().rowHeight);
    EXPECT_GE(Cells().underlineTop, Cells().baseline);
}

TEST(CellMetrics, proportionalFont_hasExactAndOtherLetters)
{
    QFont sans(QStringLiteral("Liberation Sans"));
    sans.setPixelSize(13);
    const CellMetrics cells = MeasureCells(sans);
    EXPECT_TRUE(cells.exact[RegularFace]['W']);
    EXPECT_FALSE(cells.exact[RegularFace]['i']);
    EXPECT_FALSE(cells.exact[ItalicFace][' ']);
    EXPECT_TRUE(Cells().exact[RegularFace]['i']);
}

TEST(CellCharacter, everyByte_isOneHarmlessCharacter)
{
    for (int byte = 0; byte < 256; ++byte) {
        const QChar character(CellCharacter(static_cast<char>(byte)));
        EXPECT_TRUE(character.isPrint()) << byte;
        EXPECT_FALSE(character.isMark() || character.isSurrogate()) << byte;
    }
}

TEST(CellCharacter, controlAndUnassignedBytes_areABox)
{
    for (const char byte : {'\0', '\n', '\r', '\x1B', '\x7F', '\x81', '\x8D', '\x8F', '\x90', '\x9D'}) {
        EXPECT_EQ(CellCharacter(byte), u'\x25AB') << int(byte);
    }
}

TEST(CellCharacter, blanksAndHyphens_areSeen)
{
    EXPECT_EQ(CellCharacter('\t'), u' ');
    EXPECT_EQ(CellCharacter('\xA0'), u' ');
    EXPECT_EQ(CellCharacter('\xAD'), u'-');
    EXPECT_EQ(CellCharacter('\x80'), u'\x20AC');
    EXPECT_EQ(CellCharacter('\xFC'), u'\xFC');
}

} // namespace
} // namespace ls
