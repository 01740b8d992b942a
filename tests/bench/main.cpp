// Measures the times that readers of large books wait. Makes the inputs in the given folder and leaves them
// there.

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
    const char* title;
    const char* about;
    void (*run)(const std::string& program, const std::string& folder);
};

constexpr Benchmark Benchmarks[] = {
    {"scan", "Scanning a book",
     "A book of 200 MiB with 30,000 topics, compared with tools that only read it. Peak memory is the most "
     "that a process had resident. Each of its two rows has a new process.",
     BenchScan},
    {"check", "Checking a book",
     "The ratio is the time of scan and check together, divided by that of the scan alone.",
     [](const std::string&, const std::string& folder) { BenchCheck(folder); }},
    {"show", "Showing a topic",
     "The ratio is the time of the book's last topic, divided by that of its first one.",
     [](const std::string&, const std::string& folder) { BenchShow(folder); }},
    {"save", "Saving a book",
     "Times are by the clock on the wall, since both programs wait for the disk. Other work on the same disk "
     "changes the ratio.",
     [](const std::string&, const std::string& folder) { BenchSave(folder); }},
    {"resize", "Changing the width",
     "One step of a resize, compared with a copy of the topic's lines in memory.",
     [](const std::string&, const std::string& folder) { BenchResize(folder); }},
    {"wrap", "Wrapping",
     "Texts of 64 MiB, read and written, compared with `fold -s -w 80` in the C locale. If a text has no "
     "tags, both do the same work. `fold` treats tags as text. This program finds the tags and does not "
     "count "
     "them.",
     [](const std::string&, const std::string& folder) { BenchWrap(folder); }},
    {"lines", "Long lines",
     "The ratio is the time for one MiB of the line, divided by that for one MiB of the shortest line of the "
     "same kind.",
     [](const std::string&, const std::string&) { BenchLines(); }},
    {"export", "Exporting",
     "Every topic of a book as HTML, compared with pandoc on the same text in one file. Pandoc runs once.",
     [](const std::string&, const std::string& folder) { BenchExport(folder); }},
    {"growth", "Ten times the work",
     "Each row has ten times the topics, lines or rules of the work that it is compared with. Sorting ten "
     "times as much takes 13 times as long. A quadratic method takes 100 times as long.",
     [](const std::string&, const std::string& folder) { BenchGrowth(folder); }},
    {"journal", "The recovery journal",
     "Times are processor time. Each journal is also flushed to the disk. That wait is not included.",
     [](const std::string&, const std::string& folder) { BenchJournal(folder); }},
    {"advisor", "The advisor",
     "The rules are made up: each has 6 conditions over 40 variables. The reader answers every question. "
     "Load is the time to read the logic block; a peer reads its own program with the same rules. A question "
     "is the time from an answer until the next question is on show. With 100 rules, half of that time goes "
     "into reading the question's text from the book. No peer reads that text. `CLIPS, rules` has a defrule "
     "for each rule. `CLIPS, facts` has a fact for each rule and three defrules that reduce the facts as the "
     "advisor does. CLIPS chooses no question.",
     [](const std::string&, const std::string& folder) { BenchAdvisor(folder); }},
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
    for (const Benchmark& benchmark : Benchmarks) {
        if (argc == 2 || std::find(argv + 2, argv + argc, std::string(benchmark.name)) != argv + argc) {
            PrintHead(benchmark.title, benchmark.about);
            benchmark.run(argv[0], first);
        }
    }
    return 0;
}
