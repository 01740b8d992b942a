#include "base/LineCursor.h"
#include "base/QuietMessages.h"
#include "bench/BenchBooks.h"
#include "bench/Benchmarks.h"
#include "bench/GrowthRows.h"
#include "bench/Measure.h"
#include "book/BookLoader.h"
#include "book/SaveBook.h"
#include "book/TopicList.h"
#include "book/XrefLists.h"
#include "check/CheckBook.h"
#include "render/html/ExportTopic.h"
#include "render/text/ShowTopic.h"

#include <filesystem>

namespace ls::bench {

namespace {

constexpr BookShape Small{2 * MiB, 3000};
constexpr BookShape Large{20 * MiB, 30000};

class NoFileAtAll : public OutputFile
{
public:
    FileError Write(std::string_view bytes) override
    {
        written += bytes.size();
        return {};
    }
    FileError Finish() override { return {}; }

    std::size_t written = 0;
};

// An open book and the actions of its readers and its author.
class OpenedBook
{
public:
    OpenedBook(const std::string& folder, BookShape shape)
        : m_path(BookOf(folder, shape)), m_saved(m_path + ".saved"), m_topics(shape.topics)
    {
        m_world.Load(m_book, m_path, m_topics);
        m_book.TopicRecs(m_topics / 2).Text = "One topic was edited.\r\n";
    }

    void OpenAgain()
    {
        Book book;
        m_world.Load(book, m_path, m_topics);
    }

    void Check()
    {
        FileError error;
        const std::vector<Finding> found = CheckBook(m_book, m_world.Get(), nullptr, error);
        Require(error.Ok() && !found.empty(), "the book is checked to its end");
    }

    void Save()
    {
        std::filesystem::remove(m_saved);
        Require(SaveBook(m_book, m_world.Get(), m_saved) == WriteOutcome::Written, "the book is saved");
        std::filesystem::remove(m_saved);
    }

    void ExportAll()
    {
        QuietMessages quiet(m_world.Get().end);
        const Seams seams = m_world.Get();
        const Seams silent{seams.files, quiet, seams.processes, seams.end, seams.paths};
        NoFileAtAll output;
        for (int number = 1; number <= m_topics; ++number) {
            Require(ExportTopic(m_book, silent, m_book.TopicNames(number), number, output),
                    "a topic is exported");
        }
        Require(output.written > std::filesystem::file_size(m_path) * 8 / 10, "with its text");
    }

    void ShowAll()
    {
        ShownTopic shown;
        for (int number = 1; number <= m_topics; ++number) {
            Show(number, m_book.TopicNames(number), shown);
        }
    }

    /// Shows the last topic by its title alone, as a reference does.
    void ShowByTitle()
    {
        ShownTopic shown;
        Show(0, m_book.TopicNames(m_topics), shown);
    }

    void List(bool alphabetic)
    {
        m_book.CurrentTopicName = m_book.TopicNames(m_topics);
        const TopicListModel list = FillTopicList(m_book, alphabetic);
        Require(static_cast<int>(list.items.size()) == m_topics && list.selected >= 0, "all are listed");
    }

    void FindReferences() { Require(FindXrefs(m_book, "Topic 1000").in.size() == 2, "they are found"); }

private:
    void Show(int number, std::string name, ShownTopic& shown)
    {
        Count16 index = number;
        Require(ShowTopic(m_book, m_world.Get(), name, index, 80, shown) == ShowResult::Shown,
                "a topic is shown");
    }

    std::string m_path;
    std::string m_saved;
    int m_topics;
    BenchWorld m_world;
    Book m_book;
};

} // namespace

void BenchGrowth(const std::string& folder)
{
    OpenedBook small(folder, Small);
    OpenedBook large(folder, Large);
    const GrowthRows rows("30,000 topics beside 3,000: ");
    const auto compare = [&](const char* what, int rounds, const std::function<void(OpenedBook&)>& work) {
        rows.Measure(
            what, rounds, [&] { work(large); }, [&] { work(small); });
    };
    compare("open and scan", 15, &OpenedBook::OpenAgain);
    compare("check", 9, &OpenedBook::Check);
    compare("save", 9, &OpenedBook::Save);
    compare("export each topic", 9, &OpenedBook::ExportAll);
    compare("show each topic", 9, &OpenedBook::ShowAll);
    compare("show by title", 41, &OpenedBook::ShowByTitle);
    compare("list by contents", 15, [](OpenedBook& book) { book.List(false); });
    compare("list by name", 15, [](OpenedBook& book) { book.List(true); });
    compare("references of one", 41, &OpenedBook::FindReferences);
    BenchLineGrowth(folder);
    BenchRuleGrowth(folder);
}

} // namespace ls::bench
