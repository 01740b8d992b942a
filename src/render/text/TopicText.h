#pragma once

#include "render/text/TextSurface.h"

#include <cstddef>
#include <string>
#include <vector>

namespace ls {

struct DisplayLines;

/// A part of a text: from the character `begin`, counted from 0, up to but without `end`.
struct TextRange
{
    std::size_t begin = 0;
    std::size_t end = 0;

    [[nodiscard]] bool Empty() const { return begin == end; }
    [[nodiscard]] std::size_t Length() const { return end - begin; }

    friend bool operator==(const TextRange&, const TextRange&) = default;
};

/// How characters look.
struct TextStyle
{
    bool bold = false;
    bool italic = false;
    bool underline = false;
    Colour colour;

    friend bool operator==(const TextStyle&, const TextStyle&) = default;
};

/// A part of a text that looks the same throughout.
struct StyledPart
{
    TextRange range;
    TextStyle style;

    friend bool operator==(const StyledPart&, const StyledPart&) = default;
};

/// The text of a whole topic as its rows read when they are drawn from the first line on: tags removed,
/// entities resolved, rows parted by "\n". For whatever looks beyond the rows on the pane: finding, copying,
/// a screen reader.
///
/// Places in it are offsets: characters before the place. A row mostly is one display line; a line that
/// leaves its row open, such as one of tags only, shares it with the next line.
class TopicText
{
public:
    TopicText() = default;
    TopicText(const DisplayLines& lines, float bookVersion);

    [[nodiscard]] const std::string& Text() const { return m_text; }
    [[nodiscard]] std::size_t Length() const { return m_text.size(); }
    [[nodiscard]] std::string Part(TextRange range) const;

    [[nodiscard]] int LineCount() const { return static_cast<int>(m_lineStarts.size()); }

    /// Where a display line (from 1) begins; the length for one behind the last.
    [[nodiscard]] std::size_t LineStart(int displayLine) const;

    /// The display line that a character stands in, or behind which it ends the row; 0 without any line. Of
    /// lines that begin at the same place it is the last.
    [[nodiscard]] int LineAt(std::size_t offset) const;

    /// Rows, at least one; counted from 1.
    [[nodiscard]] int RowCount() const { return static_cast<int>(m_rowStarts.size()); }
    [[nodiscard]] int RowAt(std::size_t offset) const;

    /// A row without the "\n" behind it. The number is held between the first and the last.
    [[nodiscard]] TextRange Row(int row) const;

    /// How the character at an offset looks, with the neighbours that look the same. An empty part at the end
    /// of the text.
    [[nodiscard]] StyledPart StyleAt(std::size_t offset) const;

private:
    class Collector;

    std::string m_text;
    std::vector<std::size_t> m_lineStarts;
    std::vector<std::size_t> m_rowStarts = {0};
    std::vector<StyledPart> m_parts; ///< of the whole text, in its order
};

/// The level of the heading that text of that colour belongs to, 1 to 3; 0 for other text. No other tag sets
/// a colour.
[[nodiscard]] int HeadingLevel(Colour colour);

} // namespace ls
