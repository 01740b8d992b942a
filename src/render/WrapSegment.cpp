#include "render/WrapSegment.h"

#include <algorithm>
#include <cassert>

namespace ls {

namespace {

constexpr std::size_t TabSpaces = 5;
constexpr auto None = std::string_view::npos;

// Looks for the place where a line has to break: walks its characters with a visible column.
//
// Tags and entities switch the counting off until they end. One that never ends switches it off for the rest
// of the line, which then does not break any more; that is kept.
class BreakFinder
{
public:
    BreakFinder(std::string_view text, std::size_t width, std::size_t column)
        : m_text(text), m_width(width), m_column(column)
    {
    }

    // Whether the line breaks at all. `spaces` blanks stand before the text.
    bool Find(std::size_t spaces)
    {
        for (std::size_t i = 1; i <= spaces; ++i) {
            m_lastSpace = i;
            if (++m_column > m_width) {
                return true;
            }
        }
        m_offset = spaces;
        while (m_at < m_text.size()) {
            if (m_inTag || m_inEntity ? TakeCharacter() : TakePlainRun()) {
                return true;
            }
        }
        return false;
    }

    // The last blank that the break may stand at, counted from 1; 0 without one.
    [[nodiscard]] std::size_t LastSpace() const { return m_lastSpace; }

private:
    // Takes the characters up to the next "<" or "&", and that one; no more than the line has columns left
    // and one. True when the line breaks there.
    bool TakePlainRun()
    {
        std::string_view run = m_text.substr(m_at, m_width + 1 - m_column);
        run = run.substr(0, run.find('<'));
        run = run.substr(0, run.find('&'));
        if (const std::size_t blank = run.rfind(' '); blank != None) {
            m_lastSpace = m_offset + m_at + blank + 1;
        }
        m_at += run.size();
        m_column += run.size();
        return m_column > m_width || (m_at < m_text.size() && TakeCharacter());
    }

    // Takes one character that begins, ends or stands inside a tag or an entity. True when the line breaks
    // before it.
    bool TakeCharacter()
    {
        switch (m_text[m_at]) {
        case '&':
            if (m_column >= m_width) {
                return true;
            }
            m_inEntity = true;
            break;
        case ';':
            m_column += m_inEntity ? 1 : 0; // the whole entity is one column
            m_inEntity = false;
            break;
        case '<':
            m_inTag = true;
            break;
        case '>':
            m_inTag = false;
            break;
        default:
            break;
        }
        ++m_at;
        return false;
    }

    std::string_view m_text;
    std::size_t m_width;
    std::size_t m_column;
    std::size_t m_offset = 0;
    std::size_t m_at = 0;
    std::size_t m_lastSpace = 0;
    bool m_inTag = false;
    bool m_inEntity = false;
};

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
    BreakFinder finder(line.m_text.substr(line.m_at), columns, hang);
    if (!finder.Find(line.m_spaces)) {
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
