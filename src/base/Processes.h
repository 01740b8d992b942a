#pragma once

#include "base/FileError.h"

#include <string>

namespace ls {

/// The program's own process and those that it starts.
class Processes
{
public:
    virtual ~Processes() = default;

    /// The value of an environment variable; empty when it is unset.
    virtual std::string Environment(const std::string& name) = 0;

    /// The folder of the running program's real file, links resolved, without a trailing separator.
    virtual std::string ProgramFolder() = 0;

    /// The result of `Start`: an error, or a task id. Id 0 means that nothing was started.
    struct Started
    {
        FileError error;
        int taskId = 0;
    };

    /// Starts a command line with a normal, focused window and does not wait for it.
    virtual Started Start(const std::string& commandLine) = 0;
};

} // namespace ls
