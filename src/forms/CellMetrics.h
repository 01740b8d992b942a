#pragma once

#include "forms/TypeSize.h"

#include <QFont>

#include <array>
#include <bitset>

namespace ls {

/// Indices of the four faces that the reading pane prints in.
inline constexpr std::size_t RegularFace = 0;
inline constexpr std::size_t BoldFace = 1;
inline constexpr std::size_t ItalicFace = 2; ///< bold italic is both indices added
inline constexpr std::size_t FaceCount = 4;

/// The character cell of the reading pane, and the fonts painted into it. Lengths are device-independent
/// pixels.
///
/// Columns are counted, never measured: a character's left edge is its column times `charWidth`, whatever its
/// glyph's width is.
struct CellMetrics
{
    std::array<QFont, FaceCount> fonts;
    double charWidth = 0; ///< of a regular "W"
    double rowHeight = 0; ///< from one row's top to the next; a whole number, so that rows are evenly spaced
    double baseline = 0;  ///< distance below the row's top
    double underlineTop = 0;  ///< distance below the row's top
    double underlineSize = 1; ///< its thickness

    /// For each face the book bytes whose glyph is exactly one cell wide. A run of these is drawn in one
    /// call; the others are drawn one by one.
    std::array<std::bitset<256>, FaceCount> exact;
};

/// The character shown in a cell for a book byte. A control character or an unassigned byte of the code page
/// becomes a small box, and a TAB becomes a blank, so that neither moves the text after it.
[[nodiscard]] char16_t CellCharacter(char byte);

/// The cells of the pane's font, 9.75 points unless the user chose another size. `dotsPerInch` is the
/// screen's, 96 without scaling.
[[nodiscard]] CellMetrics MeasureCells(int dotsPerInch, double points = NormalTypeSize);

/// The same font on paper. Lengths are twips; a character is 0.6 of the type size wide.
[[nodiscard]] CellMetrics MeasurePrintCells(double points);

/// The cells of any other font. Letters of a proportional font are squeezed into them.
[[nodiscard]] CellMetrics MeasureCells(const QFont& regular);

} // namespace ls
