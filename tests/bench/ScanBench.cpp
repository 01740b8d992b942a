#include "bench/BenchBooks.h"
#include "bench/Benchmarks.h"
#include "bench/Measure.h"
#include "book/BookLoader.h"
#include "render/ShowTopic.h"

#include <cstdio>

namespace ls::bench {

namespace {

constexpr std::size_t LargeBook = 200 * MiB;
constexpr std::size_t SmallBook = 20 * MiB;
constexpr double ScanLimit = 1.5;
constexpr double MemoryLimit = 1.1;
constexpr double ShowLimit = 1.5;

long MemoryOfScan(const std::string& program, const std::string& path)
{
    return std::stol(OutputOf("'" + program + "' --scan-memory '" + path + "'"));
}

void Show(BenchWorld& world, const Book& book, int number, ShownTopic& shown)
{
    std::string name = book.TopicNames(static_cast<std::size_t>(number));
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

void BenchScan(const std::string& program, const std::string& folder)
{
    const std::string path = BookOfSize(folder, LargeBook);
    const Medians times = MeasureBoth(
        9,
        [&path] {
            BenchWorld world;
            Book book;
            world.Load(book, path);
        },
        [&path] {
            Require(std::stoi(OutputOf("LC_ALL=C grep -c -a '^\\[' '" + path + "'")) == TopicsOfABook,
                    "the search finds the topics");
        });
    PrintRow("search for header lines, 200 MiB", Milliseconds(times.second));
    PrintRow("scan of the same book of 30,000 topics", Milliseconds(times.first), times.Ratio(), ScanLimit);

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
