#pragma once

#include "render/text/Markup.h"

#include <string>
#include <string_view>

namespace ls {

struct DisplayLines;
class TextSurface;

/// Sets the styles of text without tags: no bold, italic or underline, and black.
void SetPlain(TextSurface& surface);

/// Draws as many display lines as the surface has rows, from `firstLine` (from 1) on. From version 5.0 on
/// tags set styles and entities become characters; below 5.0 lines are printed as they are.
/// Intended: styles start plain at each call, so a style that begins above `firstLine` has no effect, and a
/// line of tags only does not end its row.
void DrawLines(TextSurface& surface, const DisplayLines& lines, int firstLine, float bookVersion);

/// Draws `rows` lines from `firstLine` on, whatever the height of the surface.
void DrawRows(TextSurface& surface, const DisplayLines& lines, int firstLine, int rows, float bookVersion);

/// Prints one display line at the surface's position, in the current styles. Intended: a line that ends in a
/// tag with no text before it, such as a line of tags only, does not end its row. `buffer` is working memory
/// that callers reuse for many lines.
void DrawLine(TextSurface& surface, std::string_view line, float bookVersion, std::string& buffer,
              TagColours colours = TagColours::Applied);

/// The number of rows that `DrawLines` draws: inner height divided by row height, halves to even.
[[nodiscard]] int VisibleRows(double innerHeight, double rowHeight);

/// The settings of the scroll bar for a topic.
struct ScrollSetup
{
    int max = 0;
    int largeChange = 1;
};

/// A page step leaves one line in view. For a topic that fits the pane it is half the line count plus 1,
/// halves to even. It is at least 1, also in a pane of one row.
[[nodiscard]] ScrollSetup PlanScrolling(double innerHeight, double rowHeight, int lineCount);

/// The number of characters in a row: the inner width divided by the width of "W", rounded down.
[[nodiscard]] int CharsAcross(double innerWidth, double charWidth);

} // namespace ls
