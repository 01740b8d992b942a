#include "bench/BenchBooks.h"
#include "bench/Benchmarks.h"
#include "bench/Measure.h"
#include "recovery/OwnJournal.h"

#include <filesystem>

namespace ls::bench {

namespace {

// A book with one edited topic, an editor open on another topic, and the journal of both.
class EditedBook
{
public:
    EditedBook(const std::string& folder, BookShape shape, std::size_t typed, std::size_t edited)
        : m_journal(m_world.Get(), folder + "/journals")
    {
        m_world.Load(m_book, BookOf(folder, shape), shape.topics);
        if (edited > 0) {
            m_book.TopicRecs(1).Text = std::string(edited, 'e');
            m_book.BookChanged = true;
        }
        if (typed > 0) {
            m_running.text = RunningText{2, m_book.TopicNames(2), std::string(typed, 't')};
        }
    }

    EditedBook(const EditedBook&) = delete;
    EditedBook& operator=(const EditedBook&) = delete;
    ~EditedBook() { Require(m_journal.Remove().Ok(), "the journal is removed"); }

    /// Types one more letter, a second later, and updates the journal.
    void TypeAndUpdate()
    {
        m_running.text->utf8 += 't';
        Update();
        Require(m_journal.Stands(), "the journal is written");
    }

    void Update() { Require(m_journal.Update(m_book, m_running, ++m_now).Ok(), "the journal is looked at"); }

    [[nodiscard]] bool Written() const { return m_journal.Stands(); }

private:
    BenchWorld m_world;
    Book m_book;
    RunningEdits m_running;
    OwnJournal m_journal;
    std::int64_t m_now = 1700000000;
};

void BenchWriting(const std::string& folder, const std::string& what, BookShape shape, std::size_t typed,
                  std::size_t edited)
{
    EditedBook book(folder, shape, typed, edited);
    PrintRow("journal of " + what, Milliseconds(Measure(15, [&book] { book.TypeAndUpdate(); })));
}

} // namespace

void BenchJournal(const std::string& folder)
{
    constexpr BookShape Small{2 * MiB, 100};
    constexpr BookShape Large{20 * MiB, 30000};
    constexpr int Looks = 1000;
    {
        EditedBook unedited(folder, Large, 0, 0);
        const double time = Measure(15, [&unedited] {
            for (int i = 0; i < Looks; ++i) {
                unedited.Update();
            }
        });
        Require(!unedited.Written(), "without edits there is no journal");
        PrintRow("1,000 looks at 30,000 topics without an edit", Milliseconds(time));
    }
    BenchWriting(folder, "100 topics, 1 KiB typed", Small, 1024, 0);
    BenchWriting(folder, "30,000 topics, 2.6 MiB typed and 2.6 edited", Large, 26 * MiB / 10, 26 * MiB / 10);
    BenchWriting(folder, "30,000 topics, 20 MiB typed and 20 edited", Large, 20 * MiB, 20 * MiB);
}

} // namespace ls::bench
