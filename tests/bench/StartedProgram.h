#pragma once

#include <string>
#include <vector>

#include <sys/types.h>

namespace ls::bench {

/// Starts a program with these words, as the first of a new process group. `environment` adds "NAME=value"
/// entries to this program's environment. The program runs in the folder HOME, and its output is discarded.
[[nodiscard]] pid_t StartProgram(const std::vector<std::string>& words,
                                 const std::vector<std::string>& environment);

/// Ends all processes of the program's group.
void EndProgram(pid_t program);

/// False once it has ended by itself.
[[nodiscard]] bool Runs(pid_t program);

/// The largest resident memory of a process group, in KiB.
struct GroupMemory
{
    long first = 0;    ///< of the process that was started
    long all = 0;      ///< the sum over the group; shared pages count for each process
    int processes = 0; ///< in the group
};
[[nodiscard]] GroupMemory PeakMemoryOf(pid_t program);

} // namespace ls::bench
