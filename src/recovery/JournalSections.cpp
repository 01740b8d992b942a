#include "recovery/JournalSections.h"

#include "recovery/Checksum.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <limits>

namespace ls {

namespace {

constexpr char Mark = '@';
constexpr char RecordEnd = '\n';
constexpr std::size_t ChecksumDigits = 8;

// After broken bytes, the rest is searched for whole sections. A section's first line may claim any size up
// to the end of the file, and the checksum reads all of that. A file full of such lines would delay the
// program's start by hours. So the search gives up when failed checksums have read this many times the file's
// size. With fewer false first lines than this, the file is always searched to its end.
constexpr std::size_t MostSummed = 64;

// The checksum includes the kind, so that no section is taken for one of another kind.
std::string ChecksumText(std::string_view kind, std::string_view payload)
{
    std::array<char, ChecksumDigits + 1> digits{};
    std::snprintf(digits.data(), digits.size(), "%08x", static_cast<unsigned>(Crc32(payload, Crc32(kind))));
    return digits.data();
}

// Takes the text before the next `delimiter`, and the delimiter; nothing if there is none.
std::optional<std::string_view> TakeUntil(std::string_view& text, char delimiter)
{
    const std::size_t end = text.find(delimiter);
    if (end == std::string_view::npos) {
        return std::nullopt;
    }
    const std::string_view taken = text.substr(0, end);
    text.remove_prefix(end + 1);
    return taken;
}

} // namespace

JournalTexts& JournalTexts::Put(std::string_view text)
{
    m_bytes += std::to_string(text.size());
    m_bytes += ':';
    m_bytes += text;
    m_bytes += ',';
    return *this;
}

std::optional<std::vector<std::string_view>> ReadJournalTexts(std::string_view payload)
{
    std::vector<std::string_view> texts;
    while (!payload.empty()) {
        const std::optional<std::string_view> digits = TakeUntil(payload, ':');
        const auto left = static_cast<std::int64_t>(payload.size());
        const std::optional<std::int64_t> length =
            digits ? ReadJournalNumber(*digits, left - 1) : std::nullopt;
        const auto size = static_cast<std::size_t>(length.value_or(0));
        if (!length || payload[size] != ',') {
            return std::nullopt;
        }
        texts.push_back(payload.substr(0, size));
        payload.remove_prefix(size + 1);
    }
    return texts;
}

std::optional<std::int64_t> ReadJournalNumber(std::string_view digits, std::int64_t max)
{
    std::int64_t number = 0;
    const char* const end = digits.data() + digits.size();
    const auto [stopped, error] = std::from_chars(digits.data(), end, number);
    if (error != std::errc() || stopped != end || number < 0 || number > max) {
        return std::nullopt;
    }
    return number;
}

void PutJournalSection(std::string& bytes, std::string_view kind, const JournalTexts& texts)
{
    const std::string& payload = texts.Bytes();
    bytes += Mark;
    bytes += kind;
    bytes += ' ' + std::to_string(payload.size()) + ' ' + ChecksumText(kind, payload) + RecordEnd;
    bytes += payload;
    bytes += RecordEnd;
}

std::optional<JournalSection> JournalSections::Next()
{
    while (m_at < m_bytes.size()) {
        std::size_t end = 0;
        if (std::optional<JournalSection> section = SectionAt(m_at, end)) {
            m_at = end;
            return section;
        }
        m_damaged = true;
        m_at = std::min(m_bytes.find(Mark, m_at + 1), m_bytes.size());
    }
    return std::nullopt;
}

// The section that begins at `at`, and its end. Only the checksum decides: a missing or broken line end after
// the section does no harm.
std::optional<JournalSection> JournalSections::SectionAt(std::size_t at, std::size_t& end)
{
    std::string_view rest = m_bytes.substr(at);
    if (rest.empty() || rest.front() != Mark) {
        return std::nullopt;
    }
    rest.remove_prefix(1);
    constexpr std::size_t longestLine = 64;
    std::string_view line = rest.substr(0, std::min(rest.find(RecordEnd), longestLine));
    const std::size_t lineSize = line.size() + 1;
    const std::optional<std::string_view> kind = TakeUntil(line, ' ');
    const std::optional<std::string_view> digits = kind ? TakeUntil(line, ' ') : std::nullopt;
    const std::optional<std::int64_t> size =
        digits ? ReadJournalNumber(*digits, std::numeric_limits<std::int64_t>::max()) : std::nullopt;
    if (!size || lineSize > rest.size() ||
        static_cast<std::uint64_t>(*size) > static_cast<std::uint64_t>(rest.size() - lineSize)) {
        return std::nullopt;
    }
    rest.remove_prefix(lineSize);
    const auto length = static_cast<std::size_t>(*size);
    const std::string_view payload = rest.substr(0, length);
    if (m_summed > MostSummed * m_bytes.size()) {
        return std::nullopt;
    }
    if (line != ChecksumText(*kind, payload)) {
        m_summed += length;
        return std::nullopt;
    }
    const bool lineEnds = length < rest.size() && rest[length] == RecordEnd;
    end = at + 1 + lineSize + length + (lineEnds ? 1 : 0);
    return JournalSection{*kind, payload};
}

} // namespace ls
