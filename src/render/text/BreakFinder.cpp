#include "render/text/BreakFinder.h"

#include <algorithm>

// How a row that holds markup finds its end:
//
// 1. A walk counts the columns of a row until there is one too many.
// 2. Plain characters are taken in runs: up to the next "<" or "&", the next mark or the width, whichever
//    comes first.
// 3. Hidden characters, in a tag or an entity, are taken one by one, as each of them may end what hides
//    it.
// 4. Every 256 characters a walk leaves a mark with its state and its column.
// 5. A later walk that meets a mark in the same state leaps to the last mark within its width, so that the
//    rows that end inside a megabyte of tags do not all walk through it.
//
// WrapSegment.wrap_randomLines_asTheRuleWrittenStepByStep and
// Kinds/HiddenText.wrap_randomLines_asTheRuleWrittenStepByStep compare it with the plain rule.

namespace ls {

namespace {

// Far enough apart that ordinary lines, which break sooner, never leave one.
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

// Takes the characters up to the next "<" or "&", and that one; no more than the line has columns left and
// one. True when the line breaks there.
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

// Takes characters that are not counted, up to the end of the tag and the entity that they stand in. True
// when the line breaks there.
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

// Takes one character that begins, ends or stands inside a tag or an entity. True when the line breaks before
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
        m_now.column += m_now.inEntity ? 1 : 0; // the whole entity is one column
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
            // This walk is not that of the marks and has come further than they reach: its own serve better.
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

// Goes on from the last mark that lies inside the row. This walk is there in the mark's state, and as many
// columns apart from it as here.
//
// What is leapt over cannot decide where the segment ends. There is no blank in it: the walk that left the
// marks would have ended its segment at that blank, and this one would begin behind it. There may be a "&"
// that ends a full row; but then the row ends at the marks' end at the latest, as it did for that walk, and
// where no blank was met, the segment is the same wherever the row is found to end.
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
