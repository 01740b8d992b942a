#include "forms/CellMetrics.h"

#include "render/pane/PaintRuns.h"

#include <QFontInfo>
#include <QFontMetricsF>

#include <algorithm>
#include <cmath>

namespace ls {

namespace {

constexpr double PointsPerInch = 72;
constexpr double TwipsPerPoint = 20;

// A system resolves an alias ("Courier New" where only its look-alike is installed) only as the first family,
// so the name is asked for alone, and the look-alike by its own name when that gave nothing of fixed pitch.
QFont FixedPitchFont(int pixelSize)
{
    QFont font(QStringLiteral("Courier New"));
    font.setPixelSize(pixelSize);
    if (!QFontInfo(font).fixedPitch()) {
        font.setFamily(QStringLiteral("Liberation Mono"));
    }
    font.setFixedPitch(true);
    font.setStyleHint(QFont::Monospace);
    font.setKerning(false);
    font.setHintingPreference(QFont::PreferFullHinting); // whole pixels: every column starts alike
    return font;
}

std::bitset<256> ExactBytes(const QFontMetricsF& face, double charWidth)
{
    std::bitset<256> exact;
    for (std::size_t byte = 0; byte < exact.size(); ++byte) {
        const QChar character(CellCharacter(static_cast<char>(byte)));
        exact[byte] = std::abs(face.horizontalAdvance(character) - charWidth) < 1e-6;
    }
    return exact;
}

} // namespace

CellMetrics MeasureCells(int dotsPerInch, double points)
{
    const auto pixelSize = static_cast<int>(std::lround(points * dotsPerInch / PointsPerInch));
    return MeasureCells(FixedPitchFont(std::max(1, pixelSize)));
}

CellMetrics MeasurePrintCells(double points)
{
    QFont font = FixedPitchFont(static_cast<int>(std::lround(points * TwipsPerPoint)));
    font.setHintingPreference(QFont::PreferNoHinting);
    return MeasureCells(font);
}

CellMetrics MeasureCells(const QFont& regular)
{
    CellMetrics cells;
    const QFontMetricsF measured(regular);
    cells.charWidth = measured.horizontalAdvance(QLatin1Char('W'));
    cells.rowHeight = std::ceil(measured.height());
    cells.baseline = std::round(measured.ascent());
    cells.underlineSize = std::max(1.0, std::round(measured.lineWidth()));
    cells.underlineTop = std::min(cells.baseline + std::max(1.0, std::round(measured.underlinePos())),
                                  cells.rowHeight - cells.underlineSize);
    for (std::size_t face = 0; face < FaceCount; ++face) {
        QFont font = regular;
        font.setBold((face & BoldFace) != 0);
        font.setItalic((face & ItalicFace) != 0);
        cells.fonts[face] = font;
        cells.exact[face] = ExactBytes(QFontMetricsF(font), cells.charWidth);
    }
    return cells;
}

} // namespace ls
