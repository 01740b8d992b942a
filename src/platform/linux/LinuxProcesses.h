#pragma once

#include "base/Processes.h"

namespace ls {

/// The program's own process on Linux, and those that it starts: directly, without a shell and without
/// waiting.
class LinuxProcesses : public Processes
{
public:
    std::string Environment(const std::string& name) override;
    std::string ProgramFolder() override;

    /// Errors: 5 for an empty line or a file that is no program, 7 when the system can start no more
    /// processes, 53 when the program is missing, 70 when it may not be run, 75 for a folder.
    Started Start(const std::string& commandLine) override;
};

} // namespace ls
