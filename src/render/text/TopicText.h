#pragma once

#include "render/text/TextSurface.h"

#include <cstddef>
#include <string>
#include <vector>

namespace ls {

struct DisplayLines;

/// A part of a text from character `begin`, counted from 0, to just before `end`.
struct TextRange
{
    std::size_t begin = 0;
    std::size_t end = 0;

    [[nodiscard]] bool Empty() const { return begin == end; }
    [[nodiscard]] std::size_t Length() const { return end - begin; }

    friend bool operator==(const TextRange&, const TextRange&) = default;
};

/// The style of characters.
struct TextStyle
{
    bool bold = false;
    bool italic = false;
    bool underline = false;
    Colour colour;

    friend bool operator==(const TextStyle&, const TextStyle&) = default;
};

/// A part of a text that has one style.
struct StyledPart
{
    TextRange range;
    TextStyle style;

    friend bool operator==(const StyledPart&, const StyledPart&) = default;
};

/// The text of a whole topic as it is drawn from the first line on: tags removed, entities resolved, rows
/// separated by "\n". Finding, copying and screen readers use it, because they need more than the rows on the
/// pane.
///
/// Places in it are offsets: the number of characters before the place. A row usually is one display line. A
/// line that does not end its row, such as a line of tags only, shares the row with the next line.
class TopicText
{
public:
    TopicText() = default;
    TopicText(const DisplayLines& lines, float bookVersion);

    [[nodiscard]] const std::string& Text() const { return m_text; }
    [[nodiscard]] std::size_t Length() const { return m_text.size(); }
    [[nodiscard]] std::string Part(TextRange range) const;

    [[nodiscard]] int LineCount() const { return static_cast<int>(m_lineStarts.size()); }

    /// The offset where a display line (from 1) begins; the length of the text for a later number.
    [[nodiscard]] std::size_t LineStart(int displayLine) const;

    /// The display line of the character at an offset, or of the "\n" there; 0 if there is no line. If
    /// several lines begin at one offset, it is the last of them.
    [[nodiscard]] int LineAt(std::size_t offset) const;

    /// The number of rows, at least 1. Rows are counted from 1.
    [[nodiscard]] int RowCount() const { return static_cast<int>(m_rowStarts.size()); }
    [[nodiscard]] int RowAt(std::size_t offset) const;

    /// A row without its "\n". A number outside the rows means the first or the last row.
    [[nodiscard]] TextRange Row(int row) const;

    /// The style of the character at an offset, with all neighbours of that style. An empty part at the end
    /// of the text.
    [[nodiscard]] StyledPart StyleAt(std::size_t offset) const;

private:
    class Collector;

    std::string m_text;
    std::vector<std::size_t> m_lineStarts;
    std::vector<std::size_t> m_rowStarts = {0};
    std::vector<StyledPart> m_parts; ///< of the whole text, in order
};

/// The level, 1 to 3, of a heading with that colour; 0 for other text. Only headings set a colour.
[[nodiscard]] int HeadingLevel(Colour colour);

} // namespace ls
