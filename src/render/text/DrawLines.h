#pragma once

#include "render/text/Markup.h"

#include <string>
#include <string_view>

namespace ls {

struct DisplayLines;
class TextSurface;

/// Sets the styles of text without tags: none of them, and black.
void SetPlain(TextSurface& surface);

/// Draws as many display lines as the surface has rows, from `firstLine` (from 1) on. Tags set styles and
/// entities become characters from version 5.0 on; below it lines are printed as they stand. Styles start
/// plain at each call: one opened above `firstLine` is not in force, and a line of tags only ends no row,
/// which is kept.
void DrawLines(TextSurface& surface, const DisplayLines& lines, int firstLine, float bookVersion);

/// Draws `rows` lines from `firstLine` on, however many rows the surface has.
void DrawRows(TextSurface& surface, const DisplayLines& lines, int firstLine, int rows, float bookVersion);

/// Prints one display line where the surface's position stands, in the styles that are in force. One that
/// ends in a tag with nothing before it, such as a line of tags only, leaves its row open, which is kept.
/// `buffer` is room to work in, kept by whoever draws many lines.
void DrawLine(TextSurface& surface, std::string_view line, float bookVersion, std::string& buffer,
              TagColours colours = TagColours::Applied);

/// Rows that `DrawLines` draws: the inner height by the row height, rounded with halves to even.
[[nodiscard]] int VisibleRows(double innerHeight, double rowHeight);

/// How the scroll bar is set for a topic.
struct ScrollSetup
{
    int max = 0;
    int largeChange = 1;
};

/// The page step leaves one line in view; a topic that fits gets half its count plus 1, halves to even. A
/// step of 0 (a pane of one row) is raised to 1.
[[nodiscard]] ScrollSetup PlanScrolling(double innerHeight, double rowHeight, int lineCount);

/// Characters that fit across: the inner width by the width of "W", rounded down.
[[nodiscard]] int CharsAcross(double innerWidth, double charWidth);

} // namespace ls
