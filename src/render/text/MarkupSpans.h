#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace ls {

/// Tells where a row of text ends without a walk through its characters: looks ahead for tags and entities,
/// many characters at a time, and keeps where each one begins and in which column.
///
/// Only simple ones are understood: letters, perhaps behind a "/" and before a digit, between "<" and ">" or
/// between "&" and ";", such as "<B>", "</H1>" and "&AMP;". They hold neither a blank nor other markup, so
/// that they hide their characters and nothing else. At anything else the answer is `Unknown`.
class MarkupSpans
{
public:
    static constexpr std::size_t Unknown = std::string_view::npos;
    static constexpr std::size_t NoBreak = Unknown - 1;

    /// The text must outlive it.
    explicit MarkupSpans(std::string_view text) { Begin(text); }

    /// Begins with another text.
    void Begin(std::string_view text)
    {
        m_text = text;
        Restart(0);
    }

    /// The place behind the character that is the first one not to fit, for a row of so many columns that
    /// begins at `start`; the character counts as the row's when its last blank is looked for. An entity that
    /// would be that character is not counted. `NoBreak` where all of the text fits.
    ///
    /// Rows are asked for from the front to the back.
    std::size_t EndOfRow(std::size_t start, std::size_t columns)
    {
        const std::size_t end = start + columns + 1;
        return m_count == 0 && end <= m_end ? end : FindEnd(start, columns); // most text has no markup
    }

private:
    static constexpr std::size_t Block = 64;
    static constexpr std::size_t Ahead = 8 * Block; ///< some rows
    static constexpr std::size_t Capacity = 2 * Block;
    static constexpr std::size_t Step = 4; ///< spans that are looked at together

    std::size_t FindEnd(std::size_t start, std::size_t columns);
    void Restart(std::size_t at);
    std::size_t Measure(std::size_t start, std::size_t columns);
    [[nodiscard]] std::size_t HiddenBefore(std::size_t next) const
    {
        return m_begin[next] - static_cast<std::size_t>(m_column[next]);
    }
    void LookAhead();
    void Forget();
    [[nodiscard]] std::uint64_t OpenersAt(std::size_t at) const;
    std::size_t AddOpeners(std::size_t at, std::size_t count);
    void TakeOpeners(std::size_t count);
    [[nodiscard]] std::size_t LengthAt(std::size_t at) const;
    void Close();

    std::string_view m_text;
    std::size_t m_end = 0;    ///< up to here the markup is known
    bool m_stopped = false;   ///< what stands there is not simple
    std::size_t m_first = 0;  ///< the row's first span
    std::size_t m_next = 0;   ///< the first one behind the row
    std::size_t m_count = 0;  ///< of spans
    std::size_t m_hidden = 0; ///< columns that they hide, and those before them
    // Where each span begins, and which column that would be, counted from the start of the text without what
    // is hidden. Set as they are found, as a line is often shorter than these are; behind the last span stand
    // some that no row reaches.
    std::array<std::size_t, Capacity + Step> m_begin;
    std::array<std::ptrdiff_t, Capacity + Step> m_column;
};

} // namespace ls
