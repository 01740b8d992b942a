#pragma once

#include "base/LineCursor.h"
#include "render/text/BreakFinder.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace ls {

/// The width below which a hanging indent could reach the width itself: the largest indent is 10.
inline constexpr int LeastLineWidth = 11;

/// What is left of a source line while it is being wrapped: a position in the text, never a copy of it, so
/// that a line of any length wraps in linear time. The text must outlive it.
///
/// A row without markup is cut at its last blank, without a walk through its characters. `BreakFinder` walks
/// through every other row.
class LineRemainder
{
public:
    /// With `rest`, a cursor, the text is the beginning of a line that it gave and did not give whole. More
    /// of it is read as it is needed, so that the line never is in memory as one, and blanks at its end are
    /// cut. At a read error the line ends with what was read; the cursor tells the error to whoever reads
    /// next.
    explicit LineRemainder(std::string_view text, LineCursor* rest = nullptr);

    /// Length in characters of what is known of the line, the spaces of an opened leading TAB included.
    [[nodiscard]] std::size_t Size() const { return m_spaces + (m_text.size() - m_at); }
    [[nodiscard]] bool Empty() const { return Size() == 0; }

    /// True when nothing but blanks is left.
    [[nodiscard]] bool Blank() const { return m_at >= m_contentEnd; }

private:
    friend void WrapSegment(LineRemainder& line, int width, int indent, std::string& segment);

    void Begin(std::string_view text);
    void ReadOn();
    void NeedMoreThan(std::size_t count)
    {
        while (m_rest != nullptr && m_text.size() - m_at <= count) {
            ReadOn();
        }
    }
    bool TakeRow(std::size_t columns, std::size_t hang, std::string& segment);
    void OpenLeadingTab();
    bool MarkupBefore(std::size_t end);
    bool TakePlainRow(std::size_t columns, std::size_t hang, std::string& segment);
    bool TakeWalkedRow(std::size_t columns, std::size_t hang, std::string& segment);
    void CutHard(std::size_t columns, std::string& segment);
    void AppendFront(std::size_t count, std::string& segment) const;
    void Pass(std::size_t count);
    bool TakeRest(std::string& segment);

    LineCursor* m_rest = nullptr; ///< what follows m_text; nullptr when nothing does
    std::string_view
        m_read; ///< as the cursor gave it: m_text with blanks that may yet turn out to be its last
    std::string_view m_text;
    std::size_t m_contentEnd = 0; ///< after the last character of m_text that is no blank
    std::size_t m_at = 0;         ///< the next character of m_text
    std::size_t m_spaces = 0;     ///< spaces of a TAB that stand before it
    std::size_t m_tag = 0;        ///< the first "<" of m_text from m_at on, as far as looked for
    std::size_t m_entity = 0;     ///< the same for "&"
    BreakMarks m_marks;
};

/// Cuts one display line off the front of `line` and puts it, with `indent` spaces in front, into `segment`.
///
/// `width` is counted in visible characters: a tag counts nothing, an entity one. The line breaks at the last
/// blank that fits, else hard after `width` raw characters. `indent` must be below `width`; a caller that
/// breaks this gets the whole rest unwrapped (and an assertion in debug builds).
void WrapSegment(LineRemainder& line, int width, int indent, std::string& segment);

} // namespace ls
