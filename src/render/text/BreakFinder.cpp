#include "render/text/BreakFinder.h"

#include <algorithm>

// How the end of a row with markup is found:
//
// 1. A walk counts the columns of a row until there is one too many. It notes the last blank outside tags and
//    entities. The row ends at that blank; without one the caller breaks inside a word.
// 2. Plain characters are taken in runs. A run ends at the next "<" or "&", at the next mark or at the width.
// 3. Hidden characters, in a tag or an entity, are taken one by one, because each may end the tag or entity.
// 4. Every 256 characters a walk leaves a mark: its place, its column, and whether it is in a tag or entity.
// 5. The walk for the next row may pass the same text. If it meets a mark in the same state, it leaps to the
//    last mark within its width. So a megabyte of tags is not walked again for each row that ends inside it.
//
// WrapSegment.wrap_randomLines_asTheRuleWrittenStepByStep and
// Kinds/HiddenText.wrap_randomLines_asTheRuleWrittenStepByStep compare the result with the plain rule.

namespace ls {

namespace {

// Ordinary rows are shorter, so they never leave a mark.
constexpr std::size_t MarkDistance = 256;

} // namespace

BreakFinder::BreakFinder(std::string_view text, std::size_t start, std::size_t spaces, BreakMarks& memory)
    : m_text(text), m_start(start), m_spaces(spaces), m_memory(&memory)
{
    m_now.at = start;
    const std::vector<BreakMarks::Mark>& marks = memory.marks;
    while (memory.first < marks.size() && marks[memory.first].at < start) {
        ++memory.first;
    }
    m_next = memory.first;
    m_nextStop = m_next < marks.size() ? marks[m_next].at : start + MarkDistance;
}

bool BreakFinder::Find(int width, int column)
{
    m_width = width;
    m_now.column = column;
    if (TakeSpaces()) {
        return true;
    }
    while (m_now.at < m_text.size()) {
        if (m_now.at == m_nextStop) {
            MeetMark();
        }
        if (m_now.inTag || m_now.inEntity ? TakeHiddenRun() : TakePlainRun()) {
            return true;
        }
    }
    return false;
}

bool BreakFinder::TakeSpaces()
{
    while (m_lastSpace < m_spaces) {
        ++m_lastSpace;
        if (++m_now.column > m_width) {
            return true;
        }
    }
    return false;
}

// Takes characters up to and including the next "<" or "&", at most one more than fits in the row. True if
// the row breaks there.
bool BreakFinder::TakePlainRun()
{
    const auto columnsLeft = static_cast<std::size_t>(m_width + 1 - m_now.column);
    std::string_view run = m_text.substr(m_now.at, std::min(columnsLeft, m_nextStop - m_now.at));
    const std::size_t longest = run.size();
    run = run.substr(0, run.find('<'));
    run = run.substr(0, run.find('&'));
    if (const std::size_t blank = run.rfind(' '); blank != std::string_view::npos) {
        m_lastSpace = m_spaces + (m_now.at - m_start) + blank + 1;
    }
    m_now.at += run.size();
    m_now.column += static_cast<std::ptrdiff_t>(run.size());
    return m_now.column > m_width || (run.size() < longest && TakeMarkup());
}

// Takes hidden characters up to the end of the current tag and entity. True if the row breaks there.
bool BreakFinder::TakeHiddenRun()
{
    const std::size_t end = std::min(m_nextStop, m_text.size());
    while (m_now.at < end && (m_now.inTag || m_now.inEntity)) {
        if (TakeMarkup()) {
            return true;
        }
    }
    return false;
}

// Takes one character that begins or ends a tag or an entity, or is inside one. True if the row breaks before
// it.
bool BreakFinder::TakeMarkup()
{
    switch (m_text[m_now.at]) {
    case '&':
        if (m_now.column >= m_width) {
            return true;
        }
        m_now.inEntity = true;
        break;
    case ';':
        m_now.column += m_now.inEntity ? 1 : 0; // a whole entity is one column wide
        m_now.inEntity = false;
        break;
    case '<':
        m_now.inTag = true;
        break;
    case '>':
        m_now.inTag = false;
        break;
    default:
        break;
    }
    ++m_now.at;
    return false;
}

void BreakFinder::MeetMark()
{
    const std::vector<BreakMarks::Mark>& marks = m_memory->marks;
    if (m_next < marks.size()) {
        const std::size_t met = m_next++;
        if (marks[met].inTag == m_now.inTag && marks[met].inEntity == m_now.inEntity) {
            LeapFrom(met);
        } else if (m_next == marks.size()) {
            // At the last mark the state of this walk differs from that of the mark. From here on its own
            // marks help later walks more.
            m_memory->marks.clear();
            m_memory->first = 0;
            m_next = 0;
        }
    }
    if (m_next < m_memory->marks.size()) {
        m_nextStop = m_memory->marks[m_next].at;
    } else {
        LeaveMark();
    }
}

void BreakFinder::LeaveMark()
{
    std::vector<BreakMarks::Mark>& marks = m_memory->marks;
    if (marks.empty() || marks.back().at < m_now.at) {
        marks.push_back({m_now.at, m_now.column - m_apart, m_now.inTag, m_now.inEntity});
    }
    m_next = marks.size();
    m_nextStop = m_now.at + MarkDistance;
}

// Continues at the last mark inside the row. From one mark to the next, this walk and the walk that left the
// marks have the same states, and their columns differ by the same number.
//
// The skipped text cannot change the end of the segment:
//
// 1. It has no blank. The walk that left the marks would have ended its segment at that blank, and this walk
//    would begin after it.
// 2. It may have a "&" that ends a full row. Then the row ends after the last mark at the latest, as it did
//    for the earlier walk. Since no blank was met, the segment is the same wherever the row ends.
void BreakFinder::LeapFrom(std::size_t index)
{
    const std::vector<BreakMarks::Mark>& marks = m_memory->marks;
    m_apart = m_now.column - marks[index].column;
    const auto inRow = [this](const BreakMarks::Mark& mark) { return mark.column + m_apart <= m_width; };
    const auto begin = marks.begin() + static_cast<std::ptrdiff_t>(index);
    const auto last = std::partition_point(begin + 1, marks.end(), inRow) - 1;
    m_now = *last;
    m_now.column += m_apart;
    m_next = static_cast<std::size_t>(last - marks.begin()) + 1;
}

} // namespace ls
