#include "forms/CellMetrics.h"

#include "base/CodePage.h"

#include <QFontInfo>
#include <QFontMetricsF>

#include <algorithm>
#include <cmath>

namespace ls {

namespace {

constexpr char16_t SmallBox = 0x25AB;
constexpr double PointsPerInch = 72;
constexpr double TwipsPerPoint = 20;

std::array<char16_t, 256> MakeCellCharacters()
{
    std::array<char16_t, 256> characters{};
    for (std::size_t byte = 0; byte < characters.size(); ++byte) {
        const std::string utf8 = FromBook(std::string(1, static_cast<char>(byte)));
        std::size_t at = 0;
        const auto character = static_cast<char16_t>(NextUtf8(utf8, at));
        const bool control = character < 0x20 || (character >= 0x7F && character < 0xA0);
        characters[byte] = control ? SmallBox : character;
    }
    characters['\t'] = u' ';
    characters[0xA0] = u' '; // a no-break space is as wide as a space
    characters[0xAD] = u'-'; // a text engine hides the soft hyphen; here it is visible
    return characters;
}

// Asks for "Courier New" alone. Where it is missing, the system substitutes a look-alike, but only for the
// first family of a list. If the result has no fixed pitch, asks for the look-alike by its own name.
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
    font.setHintingPreference(QFont::PreferFullHinting); // whole pixels, so that columns are equal
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

char16_t CellCharacter(char byte)
{
    static const std::array<char16_t, 256> characters = MakeCellCharacters();
    return characters[static_cast<unsigned char>(byte)];
}

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
