#pragma once

#include "base/Processes.h"

namespace ls {

/// The program's own process on Windows, and those that it starts: directly, never through a shell, and never
/// waited for.
class WindowsProcesses : public Processes
{
public:
    std::string Environment(const std::string& name) override;
    std::string ProgramFolder() override;

    /// A program without a path is looked for in the folders of PATH, not in the current folder: one that
    /// lies beside a book is not started by its bare name. ".exe" is added to a name without a type.
    ///
    /// The errors: 5 for an empty line, a batch file and a file that is no program, 7 where memory runs out,
    /// 53 where the program is missing, 70 where it may not be run, 75 for a folder.
    Started Start(const std::string& commandLine) override;
};

} // namespace ls
