#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace ls {

/// What one walk through a line leaves for the next one.
///
/// Hidden text, such as a megabyte of tags, is walked for one segment and walked again for each of the many
/// segments that end inside it. So a walk leaves marks on its way. Once a later walk stands at a mark in the
/// same state, the two go the same way from there, a number of columns apart, and it can leap ahead.
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

    std::vector<Mark> marks; ///< in the order of the text, and of columns
    std::size_t first = 0;   ///< those before it have been passed for good
};

/// Looks for the place where a line has to break: walks its characters with a visible column.
///
/// Tags and entities switch the counting off until they end. One that never ends switches it off for the rest
/// of the line, which then does not break any more; that is kept.
class BreakFinder
{
public:
    /// The walk begins at `start` of the text, behind `spaces` blanks that are not in it.
    BreakFinder(std::string_view text, std::size_t start, std::size_t spaces, BreakMarks& memory);

    /// Whether the line breaks at all when it begins in that column.
    bool Find(int width, int column);

    /// The last blank that the break may stand at, counted from 1 at the start of the walk; 0 without one.
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
    BreakMarks::Mark m_now;      ///< where the walk stands
    std::size_t m_lastSpace = 0; ///< the last blank outside tags and entities, as `LastSpace` counts
    std::size_t m_next = 0;      ///< the mark to be met next
    std::size_t m_nextStop = 0;  ///< where a mark is to be met or left
    std::ptrdiff_t m_apart = 0;  ///< columns that the walk is ahead of the marks
};

} // namespace ls
