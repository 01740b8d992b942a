#include "bench/BenchBooks.h"
#include "bench/Benchmarks.h"
#include "bench/Measure.h"
#include "book/BookLoader.h"
#include "render/text/ShowTopic.h"

#include <fstream>
#include <vector>

namespace ls::bench {

namespace {

constexpr int Width = 80;
constexpr double Limit = 4;

// One topic of paragraphs that have a few rows each.
void WriteLongTopic(const std::string& path)
{
    constexpr std::size_t Paragraph = 500; // six or seven rows: its tags take no columns
    constexpr std::size_t Paragraphs = 4650;
    const std::string prose = Prose(Paragraphs * Paragraph);
    std::ofstream file(path, std::ios::binary);
    file << "LODESTAR BOOK V5.3\r\n[Long]\r\n";
    for (std::size_t at = 0; at < prose.size(); at += Paragraph) {
        // "So " goes first, as a bracket at the start of a line would end the topic.
        file << "So " << prose.substr(at, Paragraph) << "\r\n";
    }
    file.close();
    Require(file.good(), "the disk takes a book");
}

void Measured(const std::string& what, BenchWorld& world, const Book& book)
{
    ShownTopic shown;
    const auto show = [&] {
        std::string name = "[Long]";
        Count16 index = 1;
        Require(ShowTopic(book, world.Get(), name, index, Width, shown) == ShowResult::Shown,
                "the topic is shown");
    };
    show();
    const int count = shown.lines.Count;
    Require(count > 29000 && count < 31000, "the topic has about 30,000 display lines");
    const std::vector<std::string> lines(shown.lines.Lines.begin(), shown.lines.Lines.begin() + count);
    const Medians times =
        MeasureBoth(41, show, [&lines] { Require(std::vector<std::string>(lines).size() > 1, "a copy"); });
    PrintRow("copy of its lines", Milliseconds(times.second));
    PrintRow(what, Milliseconds(times.first), times.Ratio(), Limit);
}

} // namespace

void BenchResize(const std::string& folder)
{
    const std::string path = folder + "/long-topic.IDA";
    WriteLongTopic(path);
    BenchWorld world;
    Book book;
    book.BookPath = path;
    Require(OpenBook(book, world.Get()) && ScanBook(book, world.Get()), "the book opens");
    Measured("resize step of a topic of 30,000 display lines", world, book);
}

} // namespace ls::bench
