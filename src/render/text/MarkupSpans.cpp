#include "render/text/MarkupSpans.h"

#include "render/text/EightBytes.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace ls {

namespace {

constexpr std::uint64_t LastBit = std::uint64_t{1} << 63;

constexpr std::ptrdiff_t Far = PTRDIFF_MAX / 2;

constexpr std::size_t Lane = 16;

// Every other bit, one for each lane of a block.
constexpr std::array<unsigned char, 4 * Lane> LaneBits = [] {
    std::array<unsigned char, 4 * Lane> bits{};
    for (std::size_t i = 0; i < bits.size(); ++i) {
        bits[i] = static_cast<unsigned char>(1U << (2 * (i / Lane)));
    }
    return bits;
}();

// Turns eight bytes into the eight bytes of their lowest bits, of their second bits, and so on.
std::uint64_t Transposed(std::uint64_t bytes)
{
    const auto swap = [&bytes](std::uint64_t mask, int distance) {
        const std::uint64_t different = (bytes ^ (bytes >> distance)) & mask;
        bytes ^= different ^ (different << distance);
    };
    swap(0x00AA00AA00AA00AA, 7); // single bits of two neighbours, then of four, then of all
    swap(0x0000CCCC0000CCCC, 14);
    swap(0x00000000F0F0F0F0, 28);
    return bytes;
}

// One bit for each of 64 characters, the first one lowest: whether it begins a tag or an entity. The loops
// have no branch, so that 16 characters are compared at a time: byte n of what they make has the bits of the
// characters n, n + 8, n + 16 and so on.
std::uint64_t Openers(const char* block)
{
    std::array<unsigned char, 4 * Lane> found;
    for (std::size_t i = 0; i < found.size(); ++i) {
        const auto opens = static_cast<unsigned char>((block[i] == '<') | (block[i] == '&'));
        found[i] = static_cast<unsigned char>(LaneBits[i] & -opens);
    }
    std::array<char, Lane> lanes;
    for (std::size_t i = 0; i < Lane; ++i) {
        const int all = found[i] | found[Lane + i] | found[2 * Lane + i] | found[3 * Lane + i];
        lanes[i] = static_cast<char>(all);
    }
    const std::uint64_t bytes = EightBytes(lanes.data()) | EightBytes(lanes.data() + 8) << 1;
    return Transposed(bytes);
}

// How many of the characters are letters, at most 7: those with this bit. No markup has it.
std::size_t CountLetters(const char* from)
{
    constexpr std::uint64_t letter = InEachByte(0x40);
    return static_cast<std::size_t>(std::countr_zero((~EightBytes(from) & letter) | LastBit)) / 8;
}

bool IsPlain(std::string_view text)
{
    return text.find('<') == std::string_view::npos && text.find('&') == std::string_view::npos;
}

constexpr std::size_t Longest = 12;

// The length of what "<" or "&" begins; 0 where it is not simple. Looks at `Longest` characters at most.
std::size_t SimpleLength(const char* span)
{
    std::size_t length = 1 + static_cast<std::size_t>(span[1] == '/');
    length += CountLetters(span + length);
    length += static_cast<std::size_t>(span[length] >= '0' && span[length] <= '9');
    const int tag = static_cast<int>(span[0] == '<');
    return span[length] == ';' + ('>' - ';') * tag ? length + 1 : 0;
}

} // namespace

std::size_t MarkupSpans::FindEnd(std::size_t start, std::size_t columns)
{
    if (start > m_end) {
        Restart(start);
    }
    for (;;) {
        const std::size_t end = Measure(start, columns);
        if (end <= m_end) {
            return end;
        }
        if (m_end == m_text.size()) {
            return NoBreak;
        }
        const std::size_t known = m_end;
        LookAhead();
        if (m_end == known) {
            return Unknown;
        }
    }
}

void MarkupSpans::Restart(std::size_t at)
{
    m_end = at;
    m_stopped = false;
    m_first = 0;
    m_next = 0;
    m_count = 0;
    m_hidden = 0;
    Close();
}

// The number of spans differs from row to row: they are compared a few at a time, as a loop over them would
// end where the processor does not expect it.
std::size_t MarkupSpans::Measure(std::size_t start, std::size_t columns)
{
    if (m_count == 0) {
        return start + columns + 1;
    }
    // The row begins behind the last blank of the one before, whose end may lie some spans further.
    std::size_t next = m_next;
    while (next > 0 && m_begin[next - 1] >= start) {
        --next;
    }
    while (m_begin[next] < start) {
        ++next;
    }
    m_first = next;
    // Negative where the row begins inside a span at the start, of which the rest is text then.
    const auto full = static_cast<std::ptrdiff_t>(start + columns - HiddenBefore(next));
    std::size_t reached = 0;
    do {
        reached = 0;
        for (std::size_t i = 0; i < Step; ++i) {
            reached += static_cast<std::size_t>(m_column[next + i] <= full);
        }
        next += reached;
    } while (reached == Step);
    m_next = next;
    if (next > m_first && m_column[next - 1] == full && m_text[m_begin[next - 1]] == '&') {
        return m_begin[next - 1];
    }
    return static_cast<std::size_t>(full) + 1 + HiddenBefore(next);
}

// Finds the markup of the next rows.
void MarkupSpans::LookAhead()
{
    if (m_stopped) {
        return;
    }
    Forget();
    const std::size_t until = std::min(m_end + Ahead, m_text.size());
    if (IsPlain(m_text.substr(m_end, until - m_end))) {
        m_end = until;
        Close();
        return;
    }
    std::size_t count = m_count;
    while (m_end < until && count + Block <= Capacity) {
        count = AddOpeners(m_end, count);
        m_end = std::min(m_end + Block, until);
    }
    TakeOpeners(count);
    Close();
}

// Drops the spans before the row's first one.
void MarkupSpans::Forget()
{
    std::copy(&m_begin[m_first], &m_begin[m_count], m_begin.data());
    std::copy(&m_column[m_first], &m_column[m_count], m_column.data());
    m_count -= m_first;
    m_next = 0;
    m_first = 0;
}

std::uint64_t MarkupSpans::OpenersAt(std::size_t at) const
{
    if (m_text.size() - at >= Block) {
        return Openers(m_text.data() + at);
    }
    std::array<char, Block> padded{};
    std::memcpy(padded.data(), m_text.data() + at, m_text.size() - at);
    return Openers(padded.data());
}

// Puts the places of a block's openers behind `count` others, and gives their number with them. There are
// seldom more than a few, which are put there whether there are as many or not: that is quicker than to tell.
std::size_t MarkupSpans::AddOpeners(std::size_t at, std::size_t count)
{
    std::uint64_t bits = OpenersAt(at);
    for (std::size_t i = 0; i < Step; ++i) {
        // The last bit changes nothing where there is another one, and saves a test whether there is.
        m_begin[count] = at + static_cast<std::size_t>(std::countr_zero(bits | LastBit));
        count += static_cast<std::size_t>(bits != 0);
        bits &= bits - 1;
    }
    for (; bits != 0; bits &= bits - 1) {
        m_begin[count++] = at + static_cast<std::size_t>(std::countr_zero(bits));
    }
    return count;
}

// Makes spans of the openers that were added, up to the first one that is not simple.
void MarkupSpans::TakeOpeners(std::size_t count)
{
    std::size_t hidden = m_hidden;
    std::size_t next = m_count;
    for (; next < count; ++next) {
        const std::size_t at = m_begin[next];
        const std::size_t length = LengthAt(at);
        if (length == 0) {
            m_end = at;
            m_stopped = true;
            break;
        }
        m_column[next] = static_cast<std::ptrdiff_t>(at - hidden);
        hidden += length - static_cast<std::size_t>(m_text[at] == '&');
    }
    m_count = next;
    m_hidden = hidden;
}

std::size_t MarkupSpans::LengthAt(std::size_t at) const
{
    std::array<char, Longest> padded;
    const std::size_t left = m_text.size() - at;
    if (left >= Longest) {
        return SimpleLength(m_text.data() + at);
    }
    padded.fill(0);
    std::memcpy(padded.data(), m_text.data() + at, left);
    return SimpleLength(padded.data());
}

void MarkupSpans::Close()
{
    std::fill_n(&m_column[m_count], Step, Far);
    std::fill_n(&m_begin[m_count], Step, static_cast<std::size_t>(Far) + m_hidden);
}

} // namespace ls
