#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace ls::bench {

[[nodiscard]] double MedianOf(std::vector<double> values);

/// The milliseconds of processor time of one call, with the commands that it waits for. Wall time would
/// include other programs on the machine. Little is lost: files are in the page cache, so the call does not
/// wait for the disk.
[[nodiscard]] double TimeOf(const std::function<void()>& work);

/// The median times of several pieces of work. They run in turns, so that other load slows all of them.
[[nodiscard]] std::vector<double> MeasureInTurns(int rounds, const std::vector<std::function<void()>>& works);

/// The median times of two pieces of work that run in turns.
struct Medians
{
    double first = 0;
    double second = 0;

    [[nodiscard]] double Ratio() const { return first / second; }
};
[[nodiscard]] Medians MeasureBoth(int rounds, const std::function<void()>& first,
                                  const std::function<void()>& second);
[[nodiscard]] double Measure(int rounds, const std::function<void()>& work);

/// Whether the shell finds a program.
[[nodiscard]] bool Installed(const std::string& program);

/// Runs a shell command and returns its output. Ends the program if the command fails.
[[nodiscard]] std::string OutputOf(const std::string& command);

/// Writes or replaces a file. Ends the program if that fails.
void WriteFile(const std::string& path, const std::string& text);

/// The largest resident memory of this process since its start, in KiB.
[[nodiscard]] long PeakMemory();

/// Prints a row of a Markdown table. `ratio` is this program's time divided by a peer's. A limit of 0 is no
/// aim.
void PrintRow(const std::string& what, const std::string& value, double ratio = 0, double limit = 0);

/// The same with the peer's time divided by this program's. A limit of 0 is no aim.
void PrintFaster(const std::string& what, const std::string& value, double times, double atLeast);

/// Begins a table: its heading, sentences that say what is compared, and the heads of its columns.
void PrintHead(const std::string& title, const std::string& about);
[[nodiscard]] std::string Milliseconds(double value);

/// Ends the program if the condition does not hold, because the time of a wrong result means nothing.
void Require(bool condition, const char* what);

} // namespace ls::bench
