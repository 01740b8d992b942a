#pragma once

#include <string>
#include <vector>

#include <sys/types.h>

namespace ls::bench {

/// Starts a program with these words, as the first of a group of its own; `environment` has "NAME=value"
/// beside what this program has. It runs in the folder HOME; what it prints goes nowhere.
[[nodiscard]] pid_t StartProgram(const std::vector<std::string>& words,
                                 const std::vector<std::string>& environment);

/// Ends it, and whatever it started that is still in its group.
void EndProgram(pid_t program);

/// False once it has ended by itself.
[[nodiscard]] bool Runs(pid_t program);

/// The most memory that processes had resident, in KiB.
struct GroupMemory
{
    long first = 0;    ///< of the process that was started
    long all = 0;      ///< added up over the group; pages that they share count for each
    int processes = 0; ///< in the group
};
[[nodiscard]] GroupMemory PeakMemoryOf(pid_t program);

} // namespace ls::bench
