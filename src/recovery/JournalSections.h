#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ls {

/// A section of a journal's file.
struct JournalSection
{
    std::string_view kind;
    std::string_view payload;
};

/// Texts in a row: each as its length, ":", its bytes and ",".
class JournalTexts
{
public:
    JournalTexts& Put(std::string_view text);
    JournalTexts& Put(std::int64_t number) { return Put(std::to_string(number)); }

    [[nodiscard]] const std::string& Bytes() const { return m_bytes; }

private:
    std::string m_bytes;
};

/// The texts of a section; nothing where they are not that.
[[nodiscard]] std::optional<std::vector<std::string_view>> ReadJournalTexts(std::string_view payload);

/// A whole number from its digits, 0 to `max`; nothing for anything else.
[[nodiscard]] std::optional<std::int64_t> ReadJournalNumber(std::string_view digits, std::int64_t max);

/// Adds a section to a journal's bytes.
void PutJournalSection(std::string& bytes, std::string_view kind, const JournalTexts& texts);

/// Finds the whole sections of a file, one after the other.
class JournalSections
{
public:
    explicit JournalSections(std::string_view bytes) : m_bytes(bytes) {}

    /// The next whole section; nothing behind the last.
    [[nodiscard]] std::optional<JournalSection> Next();

    /// Whether anything was passed over so far that is no whole section.
    [[nodiscard]] bool Damaged() const { return m_damaged; }

private:
    [[nodiscard]] std::optional<JournalSection> SectionAt(std::size_t at, std::size_t& end);

    std::string_view m_bytes;
    std::size_t m_at = 0;
    std::size_t m_summed = 0; ///< bytes for which a checksum was made that did not fit
    bool m_damaged = false;
};

} // namespace ls
