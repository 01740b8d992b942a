#include "render/text/WrapSegment.h"

#include "base/Text.h"
#include "render/text/EightBytes.h"

#include <algorithm>
#include <cassert>

namespace ls {

namespace {

constexpr std::size_t TabSpaces = 5;

} // namespace

LineRemainder::LineRemainder(std::string_view text, LineCursor* rest) : m_rest(rest), m_read(text)
{
    Begin(rest == nullptr ? text : TrimRight(text));
    NeedMoreThan(0);
}

void LineRemainder::Begin(std::string_view text)
{
    m_text = text;
    m_contentEnd = text.find_last_not_of(' ') + 1; // 0 for a text of blanks
    m_at = 0;
    m_tag = text.find('<');
    m_entity = text.find('&');
}

// Lets the cursor drop the characters that were taken and read more.
void LineRemainder::ReadOn()
{
    bool whole = true;
    (void)m_rest->ReadOn(m_read, m_at, whole); // an error stays in the cursor and ends the line
    m_rest = whole ? nullptr : m_rest;
    Begin(TrimRight(m_read));
    m_marks = {};
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

// Takes all that is left. Takes nothing and returns false if the line is not read to its end.
bool LineRemainder::TakeRest(std::string& segment)
{
    if (m_rest != nullptr) {
        return false;
    }
    AppendFront(Size(), segment);
    Pass(Size());
    return true;
}

// Whether a "<" or "&" comes before `end`. Each is searched for again only after it was passed, so a line is
// searched once.
bool LineRemainder::MarkupBefore(std::size_t end)
{
    if (m_tag < m_at) {
        m_tag = m_text.find('<', m_at);
    }
    if (m_entity < m_at) {
        m_entity = m_text.find('&', m_at);
    }
    return std::min(m_tag, m_entity) < end;
}

// Takes a row without markup. The row breaks at its last blank; the character just after a full row counts
// too. Takes nothing and returns false in the cases that need a walk: markup, spaces of a TAB, the end of the
// text that was read, and a row whose only blank comes first.
bool LineRemainder::TakePlainRow(std::size_t columns, std::size_t hang, std::string& segment)
{
    const std::size_t end = m_at + columns - hang + 1;
    if (m_spaces > 0 || end > m_text.size() || MarkupBefore(end)) {
        return false;
    }
    const std::size_t blank = FindLastBlank(m_text.substr(m_at, end - m_at));
    if (blank == 0) {
        return false;
    }
    if (blank == std::string_view::npos) {
        CutHard(columns, segment);
        return true;
    }
    segment.append(m_text.data() + m_at, blank);
    m_at += blank + 1;
    return true;
}

// Breaks inside a word after `columns` raw characters. Tags count, the indent does not.
void LineRemainder::CutHard(std::size_t columns, std::string& segment)
{
    const std::size_t cut = std::min(columns, Size());
    AppendFront(cut, segment);
    Pass(cut);
}

// Takes a row that `BreakFinder` finds. Takes nothing and returns false if the row reaches the end of the
// text and the line is not read to its end.
bool LineRemainder::TakeWalkedRow(std::size_t columns, std::size_t hang, std::string& segment)
{
    BreakFinder finder(m_text, m_at, m_spaces, m_marks);
    if (!finder.Find(static_cast<int>(columns), static_cast<int>(hang))) {
        return TakeRest(segment);
    }
    if (finder.LastSpace() == 0) {
        CutHard(columns, segment);
        return true;
    }
    if (finder.LastSpace() == 1 && hang == 0) {
        // The only blank is the first character. A break there would give an empty row, so the rest of
        // the line is not wrapped.
        const std::size_t blank = m_rest == nullptr ? 1 : 0;
        Pass(blank);
        return TakeRest(segment);
    }
    AppendFront(finder.LastSpace() - 1, segment);
    Pass(finder.LastSpace());
    return true;
}

bool LineRemainder::TakeRow(std::size_t columns, std::size_t hang, std::string& segment)
{
    segment.assign(hang, ' ');
    if (hang >= columns || Size() + hang <= columns) {
        return TakeRest(segment);
    }
    return TakePlainRow(columns, hang, segment) || TakeWalkedRow(columns, hang, segment);
}

void WrapSegment(LineRemainder& line, int width, int indent, std::string& segment)
{
    assert(indent < width);
    const auto columns = static_cast<std::size_t>(std::max(width, 0));
    const auto hang = static_cast<std::size_t>(std::max(indent, 0));
    line.NeedMoreThan(columns);
    line.OpenLeadingTab();
    while (!line.TakeRow(columns, hang, segment)) {
        line.ReadOn();
    }
    line.NeedMoreThan(0); // so that `Blank` knows whether more follows
}

} // namespace ls
