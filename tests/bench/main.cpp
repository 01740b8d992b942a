// Measures what readers of large books wait for. The inputs are made, and kept, in a folder that is named.

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
    if (argc != 2 && argc != 3) {
        std::fputs("usage: lsbench FOLDER [scan|check|show|save|resize|lines|advisor]\n", stderr);
        return 2;
    }
    const std::string only = argc == 3 ? argv[2] : "";
    const auto wanted = [&only](const char* name) { return only.empty() || only == name; };
    std::printf("%-58s %14s  %7s\n", "", "median", "ratio");
    if (wanted("scan")) {
        ls::bench::BenchScan(argv[0], first);
    }
    if (wanted("check")) {
        ls::bench::BenchCheck(first);
    }
    if (wanted("show")) {
        ls::bench::BenchShow(first);
    }
    if (wanted("save")) {
        ls::bench::BenchSave(first);
    }
    if (wanted("resize")) {
        ls::bench::BenchResize(first);
    }
    if (wanted("lines")) {
        ls::bench::BenchLines();
    }
    if (wanted("advisor")) {
        ls::bench::BenchAdvisor(first);
    }
    return 0;
}
