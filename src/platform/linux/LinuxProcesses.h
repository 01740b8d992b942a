#pragma once

#include "base/Processes.h"

namespace ls {

/// The program's own process on Linux, and those that it starts: directly, never through a shell, and never
/// waited for.
class LinuxProcesses : public Processes
{
public:
    std::string Environment(const std::string& name) override;
    std::string ProgramFolder() override;

    /// The errors: 5 for an empty line and for a file that is no program, 7 where the system can take no more
    /// processes, 53 where the program is missing, 70 where it may not be run, 75 for a folder.
    Started Start(const std::string& commandLine) override;
};

} // namespace ls
