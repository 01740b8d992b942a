#include "recovery/JournalText.h"

#include "base/Count16.h"
#include "recovery/JournalSections.h"

#include <limits>
#include <utility>

// How a journal is read, whatever has happened to its file:
//
// 1. The first line names the version; a later version is not read at all.
// 2. JournalSections finds the sections whose checksum matches, even after broken bytes, and skips all other
//    bytes.
// 3. Each section is a row of texts, and its kind says which part of the journal they fill.
// 4. A section is taken whole or not at all. It is skipped, and the journal counts as damaged, if it has the
//    wrong number of texts, a malformed number, or a part that an earlier section has filled.
// 5. The last section holds the number of sections before it, so that a missing one is noticed too.

namespace ls {

namespace {

constexpr std::int64_t MaxNumber = std::numeric_limits<std::int64_t>::max();

using Texts = std::vector<std::string_view>;

// Turns the sections of a file into the parts of a journal.
class Reader
{
public:
    explicit Reader(Journal& journal) : m_journal(journal) {}

    // False if the section does not have the form of its kind.
    bool Take(const JournalSection& section)
    {
        const std::optional<Texts> texts = ReadJournalTexts(section.payload);
        if (!texts) {
            return false;
        }
        if (section.kind == "END") {
            return TakeEnd(*texts);
        }
        ++m_count;
        if (section.kind == "BOOK") {
            return TakeBook(*texts);
        }
        if (section.kind == "HEADER") {
            return TakeHeader(*texts);
        }
        if (section.kind == "TABLE") {
            return TakeTable(*texts);
        }
        if (section.kind == "TOPIC") {
            return TakeRec(*texts);
        }
        if (section.kind == "TYPING") {
            return TakeRunning(*texts, m_journal.running.text);
        }
        if (section.kind == "TYPINGLOGIC") {
            return TakeRunning(*texts, m_journal.running.logic);
        }
        if (section.kind == "TYPINGHEADER") {
            return TakeProperties(*texts);
        }
        return section.kind == "TYPINGREMOVALS" && TakeRemovals(*texts);
    }

    // Whether the last section was read, and all sections before it.
    [[nodiscard]] bool Complete() const { return m_complete; }

    // Whether there is anything to offer. The time and the book's path alone are not enough.
    [[nodiscard]] bool FoundEdits() const
    {
        return m_journal.header || m_journal.topics || !m_journal.recs.empty() || !m_journal.running.None();
    }

private:
    bool TakeBook(const Texts& texts)
    {
        if (texts.size() != 4 || m_journal.book) {
            return false;
        }
        const std::optional<std::int64_t> written = ReadJournalNumber(texts[0], MaxNumber);
        const std::optional<std::int64_t> size = ReadJournalNumber(texts[2], MaxNumber);
        const std::optional<std::int64_t> locked = ReadJournalNumber(texts[3], 1);
        if (!written || !size || !locked) {
            return false;
        }
        m_journal.written = *written;
        m_journal.book = JournalBook{std::string(texts[1]), *size, *locked == 1};
        return true;
    }

    bool TakeHeader(const Texts& texts)
    {
        if (texts.size() != 4 || m_journal.header) {
            return false;
        }
        m_journal.header = JournalHeader{std::string(texts[0]), std::string(texts[1]), std::string(texts[2]),
                                         std::string(texts[3])};
        return true;
    }

    bool TakeTable(const Texts& texts)
    {
        if (texts.size() % 3 != 0 || texts.size() / 3 > Count16::Max || m_journal.topics) {
            return false;
        }
        std::vector<JournalTopic> topics;
        topics.reserve(texts.size() / 3);
        for (std::size_t i = 0; i < texts.size(); i += 3) {
            const std::optional<std::int64_t> fileNumber = ReadJournalNumber(texts[i + 1], Count16::Max);
            const std::optional<std::int64_t> deleted = ReadJournalNumber(texts[i + 2], 1);
            if (!fileNumber || !deleted) {
                return false;
            }
            topics.push_back({std::string(texts[i]), static_cast<int>(*fileNumber), *deleted == 1});
        }
        m_journal.topics = std::move(topics);
        return true;
    }

    bool TakeRec(const Texts& texts)
    {
        if (texts.size() != 5) {
            return false;
        }
        const std::optional<std::int64_t> number = ReadJournalNumber(texts[0], Count16::Max);
        const std::optional<std::int64_t> deleted = ReadJournalNumber(texts[2], 1);
        if (!number || *number == 0 || !deleted) {
            return false;
        }
        m_journal.recs.push_back({static_cast<int>(*number), std::string(texts[1]), *deleted == 1,
                                  std::string(texts[3]), std::string(texts[4])});
        return true;
    }

    static bool TakeRunning(const Texts& texts, std::optional<RunningText>& running)
    {
        if (texts.size() != 3 || running) {
            return false;
        }
        const std::optional<std::int64_t> number = ReadJournalNumber(texts[0], Count16::Max);
        if (!number || *number == 0) {
            return false;
        }
        running = RunningText{static_cast<int>(*number), std::string(texts[1]), std::string(texts[2])};
        return true;
    }

    bool TakeProperties(const Texts& texts)
    {
        if (texts.size() != 4 || m_journal.running.properties) {
            return false;
        }
        const std::optional<std::int64_t> webPost = ReadJournalNumber(texts[3], 1);
        if (!webPost) {
            return false;
        }
        m_journal.running.properties =
            Properties{std::string(texts[0]), std::string(texts[1]), std::string(texts[2]), *webPost == 1};
        return true;
    }

    bool TakeRemovals(const Texts& texts)
    {
        if (texts.size() % 3 != 0 || texts.size() / 3 > Count16::Max || !m_journal.running.removals.empty()) {
            return false;
        }
        std::vector<RunningRemoval> removals;
        for (std::size_t i = 0; i < texts.size(); i += 3) {
            const std::optional<std::int64_t> number = ReadJournalNumber(texts[i], Count16::Max);
            const std::optional<std::int64_t> removed = ReadJournalNumber(texts[i + 2], 1);
            if (!number || *number == 0 || !removed) {
                return false;
            }
            removals.push_back({static_cast<int>(*number), std::string(texts[i + 1]), *removed == 1});
        }
        m_journal.running.removals = std::move(removals);
        return true;
    }

    bool TakeEnd(const Texts& texts)
    {
        if (texts.size() != 1 || m_complete) {
            return false;
        }
        m_complete = ReadJournalNumber(texts[0], MaxNumber) == m_count;
        return m_complete;
    }

    Journal& m_journal;
    std::int64_t m_count = 0;
    bool m_complete = false;
};

enum class FirstLine
{
    Ours,
    Newer,
    Broken
};

// Removes the first line. A broken first line stays, as a section may begin in it.
FirstLine TakeFirstLine(std::string_view& bytes)
{
    const std::size_t end = bytes.find('\n');
    if (!bytes.starts_with(JournalMagic) || end == std::string_view::npos) {
        return FirstLine::Broken;
    }
    const std::optional<std::int64_t> version =
        ReadJournalNumber(bytes.substr(JournalMagic.size(), end - JournalMagic.size()), MaxNumber);
    if (!version || *version == 0) {
        return FirstLine::Broken;
    }
    bytes.remove_prefix(end + 1);
    return *version > JournalVersion ? FirstLine::Newer : FirstLine::Ours;
}

} // namespace

JournalReading ParseJournal(std::string_view bytes)
{
    JournalReading reading;
    const FirstLine first = TakeFirstLine(bytes);
    if (first == FirstLine::Newer) {
        reading.state = JournalState::Newer;
        return reading;
    }
    JournalSections sections(bytes);
    Reader reader(reading.journal);
    bool damaged = first == FirstLine::Broken;
    while (const std::optional<JournalSection> section = sections.Next()) {
        damaged = !reader.Take(*section) || damaged;
    }
    if (!reader.FoundEdits()) {
        return reading;
    }
    damaged = damaged || sections.Damaged() || !reader.Complete();
    reading.state = damaged ? JournalState::Damaged : JournalState::Whole;
    return reading;
}

} // namespace ls
