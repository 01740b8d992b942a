#include "RecoveryFixture.h"

#include "recovery/Checksum.h"

namespace ls {
namespace {

TEST(Crc32Test, knownTexts_haveTheirKnownChecksums)
{
    EXPECT_EQ(Crc32(""), 0U);
    EXPECT_EQ(Crc32("123456789"), 0xCBF43926U);
    EXPECT_EQ(Crc32("6789", Crc32("12345")), 0xCBF43926U);
    EXPECT_EQ(Crc32("The quick brown fox jumps over the lazy dog"), 0x414FA339U);
}

TEST(JournalTextTest, everyPart_isReadBackAsItWas)
{
    const JournalReading reading = ParseJournal(JournalText(FullJournal()));
    EXPECT_EQ(reading.state, JournalState::Whole);
    ExpectSame(reading.journal, FullJournal());
}

TEST(JournalTextTest, newBookWithoutTopics_isReadBackAsItWas)
{
    Journal journal;
    journal.book = JournalBook{};
    journal.header = JournalHeader{"Ann", "", "", ""};
    journal.topics = std::vector<JournalTopic>{};
    const JournalReading reading = ParseJournal(JournalText(journal));
    EXPECT_EQ(reading.state, JournalState::Whole);
    ExpectSame(reading.journal, journal);
}

// The format is fixed, because the program must be able to read journals of older versions.
TEST(JournalTextTest, smallJournal_hasTheseBytes)
{
    Journal journal;
    journal.written = 7;
    journal.book = JournalBook{"/b.IDA", 12, false};
    journal.recs = {{1, "[A]", false, "a\r\n", ""}};
    const std::string book = "1:7,6:/b.IDA,2:12,1:0,";
    const std::string topic = "1:1,3:[A],1:0,3:a\r\n,0:,";
    const auto section = [](const std::string& kind, const std::string& payload) {
        char line[64];
        std::snprintf(line, sizeof line, "@%s %zu %08x\n", kind.c_str(), payload.size(),
                      static_cast<unsigned>(Crc32(kind + payload)));
        return line + payload + "\n";
    };
    EXPECT_EQ(JournalText(journal), "LODESTAR RECOVERY JOURNAL 1\n" + section("BOOK", book) +
                                        section("TOPIC", topic) + section("END", "1:2,"));
}

TEST(JournalTextTest, laterVersion_isToldAndNotRead)
{
    std::string bytes = JournalText(FullJournal());
    bytes.replace(0, bytes.find('\n'), "LODESTAR RECOVERY JOURNAL 2");
    const JournalReading reading = ParseJournal(bytes);
    EXPECT_EQ(reading.state, JournalState::Newer);
    EXPECT_FALSE(reading.journal.topics);
}

TEST(JournalTextTest, nothingOfAJournal_isUnreadable)
{
    for (const char* bytes :
         {"", "\n", "@", "@END", "LODESTAR RECOVERY JOURNAL 1\n", "LODESTAR BOOK V5.3\r\n",
          "LODESTAR RECOVERY JOURNAL\n", "@TOPIC 99999999999999999999 00000000\nx\n",
          "@TOPIC 18446744073709551615 00000000\nx\n", "@TOPIC -1 00000000\n\n"}) {
        EXPECT_EQ(ParseJournal(bytes).state, JournalState::Unreadable) << bytes;
    }
}

// A broken byte anywhere never harms the other sections.
TEST(JournalTextTest, anyByteBroken_losesItsOwnSectionAtMost)
{
    const Journal full = FullJournal();
    const std::string whole = JournalText(full);
    for (std::size_t at = 0; at < whole.size(); ++at) {
        std::string bytes = whole;
        bytes[at] = static_cast<char>(bytes[at] ^ 0x10);
        const JournalReading reading = ParseJournal(bytes);
        if (reading.state == JournalState::Newer) {
            EXPECT_LT(at, whole.find('\n')) << at;
            continue;
        }
        ASSERT_EQ(reading.state, JournalState::Damaged) << at;
        const Journal& read = reading.journal;
        const int found = (read.book ? 1 : 0) + (read.header ? 1 : 0) + (read.topics ? 1 : 0) +
                          static_cast<int>(read.recs.size()) + (read.running.text ? 1 : 0) +
                          (read.running.logic ? 1 : 0) + (read.running.properties ? 1 : 0);
        EXPECT_GE(found, 8) << at;
        for (const JournalRec& rec : read.recs) {
            EXPECT_EQ(rec, full.recs[static_cast<std::size_t>(rec.topic) - 1]) << at;
        }
    }
}

TEST(JournalTextTest, anyEndCutOff_keepsWhatStandsBefore)
{
    const Journal full = FullJournal();
    const std::string whole = JournalText(full);
    const std::size_t lastLineEnd = whole.size() - 1;
    std::size_t found = 0;
    for (std::size_t size = 0; size < lastLineEnd; ++size) {
        const JournalReading reading = ParseJournal(std::string_view(whole).substr(0, size));
        EXPECT_NE(reading.state, JournalState::Whole) << size;
        EXPECT_GE(reading.journal.recs.size(), found) << size;
        found = reading.journal.recs.size();
        for (std::size_t i = 0; i < found; ++i) {
            EXPECT_EQ(reading.journal.recs[i], full.recs[i]) << size;
        }
    }
    EXPECT_EQ(found, full.recs.size());
    // The missing last line end alone is no damage.
    EXPECT_EQ(ParseJournal(std::string_view(whole).substr(0, lastLineEnd)).state, JournalState::Whole);
}

TEST(JournalTextTest, sectionTakenOut_isDamagedAndKeepsTheOthers)
{
    const std::string whole = JournalText(FullJournal());
    const std::size_t from = whole.rfind("@TOPIC");
    const std::size_t to = whole.find("@TYPING ");
    ASSERT_LT(from, to);
    std::string bytes = whole;
    bytes.erase(from, to - from);
    const JournalReading reading = ParseJournal(bytes);
    EXPECT_EQ(reading.state, JournalState::Damaged);
    EXPECT_EQ(reading.journal.recs.size() + 1, FullJournal().recs.size());
}

TEST(JournalTextTest, bytesAddedAnywhereBetween_areDamageAndLoseNothing)
{
    const std::string whole = JournalText(FullJournal());
    for (const char* added : {"x", "\n", "@", "@TOPIC 1 00000000\n", "\r\n\r\n"}) {
        const std::string bytes = std::string(whole).insert(whole.find("@TABLE"), std::string(added) + "\n");
        const JournalReading reading = ParseJournal(bytes);
        EXPECT_EQ(reading.state, JournalState::Damaged) << added;
        ExpectSame(reading.journal, FullJournal());
    }
}

} // namespace
} // namespace ls
