#include "render/print/PageSetup.h"

#include "base/Count16.h"
#include "base/PrinterDevice.h"
#include "base/Rounding.h"
#include "render/print/PrintSettings.h"
#include "render/text/TextSurface.h"

#include <algorithm>
#include <cmath>

namespace ls {

namespace {

constexpr int TwipsPerInch = 1440;

// The left and top edge of the text, from the paper's edge, in twips.
struct Margins
{
    int left;
    int top;
};

constexpr Margins Portrait{936, 864};
constexpr Margins Landscape{720, 936};

// The margin inside the printable area. Half of the unprintable part lies before that area.
int Inside(int margin, int unprintable)
{
    return std::max(0, RoundHalfEven(margin - unprintable / 2.0));
}

bool TooLarge(double value)
{
    return std::abs(value) > Count16::Max;
}

} // namespace

FileError PageSetup(PrintSettings& settings, PrinterDevice& printer)
{
    const PrinterState page = printer.State();
    const double lineHeight = printer.Surface().TextHeight("_");
    const double barHeight = printer.Surface().TextHeight("|");
    if (lineHeight <= 0 || barHeight <= 0 || settings.CharsPerInch <= 0) {
        return MakeFileError(error::InvalidCall);
    }
    const Margins fromEdge = page.landscape ? Landscape : Portrait;
    const int left = Inside(fromEdge.left, page.width - page.scaleWidth);
    const int top = Inside(fromEdge.top, page.height - page.scaleHeight);
    const double charWidth = static_cast<double>(TwipsPerInch) / settings.CharsPerInch;
    const double width = page.scaleWidth - 2.0 * left;
    const double height = page.scaleHeight - 2.0 * top;
    const double lines = std::floor(height / lineHeight);
    if (TooLarge(width) || TooLarge(height) || TooLarge(lines) || TooLarge(top / barHeight)) {
        return MakeFileError(error::Overflow);
    }
    settings.PrintableWidth = static_cast<int>(width);
    settings.PrintableHeight = static_cast<int>(height);
    settings.CharsPerLine = static_cast<int>(std::floor(width / charWidth));
    settings.LinesPerPage = static_cast<int>(lines);
    settings.LeftMarginChars = RoundHalfEven(left / charWidth);
    settings.TopMarginLines = RoundHalfEven(top / barHeight);
    return {};
}

} // namespace ls
