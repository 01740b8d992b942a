#pragma once

#include "render/text/TopicText.h"

#include <optional>

namespace ls {

/// Where a key moves the caret.
enum class CaretMove
{
    Left,
    Right,
    WordLeft,
    WordRight,
    Up,
    Down,
    PageUp,
    PageDown,
    RowStart,
    RowEnd,
    TextStart,
    TextEnd
};

/// A caret in a topic's text, and the selection between it and the place where the selection began.
class TextSelection
{
public:
    [[nodiscard]] std::size_t Caret() const { return m_caret; }
    [[nodiscard]] std::size_t Anchor() const { return m_anchor; }

    /// The selection, first character first; empty at the caret if nothing is selected.
    [[nodiscard]] TextRange Range() const;

    /// Moves the caret. Extends the selection up to there with `extend`, else clears it.
    void MoveTo(std::size_t offset, bool extend);

    /// Selects a part with the caret at its end.
    void Select(TextRange range);

    /// Selects from one part to another, both whole, with the caret on the side of `last`. The parts are
    /// words or rows while the mouse is dragged.
    void SelectBetween(TextRange first, TextRange last);

    /// Moves the caret as a key does; a page is `pageRows` rows. Repeated up and down moves keep the first
    /// one's column. Without `extend`, left and right first go to the ends of a selection.
    void Move(const TopicText& topic, CaretMove move, bool extend, int pageRows);

    friend bool operator==(const TextSelection& a, const TextSelection& b)
    {
        return a.m_anchor == b.m_anchor && a.m_caret == b.m_caret;
    }

private:
    void MoveRows(const TopicText& topic, int rows, bool extend);
    [[nodiscard]] std::size_t Target(const TopicText& topic, CaretMove move, bool extend) const;

    std::size_t m_anchor = 0;
    std::size_t m_caret = 0;
    std::optional<std::size_t> m_column; ///< the column for up and down, from 0
};

/// The word at a character: all neighbouring letters and digits, or blanks, or other signs. It ends with its
/// row. At a row's end it is the word before.
[[nodiscard]] TextRange WordAt(std::string_view text, std::size_t offset);

/// The start of the next word, or the end of the text.
[[nodiscard]] std::size_t NextWord(std::string_view text, std::size_t offset);

/// The start of the word at or before a place.
[[nodiscard]] std::size_t PreviousWord(std::string_view text, std::size_t offset);

} // namespace ls
