#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace ls {

/// The marks that one walk through a line leaves for the next one.
///
/// Many segments may end inside the same hidden text, such as a megabyte of tags. Without marks each of them
/// would walk through it again. A later walk that reaches a mark in the same state would repeat the earlier
/// walk from there, with all columns shifted by the same number. So it leaps ahead.
struct BreakMarks
{
    /// The state of a walk before the character at `at`, counted from 0.
    struct Mark
    {
        std::size_t at = 0;
        std::ptrdiff_t column = 0;
        bool inTag = false;
        bool inEntity = false;
    };

    std::vector<Mark> marks; ///< in the order of the text, which is the order of columns
    std::size_t first = 0;   ///< the first mark that a walk can still meet
};

/// Finds the place where a line must break. It walks through the characters and counts visible columns.
///
/// Tags and entities are not counted until they end. Intended: one that never ends hides the rest of the
/// line, so the line does not break any more.
class BreakFinder
{
public:
    /// The walk begins at `start` of the text, after `spaces` blanks that are not in the text.
    BreakFinder(std::string_view text, std::size_t start, std::size_t spaces, BreakMarks& memory);

    /// Whether the line breaks at all when it begins in that column.
    bool Find(int width, int column);

    /// The last blank at which the line may break, counted from 1 at the start of the walk; 0 for none.
    [[nodiscard]] std::size_t LastSpace() const { return m_lastSpace; }

private:
    bool TakeSpaces();
    bool TakePlainRun();
    bool TakeHiddenRun();
    bool TakeMarkup();
    void MeetMark();
    void LeaveMark();
    void LeapFrom(std::size_t index);

    std::string_view m_text;
    std::size_t m_start;
    std::size_t m_spaces;
    BreakMarks* m_memory;

    std::ptrdiff_t m_width = 0;
    BreakMarks::Mark m_now;      ///< the current place and state of the walk
    std::size_t m_lastSpace = 0; ///< the last blank outside tags and entities, as `LastSpace` counts
    std::size_t m_next = 0;      ///< index of the next mark
    std::size_t m_nextStop = 0;  ///< the place where the next mark is met or left
    std::ptrdiff_t m_apart = 0;  ///< columns by which this walk is ahead of the walk that left the marks
};

} // namespace ls
