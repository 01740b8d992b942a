// Measures what readers of large books wait for. lsbench FOLDER, where the inputs are made and kept.

#include "bench/Benchmarks.h"

#include <cstdio>
#include <string>

int main(int argc, char** argv)
{
    const std::string first = argc > 1 ? argv[1] : "";
    if (argc == 3 && first == "--scan-memory") {
        ls::bench::ReportScanMemory(argv[2]);
        return 0;
    }
    if (argc != 2) {
        std::fputs("usage: lsbench FOLDER\n", stderr);
        return 2;
    }
    std::printf("%-58s %14s  %7s\n", "", "median", "ratio");
    ls::bench::BenchScan(argv[0], first);
    ls::bench::BenchShow(first);
    ls::bench::BenchResize(first);
    ls::bench::BenchLines();
    return 0;
}
