#pragma once

#include "base/LineCursor.h"
#include "render/text/BreakFinder.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace ls {

/// The least width of a line: above the largest hanging indent, which is 10.
inline constexpr int LeastLineWidth = 11;

/// The rest of a source line while it is wrapped. It is a position in the text and never a copy, so a line of
/// any length wraps in linear time. The text must outlive it.
///
/// A row without markup is cut at its last blank without a walk through its characters. Other rows need a
/// walk by `BreakFinder`.
class LineRemainder
{
public:
    /// With a cursor `rest`, the text is the beginning of a line that the cursor did not give whole. More is
    /// read when it is needed, so the whole line is never in memory. Blanks at its end are cut. A read error
    /// ends the line; the cursor keeps the error for the next reader.
    explicit LineRemainder(std::string_view text, LineCursor* rest = nullptr);

    /// The number of characters read and not yet taken, including the spaces of an expanded leading TAB.
    [[nodiscard]] std::size_t Size() const { return m_spaces + (m_text.size() - m_at); }
    [[nodiscard]] bool Empty() const { return Size() == 0; }

    /// Whether only blanks are left.
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

    LineCursor* m_rest = nullptr; ///< reads what follows m_text; nullptr at the end of the line
    /// As the cursor gave it: m_text and blanks that may be the last ones of the line.
    std::string_view m_read;
    std::string_view m_text;
    std::size_t m_contentEnd = 0; ///< after the last character of m_text that is not a blank
    std::size_t m_at = 0;         ///< the next character of m_text
    std::size_t m_spaces = 0;     ///< spaces of a TAB before that character
    std::size_t m_tag = 0;        ///< the first "<" of m_text at or after m_at; searched again once passed
    std::size_t m_entity = 0;     ///< the same for "&"
    BreakMarks m_marks;
};

/// Cuts one display line off the front of `line` and puts it into `segment`, after `indent` spaces.
///
/// `width` counts visible characters: a tag counts 0 and an entity 1. The line breaks at the last blank that
/// fits, else after `width` raw characters. `indent` must be less than `width`. Otherwise the whole rest
/// comes back unwrapped (debug builds stop at an assertion).
void WrapSegment(LineRemainder& line, int width, int indent, std::string& segment);

} // namespace ls
