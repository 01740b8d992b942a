#include "bench/BenchBooks.h"
#include "bench/Benchmarks.h"
#include "bench/Measure.h"
#include "check/CheckBook.h"

namespace ls::bench {

namespace {

constexpr std::size_t LargeBook = 200 * MiB;
constexpr double CheckLimit = 10;

} // namespace

void BenchCheck(const std::string& folder)
{
    const std::string path = BookOfSize(folder, LargeBook);
    const Medians times = MeasureBoth(
        9,
        [&path] {
            BenchWorld world;
            Book book;
            world.Load(book, path);
            FileError error;
            const std::vector<Finding> found = CheckBook(book, world.Get(), nullptr, error);
            Require(error.Ok(), "a book is checked to its end");
            for (const Finding& finding : found) {
                Require(finding.rule == "not-closed", "its references and texts are clean");
            }
        },
        [&path] {
            BenchWorld world;
            Book book;
            world.Load(book, path);
        });
    PrintRow("scan of 200 MiB, to be compared with", Milliseconds(times.second));
    PrintRow("scan and check of the same book", Milliseconds(times.first), times.Ratio(), CheckLimit);
}

} // namespace ls::bench
