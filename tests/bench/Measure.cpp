#include "bench/Measure.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <utility>
#include <vector>

#include <sys/resource.h>
#include <time.h>

namespace ls::bench {

double MedianOf(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

namespace {

double MillisecondsOf(const timespec& time)
{
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

double MillisecondsOf(const timeval& time)
{
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
}

// Processor time of this process and of the commands that it waited for, in milliseconds.
double ProcessorTime()
{
    timespec own{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &own);
    rusage commands{};
    getrusage(RUSAGE_CHILDREN, &commands);
    return MillisecondsOf(own) + MillisecondsOf(commands.ru_utime) + MillisecondsOf(commands.ru_stime);
}

} // namespace

double TimeOf(const std::function<void()>& work)
{
    const double start = ProcessorTime();
    work();
    return ProcessorTime() - start;
}

std::vector<double> MeasureInTurns(int rounds, const std::vector<std::function<void()>>& works)
{
    for (const auto& work : works) {
        work(); // the first run may be slower and does not count
    }
    std::vector<std::vector<double>> times(works.size());
    for (int round = 0; round < rounds; ++round) {
        for (std::size_t i = 0; i < works.size(); ++i) {
            times[i].push_back(TimeOf(works[i]));
        }
    }
    std::vector<double> medians;
    for (std::vector<double>& series : times) {
        medians.push_back(MedianOf(std::move(series)));
    }
    return medians;
}

Medians MeasureBoth(int rounds, const std::function<void()>& first, const std::function<void()>& second)
{
    const std::vector<double> medians = MeasureInTurns(rounds, {first, second});
    return {medians[0], medians[1]};
}

double Measure(int rounds, const std::function<void()>& work)
{
    return MeasureInTurns(rounds, {work}).front();
}

bool Installed(const std::string& program)
{
    return std::system(("command -v " + program + " >/dev/null").c_str()) == 0;
}

std::string OutputOf(const std::string& command)
{
    std::FILE* pipe = popen(command.c_str(), "r");
    Require(pipe != nullptr, "a command can be started");
    std::string output;
    char buffer[256];
    while (const std::size_t got = std::fread(buffer, 1, sizeof buffer, pipe)) {
        output.append(buffer, got);
    }
    Require(pclose(pipe) == 0, command.c_str());
    return output;
}

void WriteFile(const std::string& path, const std::string& text)
{
    std::ofstream file(path, std::ios::binary);
    file << text;
    file.close();
    Require(file.good(), ("the disk takes " + path).c_str());
}

long PeakMemory()
{
    // The kernel's count for this program. That of getrusage includes the process that started it.
    std::ifstream status("/proc/self/status");
    std::string word;
    while (status >> word) {
        if (word == "VmHWM:") {
            long kib = 0;
            status >> kib;
            return kib;
        }
    }
    return 0;
}

namespace {

void PrintCells(const std::string& what, const std::string& value, const char* ratio, const char* aim)
{
    std::printf("| %-60s | %13s | %8s | %s |\n", what.c_str(), value.c_str(), ratio, aim);
    std::fflush(stdout);
}

std::string Number(const char* format, double value)
{
    char text[64];
    std::snprintf(text, sizeof text, format, value);
    return text;
}

} // namespace

void PrintRow(const std::string& what, const std::string& value, double ratio, double limit)
{
    const std::string aim =
        limit > 0 ? Number("at most %.2f", limit) + (ratio <= limit ? "" : ": MISSED") : std::string();
    PrintCells(what, value, ratio > 0 ? Number("%.2f", ratio).c_str() : "", aim.c_str());
}

void PrintFaster(const std::string& what, const std::string& value, double times, double atLeast)
{
    const std::string aim = atLeast > 0
                                ? Number("at least %.0fx", atLeast) + (times >= atLeast ? "" : ": MISSED")
                                : std::string();
    PrintCells(what, value, Number("%.1fx", times).c_str(), aim.c_str());
}

void PrintHead(const std::string& title, const std::string& about)
{
    constexpr std::size_t Width = 120;
    std::string broken = about;
    for (std::size_t start = 0; broken.size() - start > Width; ++start) {
        start = broken.rfind(' ', start + Width);
        broken[start] = '\n';
    }
    std::printf("\n### %s\n\n%s\n\n", title.c_str(), broken.c_str());
    PrintCells("What", "Came out", "Ratio", "Aim");
    std::printf("|---|--:|--:|---|\n");
}

std::string Milliseconds(double value)
{
    char text[32];
    std::snprintf(text, sizeof text, "%.3f ms", value);
    return text;
}

void Require(bool condition, const char* what)
{
    if (!condition) {
        std::fprintf(stderr, "lsbench: this should hold and does not: %s\n", what);
        std::exit(1);
    }
}

} // namespace ls::bench
