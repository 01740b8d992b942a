// Reading a recovery journal: any bytes give a result, and the edits in it are used like the user's own.

#include "World.h"
#include "book/BookLoader.h"
#include "recovery/ApplyJournal.h"
#include "recovery/FindJournals.h"
#include "recovery/JournalText.h"

namespace ls::fuzz {

namespace {

// A journal that is read, written and read again stays the same.
void RequireRoundTrip(const Journal& journal)
{
    const std::string bytes = JournalText(journal);
    const JournalReading again = ParseJournal(bytes);
    Require(again.state == JournalState::Whole || again.state == JournalState::Unreadable,
            "a journal that was written is whole");
    if (again.state == JournalState::Whole) {
        RequireEqual(JournalText(again.journal), bytes, "a journal is read back as it was written");
    }
}

// A whole journal with one changed byte must be reported as damaged.
void RequireDamageSeen(Input& input, const Journal& journal)
{
    std::string bytes = JournalText(journal);
    const JournalState whole = ParseJournal(bytes).state;
    bytes[input.Choose(bytes.size() - 1)] ^= static_cast<char>(1 + input.Choose(255));
    if (whole == JournalState::Whole) {
        Require(ParseJournal(bytes).state != JournalState::Whole, "a broken byte is seen");
    }
}

} // namespace

void TestInput(Input& input)
{
    const JournalReading reading = ParseJournal(input.Text());
    for (const JournalFit fit : {JournalFit::Fits, JournalFit::NeverSaved, JournalFit::Gone,
                                 JournalFit::Refused, JournalFit::Changed}) {
        RequireUtf8(RecoveryQuestion(reading, fit));
    }
    RequireRoundTrip(reading.journal);
    RequireDamageSeen(input, reading.journal);
    World world(input);
    Book book;
    if (world.OpenBookOf(book, AsBook("[A]\r\na\r\n[B]\r\nb\r\n")) &&
        FitsBook(reading.journal, book, world.Get())) {
        KeepRunningEdits(book, world.Get(), ApplyJournal(reading.journal, book));
    }
    Book fresh;
    for (const std::string& note : KeepRunningEdits(fresh, world.Get(), AsNewBook(reading.journal, fresh))) {
        RequireUtf8(note);
    }
    Require(fresh.TopicCount >= static_cast<int>(reading.journal.recs.empty() ? 0 : 1),
            "an edited topic comes to the new book");
    Require(fresh.TopicCount > 0 || reading.journal.running.properties || !reading.journal.book ||
                !HasNewBookEdits(reading.journal) || reading.journal.book->path.empty(),
            "a book without topics is not offered");
}

} // namespace ls::fuzz
