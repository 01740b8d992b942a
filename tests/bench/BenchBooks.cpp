#include "bench/BenchBooks.h"

#include "bench/Measure.h"
#include "book/BookLoader.h"

#include <filesystem>
#include <fstream>
#include <random>
#include <string_view>

namespace ls::bench {

namespace {

constexpr const char* Words[] = {"the",     "lock",        "of",      "a",        "canal", "lifts", "barges",
                                 "and",     "<B>",         "water",   "</B>",     "from",  "one",   "reach",
                                 "to",      "another",     "&AMP;",   "while",    "its",   "gates", "are",
                                 "shut",    "by",          "keepers", "[sluice]", "weir",  "in",    "two",
                                 "minutes", "(sometimes)", "more",    "slowly"};

// The seed is fixed, so every run measures the same bytes.
class ProseMaker
{
public:
    std::string Line(std::size_t size)
    {
        std::string line = "So "; // a bracket at the start would begin a topic
        while (line.size() < size) {
            line += Words[m_random() % std::size(Words)];
            line += ' ';
        }
        line.pop_back();
        return line;
    }

private:
    std::mt19937 m_random{7};
};

void WriteBook(const std::string& path, BookShape shape)
{
    const std::string partial = path + ".part";
    std::ofstream file(partial, std::ios::binary);
    ProseMaker prose;
    file << "LODESTAR BOOK V5.3 /AUTHOR=\"Nobody\"\r\n";
    std::size_t written = 0;
    const auto topics = static_cast<std::size_t>(shape.topics);
    for (std::size_t topic = 1; topic <= topics; ++topic) {
        const std::size_t end = shape.size / topics * topic;
        std::string text = "[Topic " + std::to_string(topic) + "]\r\n<H1>Topic</H1>\r\n";
        while (written + text.size() + 160 < end) {
            text += prose.Line(72) + "\r\n";
        }
        text += "<XREF TOPIC=Topic " + std::to_string(topic / 2 + 1) + ">" + prose.Line(40) + "</XREF>\r\n";
        file << text;
        written += text.size();
    }
    file.close();
    Require(file.good(), "the disk takes a book");
    std::filesystem::rename(partial, path);
}

} // namespace

std::string Prose(std::size_t size)
{
    return ProseMaker().Line(size);
}

std::string BookOf(const std::string& folder, BookShape shape)
{
    const std::string path = folder + "/book-" + std::to_string(shape.size / 1024) + "-KiB-" +
                             std::to_string(shape.topics) + ".IDA";
    if (!std::filesystem::exists(path)) {
        WriteBook(path, shape);
    }
    return path;
}

std::string BookOfSize(const std::string& folder, std::size_t size)
{
    return BookOf(folder, {size, TopicsOfABook});
}

void BenchWorld::Load(Book& book, const std::string& path, int topics)
{
    book.BookPath = path;
    Require(OpenBook(book, Get()), "a book opens");
    Require(ScanBook(book, Get()), "a book is scanned");
    Require(book.TopicCount == topics, "all topics are found");
    Require(book.XrefCount == topics, "all references are found");
}

Reply BenchWorld::NoMessages::ShowBox(const std::string& text, Icon /*icon*/, Buttons buttons,
                                      const std::string& /*title*/)
{
    Require(false, text.c_str());
    return SafeReply(buttons);
}

std::optional<std::string> BenchWorld::NoMessages::ShowInputBox(const std::string& prompt,
                                                                const std::string& /*title*/,
                                                                const std::string& /*initial*/)
{
    Require(false, prompt.c_str());
    return std::nullopt;
}

} // namespace ls::bench
