#include "render/WrapSegment.h"

#include <algorithm>
#include <bit>
#include <cassert>
#include <cstdint>

namespace ls {

namespace {

constexpr std::size_t TabSpaces = 5;

// How far a search for markup goes that finds none: some rows.
constexpr std::size_t LookAhead = 1024;

bool IsMarkup(char c)
{
    return c == '<' || c == '&';
}

// The last blank, from 0. Words are short, so it is nearly always among the last eight characters, which are
// looked at together: a loop over them would end somewhere else for each row.
std::size_t FindLastBlank(std::string_view row)
{
    std::uint64_t tail = 0;
    if (row.size() < sizeof tail) {
        return row.rfind(' ');
    }
    for (std::size_t i = 0; i < sizeof tail;
         ++i) { // one load where the processor has its bytes in this order
        const auto c = static_cast<unsigned char>(row[row.size() - sizeof tail + i]);
        tail |= std::uint64_t{c} << (8 * i);
    }
    constexpr std::uint64_t blanks = 0x2020202020202020;
    constexpr std::uint64_t lowBits = 0x7F7F7F7F7F7F7F7F;
    const std::uint64_t other = tail ^ blanks;
    const std::uint64_t found = ~(((other & lowBits) + lowBits) | other | lowBits); // 0x80 for each blank
    return found == 0 ? row.rfind(' ')
                      : row.size() - 1 - static_cast<std::size_t>(std::countl_zero(found)) / 8;
}

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

// Whether so many characters, and they are there, hold no markup. It is searched beyond them: most rows of
// plain text need no search of their own.
bool LineRemainder::IsPlain(std::size_t count)
{
    if (m_at + count <= m_plainEnd) {
        return true;
    }
    if (m_at <= m_plainEnd && IsMarkup(m_text[m_plainEnd])) {
        return false;
    }
    std::string_view plain = m_text.substr(m_at, count + LookAhead);
    plain = plain.substr(0, plain.find('<'));
    plain = plain.substr(0, plain.find('&'));
    m_plainEnd = m_at + plain.size();
    return count <= plain.size();
}

// Most rows are text without tags: they need no walk. Everything else is left to that, and nothing is taken.
bool LineRemainder::TakePlainRow(std::size_t columns, std::size_t hang, std::string& segment)
{
    const std::size_t seen = columns - hang + 1;
    if (m_spaces > 0 || !IsPlain(seen)) {
        return false;
    }
    const std::size_t blank = FindLastBlank(m_text.substr(m_at, seen));
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
    if (line.TakePlainRow(columns, hang, segment)) {
        return;
    }
    BreakFinder finder(line.m_text, line.m_at, line.m_spaces, line.m_marks);
    if (!finder.Find(width, indent)) {
        line.TakeAll(segment);
        return;
    }
    if (finder.LastSpace() == 0) {
        line.CutHard(columns, segment);
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
