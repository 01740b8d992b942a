#include "render/text/DrawLines.h"

#include "base/Rounding.h"
#include "render/text/DisplayLines.h"
#include "render/text/TextSurface.h"

#include <algorithm>
#include <cmath>

namespace ls {

namespace {

constexpr float MarkupVersion = 5.0F;

void DrawMarkup(TextSurface& surface, std::string_view line, std::string& buffer, TagColours colours)
{
    MarkupReader reader(line);
    for (;;) {
        const MarkupPiece piece = reader.Next();
        switch (piece.kind) {
        case MarkupPiece::Kind::Text:
            surface.Print(piece.before, true);
            return;
        case MarkupPiece::Kind::Entity:
            buffer.assign(piece.before).push_back(EntityCharacter(piece.name));
            surface.Print(buffer, reader.AtEnd());
            break;
        case MarkupPiece::Kind::Tag:
            if (!piece.before.empty()) {
                surface.Print(piece.before, reader.AtEnd());
            }
            ApplyTag(surface, piece.name, colours);
            break;
        }
        if (reader.AtEnd()) {
            return;
        }
    }
}

} // namespace

void SetPlain(TextSurface& surface)
{
    surface.SetBold(false);
    surface.SetItalic(false);
    surface.SetUnderline(false);
    surface.SetColour(Black);
}

void DrawLines(TextSurface& surface, const DisplayLines& lines, int firstLine, float bookVersion)
{
    DrawRows(surface, lines, firstLine, VisibleRows(surface.InnerHeight(), surface.TextHeight("W")),
             bookVersion);
}

void DrawRows(TextSurface& surface, const DisplayLines& lines, int firstLine, int rows, float bookVersion)
{
    surface.Clear();
    SetPlain(surface);
    const int first = std::max(firstLine, 1);
    const int last = std::min(first - 1 + std::min(rows, Count16::Max), static_cast<int>(lines.Count));
    std::string buffer;
    for (int number = first; number <= last; ++number) {
        surface.BeginLine(number);
        DrawLine(surface, lines(number), bookVersion, buffer);
    }
}

void DrawLine(TextSurface& surface, std::string_view line, float bookVersion, std::string& buffer,
              TagColours colours)
{
    if (bookVersion < MarkupVersion) {
        surface.Print(line, true);
    } else {
        DrawMarkup(surface, line, buffer, colours);
    }
}

int VisibleRows(double innerHeight, double rowHeight)
{
    return rowHeight > 0 ? RoundHalfEven(innerHeight / rowHeight) : 0;
}

ScrollSetup PlanScrolling(double innerHeight, double rowHeight, int lineCount)
{
    const int pageLines = rowHeight > 0 ? static_cast<int>(std::floor(innerHeight / rowHeight)) : 0;
    const int step = pageLines >= lineCount ? RoundHalfEven(lineCount / 2.0 + 1) : pageLines - 1;
    return {lineCount, std::max(step, 1)};
}

int CharsAcross(double innerWidth, double charWidth)
{
    return charWidth > 0 ? static_cast<int>(std::floor(innerWidth / charWidth)) : 0;
}

} // namespace ls
