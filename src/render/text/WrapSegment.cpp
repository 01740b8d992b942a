#include "render/text/WrapSegment.h"

#include "base/Text.h"
#include "render/text/EightBytes.h"

#include <algorithm>
#include <bit>
#include <cassert>
#include <cstdint>

namespace ls {

namespace {

constexpr std::size_t TabSpaces = 5;

// The last blank, from 0. Words are short, so it is nearly always among the last eight characters, which are
// looked at together: a loop over them would end somewhere else for each row.
std::size_t FindLastBlank(std::string_view row)
{
    if (row.size() < 8) {
        return row.rfind(' ');
    }
    constexpr std::uint64_t lowBits = InEachByte(0x7F);
    const std::uint64_t other = EightBytes(row.data() + row.size() - 8) ^ InEachByte(' ');
    const std::uint64_t found = ~(((other & lowBits) + lowBits) | other | lowBits); // 0x80 for each blank
    return found == 0 ? row.rfind(' ')
                      : row.size() - 1 - static_cast<std::size_t>(std::countl_zero(found)) / 8;
}

} // namespace

LineRemainder::LineRemainder(std::string_view text, LineCursor* rest)
    : m_rest(rest), m_read(text), m_text(rest == nullptr ? text : TrimRight(text)),
      m_contentEnd(m_text.find_last_not_of(' ') + 1), // 0 when there is none
      m_markup(m_text)
{
    NeedMoreThan(0);
}

// Lets the cursor drop what has been taken, and read more.
void LineRemainder::ReadOn()
{
    bool whole = true;
    (void)m_rest->ReadOn(m_read, m_at, whole); // an error stays in the cursor, and ends the line
    m_rest = whole ? nullptr : m_rest;
    m_text = TrimRight(m_read);
    m_contentEnd = m_text.size();
    m_at = 0;
    m_markup.Begin(m_text);
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

// False, and nothing is taken, when the line goes on behind what is known.
bool LineRemainder::TakeRest(std::string& segment)
{
    if (m_rest != nullptr) {
        return false;
    }
    AppendFront(Size(), segment);
    Pass(Size());
    return true;
}

// Most rows hold only simple markup, or none: they need no walk. Everything else is left to that, and nothing
// is taken.
bool LineRemainder::TakeSimpleRow(std::size_t columns, std::size_t hang, std::string& segment)
{
    const std::size_t end = m_spaces > 0 ? MarkupSpans::Unknown : m_markup.EndOfRow(m_at, columns - hang);
    if (end == MarkupSpans::Unknown) {
        return false;
    }
    if (end == MarkupSpans::NoBreak) {
        return TakeRest(segment);
    }
    const std::size_t blank = FindLastBlank(m_text.substr(m_at, end - m_at));
    if (blank == std::string_view::npos) {
        CutHard(columns, segment);
        return true;
    }
    if (blank == 0) {
        return false;
    }
    segment.append(m_text.data() + m_at, blank);
    m_at += blank + 1;
    return true;
}

// Breaks inside a word, after so many raw characters: tags are counted, the indent is not.
void LineRemainder::CutHard(std::size_t columns, std::string& segment)
{
    const std::size_t cut = std::min(columns, Size());
    AppendFront(cut, segment);
    Pass(cut);
}

// As a walk through the characters has it. False, and nothing is taken, when the row goes on behind what is
// known of the line.
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
        // The only blank is the first character: an empty row would gain nothing, so the rest stands
        // unwrapped.
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
    return TakeSimpleRow(columns, hang, segment) || TakeWalkedRow(columns, hang, segment);
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
    line.NeedMoreThan(0); // whether nothing but blanks is left
}

} // namespace ls
