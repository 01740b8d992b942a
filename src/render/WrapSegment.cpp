#include "render/WrapSegment.h"

#include <algorithm>
#include <cassert>

namespace ls {

namespace {

constexpr std::size_t TabSpaces = 5;
} // namespace

LineRemainder::LineRemainder(std::string_view text)
    : m_text(text), m_contentEnd(text.find_last_not_of(' ') + 1) // 0 when there is none
{
}

void LineRemainder::OpenLeadingTab()
{
    if (m_spaces == 0 && m_at < m_text.size() && m_text[m_at] == '\t') {
        m_spaces = TabSpaces;
        ++m_at;
    }
}

void LineRemainder::AppendFront(std::size_t count, std::string& segment) const
{
    const std::size_t spaces = std::min(count, m_spaces);
    segment.append(spaces, ' ').append(m_text.substr(m_at, count - spaces));
}

void LineRemainder::Pass(std::size_t count)
{
    const std::size_t spaces = std::min(count, m_spaces);
    m_spaces -= spaces;
    m_at += count - spaces;
}

void LineRemainder::TakeAll(std::string& segment)
{
    AppendFront(Size(), segment);
    Pass(Size());
}

void WrapSegment(LineRemainder& line, int width, int indent, std::string& segment)
{
    assert(indent < width);
    line.OpenLeadingTab();
    const auto columns = static_cast<std::size_t>(std::max(width, 0));
    const auto hang = static_cast<std::size_t>(std::max(indent, 0));
    segment.assign(hang, ' ');
    if (hang >= columns || line.Size() + hang <= columns) {
        line.TakeAll(segment);
        return;
    }
    BreakFinder finder(line.m_text, line.m_at, line.m_spaces, line.m_marks);
    if (!finder.Find(width, indent)) {
        line.TakeAll(segment);
        return;
    }
    if (finder.LastSpace() == 0) {
        const std::size_t cut = std::min(columns, line.Size()); // tags included
        line.AppendFront(cut, segment);
        line.Pass(cut);
        return;
    }
    line.AppendFront(finder.LastSpace() - 1, segment);
    line.Pass(finder.LastSpace());
    if (segment.empty()) {
        // The only blank was the first character: an empty row would gain nothing, so the rest stands
        // unwrapped.
        line.TakeAll(segment);
    }
}

} // namespace ls
