#pragma once

#include "base/Processes.h"

namespace ls {

/// The program's own process on Windows, and those that it starts: directly, without a shell and without
/// waiting.
class WindowsProcesses : public Processes
{
public:
    std::string Environment(const std::string& name) override;
    std::string ProgramFolder() override;

    /// Searches a program without a path in the folders of PATH, not in the current folder: a bare name must
    /// not start a program that is beside a book. A name without a type gets ".exe".
    ///
    /// Errors: 5 for an empty line, a batch file or a file that is no program, 7 when memory runs out, 53
    /// when the program is missing, 70 when it may not be run, 75 for a folder.
    Started Start(const std::string& commandLine) override;
};

} // namespace ls
