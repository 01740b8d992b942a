#include "bench/BenchBooks.h"
#include "bench/Benchmarks.h"
#include "bench/Measure.h"
#include "book/BookLoader.h"
#include "render/text/ShowTopic.h"

#include <cstdio>

namespace ls::bench {

namespace {

constexpr std::size_t LargeBook = 200 * MiB;
constexpr std::size_t SmallBook = 20 * MiB;
constexpr double ScanLimit = 1;
constexpr double MemoryLimit = 1.1;
constexpr double ShowLimit = 1.5;

long MemoryOfScan(const std::string& program, const std::string& path)
{
    return std::stol(OutputOf("'" + program + "' --scan-memory '" + path + "'"));
}

void Show(BenchWorld& world, const Book& book, int number, ShownTopic& shown)
{
    std::string name = book.TopicNames(number);
    Count16 index = number;
    Require(ShowTopic(book, world.Get(), name, index, 80, shown) == ShowResult::Shown, "a topic is shown");
    Require(shown.lines.Count > 50, "it has its lines");
}

} // namespace

void ReportScanMemory(const std::string& path)
{
    BenchWorld world;
    Book book;
    world.Load(book, path);
    std::printf("%ld\n", PeakMemory());
}

// Compares with a search for the lines that begin a topic, and with a count of all lines.
void BenchScan(const std::string& program, const std::string& folder)
{
    const std::string path = BookOfSize(folder, LargeBook);
    const auto scan = [&path] {
        BenchWorld world;
        Book book;
        world.Load(book, path);
    };
    const auto search = [&path] {
        Require(std::stoi(OutputOf("LC_ALL=C grep -c -a '^\\[' '" + path + "'")) == TopicsOfABook,
                "the search finds the topics");
    };
    const auto count = [&path] {
        Require(std::stoi(OutputOf("wc -l <'" + path + "'")) > TopicsOfABook, "the lines are counted");
    };
    const std::vector<double> times = MeasureInTurns(9, {scan, search, count});
    PrintRow("grep -c -a '^\\[' in 200 MiB", Milliseconds(times[1]));
    PrintRow("wc -l of the same book", Milliseconds(times[2]));
    PrintRow("scan of it, 30,000 topics, beside grep", Milliseconds(times[0]), times[0] / times[1],
             ScanLimit);
    PrintRow("the same beside wc -l", Milliseconds(times[0]), times[0] / times[2]);

    const long small = MemoryOfScan(program, BookOfSize(folder, SmallBook));
    const long large = MemoryOfScan(program, path);
    PrintRow("peak memory of a scan, 20 MiB", std::to_string(small) + " KiB");
    PrintRow("peak memory of a scan, 200 MiB, as many topics", std::to_string(large) + " KiB",
             static_cast<double>(large) / static_cast<double>(small), MemoryLimit);
}

void BenchShow(const std::string& folder)
{
    BenchWorld world;
    Book book;
    world.Load(book, BookOfSize(folder, LargeBook));
    ShownTopic shown;
    const Medians times = MeasureBoth(
        201, [&] { Show(world, book, TopicsOfABook, shown); }, [&] { Show(world, book, 1, shown); });
    PrintRow("show the first topic of it", Milliseconds(times.second));
    PrintRow("show the last topic of it", Milliseconds(times.first), times.Ratio(), ShowLimit);
}

} // namespace ls::bench
