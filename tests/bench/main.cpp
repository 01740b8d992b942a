// Measures what readers of large books wait for. The inputs are made, and kept, in a folder that is named.

#include "bench/Benchmarks.h"
#include "bench/Measure.h"

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <string>

namespace {

using namespace ls::bench;

struct Benchmark
{
    const char* name;
    void (*run)(const std::string& program, const std::string& folder);
};

constexpr Benchmark Benchmarks[] = {
    {"scan", BenchScan},
    {"check", [](const std::string&, const std::string& folder) { BenchCheck(folder); }},
    {"show", [](const std::string&, const std::string& folder) { BenchShow(folder); }},
    {"save", [](const std::string&, const std::string& folder) { BenchSave(folder); }},
    {"resize", [](const std::string&, const std::string& folder) { BenchResize(folder); }},
    {"wrap", [](const std::string&, const std::string& folder) { BenchWrap(folder); }},
    {"lines", [](const std::string&, const std::string&) { BenchLines(); }},
    {"export", [](const std::string&, const std::string& folder) { BenchExport(folder); }},
    {"growth", [](const std::string&, const std::string& folder) { BenchGrowth(folder); }},
    {"journal", [](const std::string&, const std::string& folder) { BenchJournal(folder); }},
    {"advisor", [](const std::string&, const std::string& folder) { BenchAdvisor(folder); }},
};

int Usage()
{
    std::fputs("usage: lsbench FOLDER [NAME...], with names of", stderr);
    for (const Benchmark& benchmark : Benchmarks) {
        std::fprintf(stderr, " %s", benchmark.name);
    }
    std::fputs("\n", stderr);
    return 2;
}

bool Known(const std::string& name)
{
    return std::any_of(std::begin(Benchmarks), std::end(Benchmarks),
                       [&name](const Benchmark& benchmark) { return benchmark.name == name; });
}

} // namespace

int main(int argc, char** argv)
{
    const std::string first = argc > 1 ? argv[1] : "";
    if (argc == 3 && first == "--scan-memory") {
        ReportScanMemory(argv[2]);
        return 0;
    }
    if (argc < 2 || !std::all_of(argv + 2, argv + argc, Known)) {
        return Usage();
    }
    std::printf("%-58s %14s  %7s\n", "", "median", "ratio");
    for (const Benchmark& benchmark : Benchmarks) {
        if (argc == 2 || std::find(argv + 2, argv + argc, std::string(benchmark.name)) != argv + argc) {
            PrintHead(benchmark.name);
            benchmark.run(argv[0], first);
        }
    }
    return 0;
}
