#pragma once

#include "render/text/TopicText.h"

#include <optional>

namespace ls {

/// Where the keys move a caret.
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

/// A caret in a topic's text, and what is selected between it and the place where the selecting began.
class TextSelection
{
public:
    [[nodiscard]] std::size_t Caret() const { return m_caret; }
    [[nodiscard]] std::size_t Anchor() const { return m_anchor; }

    /// What is selected, first character first; empty at the caret when nothing is.
    [[nodiscard]] TextRange Range() const;

    /// Puts the caret somewhere. What was selected no longer is, unless it is extended up to there.
    void MoveTo(std::size_t offset, bool extend);

    /// Selects a part with the caret at its end.
    void Select(TextRange range);

    /// Selects from one part to another, both whole, with the caret on the side of `last`: words or rows, as
    /// the mouse is dragged over them.
    void SelectBetween(TextRange first, TextRange last);

    /// Moves as a key says, by `pageRows` rows for a page. Up and down keep to the column that the caret had
    /// before the first of them. Without `extend`, left and right first go to the ends of what is selected.
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
    std::optional<std::size_t> m_column; ///< where up and down keep to, from 0
};

/// The word around a character: letters and digits; or the blanks, or the other signs, that stand together
/// there. It ends with its row; at a row's end it is what stands before it.
[[nodiscard]] TextRange WordAt(std::string_view text, std::size_t offset);

/// The start of the next word, or the end of the text.
[[nodiscard]] std::size_t NextWord(std::string_view text, std::size_t offset);

/// The start of the word that ends before a place, or that the place is in.
[[nodiscard]] std::size_t PreviousWord(std::string_view text, std::size_t offset);

} // namespace ls
