#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace ls::bench {

[[nodiscard]] double MedianOf(std::vector<double> values);

/// Milliseconds of processor time that one call takes, commands that it waits for included. Files are in the
/// page cache, so nothing else is waited for; a clock on the wall would count what others do on the machine.
[[nodiscard]] double TimeOf(const std::function<void()>& work);

/// The medians of any number of pieces of work that are measured in turns, so that all see the same machine.
[[nodiscard]] std::vector<double> MeasureInTurns(int rounds, const std::vector<std::function<void()>>& works);

/// The medians of two pieces of work that are measured in turns, so that both see the same machine.
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

/// Starts a command line of the shell and gives what it prints; ends the program when it fails.
[[nodiscard]] std::string OutputOf(const std::string& command);

/// Writes a file anew; ends the program when the disk does not take it.
void WriteFile(const std::string& path, const std::string& text);

/// The most memory that this process has had resident since it was started, in KiB.
[[nodiscard]] long PeakMemory();

/// One row of a table in Markdown: this program's time by a peer's. A limit of 0 sets no aim.
void PrintRow(const std::string& what, const std::string& value, double ratio = 0, double limit = 0);

/// The same where the ratio is the peer's time by this program's. A limit of 0 sets no aim.
void PrintFaster(const std::string& what, const std::string& value, double times, double atLeast);

/// Begins a table: its heading, a few sentences on what is compared, and the heads of its columns.
void PrintHead(const std::string& title, const std::string& about);
[[nodiscard]] std::string Milliseconds(double value);

/// Ends the program when something that a measurement rests on is not so: a fast wrong result is none.
void Require(bool condition, const char* what);

} // namespace ls::bench
