#pragma once

#include "forms/TypeSize.h"

#include <QFont>

#include <array>
#include <bitset>

namespace ls {

/// The four faces that the reading pane prints in, as indices.
inline constexpr std::size_t RegularFace = 0;
inline constexpr std::size_t BoldFace = 1;
inline constexpr std::size_t ItalicFace = 2; ///< bold italic is both added
inline constexpr std::size_t FaceCount = 4;

/// The character cell of the reading pane, and the fonts that are painted into it. Lengths are
/// device-independent pixels.
///
/// Columns are counted when a line is wrapped, never measured: a character stands at its column times
/// `charWidth`, whatever its own glyph says.
struct CellMetrics
{
    std::array<QFont, FaceCount> fonts;
    double charWidth = 0;     ///< of a regular "W"
    double rowHeight = 0;     ///< from one row's top to the next; a whole number, so that rows stand evenly
    double baseline = 0;      ///< below the row's top
    double underlineTop = 0;  ///< below the row's top
    double underlineSize = 1; ///< its thickness

    /// For each face the book bytes whose glyph is exactly one cell wide. Rows of these are drawn in one
    /// go; the others are drawn one by one.
    std::array<std::bitset<256>, FaceCount> exact;
};

/// The character shown in a cell for a book byte. A control character, or a byte that the code page
/// leaves unassigned, is shown as a small box and a TAB as a blank: neither can move what comes after it.
[[nodiscard]] char16_t CellCharacter(char byte);

/// The pane's font, 9.75 points unless the user chose another size, on a screen of so many dots to the inch
/// (96 where nothing was scaled).
[[nodiscard]] CellMetrics MeasureCells(int dotsPerInch, double points = NormalTypeSize);

/// The same font on paper, where lengths are twips: a character is 0.6 of the type size wide.
[[nodiscard]] CellMetrics MeasurePrintCells(double points);

/// Cells for any other font. One whose letters differ in width is squeezed into them.
[[nodiscard]] CellMetrics MeasureCells(const QFont& regular);

} // namespace ls
