#include "bench/BenchBooks.h"
#include "bench/Benchmarks.h"
#include "bench/Measure.h"
#include "render/text/WrapSegment.h"

#include <functional>

namespace ls::bench {

namespace {

constexpr double Limit = 1.6; // a quadratic wrap would take four times as long for each MiB

void WrapWhole(const std::string& line)
{
    LineRemainder rest(line);
    std::string segment;
    std::size_t total = 0;
    int indent = 0;
    do {
        WrapSegment(rest, 80, indent, segment);
        total += segment.size();
        indent = 3;
    } while (!rest.Blank());
    Require(total >= line.size() * 9 / 10, "the line is wrapped whole");
}

std::string Repeated(const std::string& piece, std::size_t size)
{
    std::string text;
    while (text.size() < size) {
        text += piece;
    }
    return text;
}

void BenchKind(const std::string& kind, const std::function<std::string(std::size_t size)>& make)
{
    double first = 0;
    for (const std::size_t size : {std::size_t{25}, std::size_t{50}, std::size_t{100}}) {
        const std::string line = make(size * MiB);
        const double perMiB = Measure(3, [&line] { WrapWhole(line); }) / static_cast<double>(size);
        first = first == 0 ? perMiB : first;
        PrintRow("wrap a line of " + std::to_string(size) + " MiB " + kind + ", a MiB", Milliseconds(perMiB),
                 perMiB / first, Limit);
    }
}

} // namespace

void BenchLines()
{
    BenchKind("with blanks", Prose);
    BenchKind("without blanks", [](std::size_t size) { return std::string(size, 'x'); });
    // Each segment looks through all this hidden text before it breaks.
    BenchKind("of tags", [](std::size_t size) { return Repeated("<B>", size) + std::string(100, 'x'); });
    BenchKind("of tags that never end",
              [](std::size_t size) { return Repeated(std::string(77, 'x') + "<yy", size) + "&"; });
}

} // namespace ls::bench
