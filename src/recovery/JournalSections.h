#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ls {

struct JournalSection
{
    std::string_view kind;
    std::string_view payload;
};

/// A row of texts. Each is written as its length, ":", its bytes and ",".
class JournalTexts
{
public:
    JournalTexts& Put(std::string_view text);
    JournalTexts& Put(std::int64_t number) { return Put(std::to_string(number)); }

    [[nodiscard]] const std::string& Bytes() const { return m_bytes; }

private:
    std::string m_bytes;
};

/// The texts of a section; nothing if the payload is malformed.
[[nodiscard]] std::optional<std::vector<std::string_view>> ReadJournalTexts(std::string_view payload);

/// The number that the digits give, 0 to `max`; nothing for anything else.
[[nodiscard]] std::optional<std::int64_t> ReadJournalNumber(std::string_view digits, std::int64_t max);

/// Appends a section to a journal's bytes.
void PutJournalSection(std::string& bytes, std::string_view kind, const JournalTexts& texts);

/// Finds the whole sections of a file, one after the other.
class JournalSections
{
public:
    explicit JournalSections(std::string_view bytes) : m_bytes(bytes) {}

    /// The next whole section; nothing after the last one.
    [[nodiscard]] std::optional<JournalSection> Next();

    /// Whether any bytes so far were skipped because they are no whole section.
    [[nodiscard]] bool Damaged() const { return m_damaged; }

private:
    [[nodiscard]] std::optional<JournalSection> SectionAt(std::size_t at, std::size_t& end);

    std::string_view m_bytes;
    std::size_t m_at = 0;
    std::size_t m_summed = 0; ///< bytes whose checksum was computed and did not match
    bool m_damaged = false;
};

} // namespace ls
