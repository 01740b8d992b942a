#pragma once

#include "support/ScratchFolder.h"

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <string>

namespace ls::test {

/// The built lsbook, as a shell runs it inside a scratch folder.
class ProgramFixture : public testing::Test
{
protected:
    /// The exit status for arguments written for a shell; `out` and `err` then hold what it wrote. `before`
    /// is what the shell does first, such as "ulimit -v 100000; ".
    int Run(const std::string& arguments, const std::string& before = {})
    {
        const std::string command = before + "cd '" + scratch.Path() + "' && '" LS_LSBOOK "' " + arguments +
                                    " >stdout 2>stderr </dev/null";
        const int status = std::system(command.c_str()); // a test of the shell's view
        out = scratch.Read("stdout");
        err = scratch.Read("stderr");
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    ScratchFolder scratch;
    std::string out;
    std::string err;
};

} // namespace ls::test
