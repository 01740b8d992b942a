#pragma once

#include "support/ScratchFolder.h"

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <string>

namespace ls::test {

/// The built lsbook, run by a shell in a scratch folder.
class ProgramFixture : public testing::Test
{
protected:
    /// Runs lsbook with arguments written for a shell and returns the exit status; `out` and `err` get its
    /// output. `before` runs first in the shell, such as "ulimit -v 100000; ".
    int Run(const std::string& arguments, const std::string& before = {})
    {
        const std::string command = before + "cd '" + scratch.Path() + "' && '" LS_LSBOOK "' " + arguments +
                                    " >stdout 2>stderr </dev/null";
        const int status = std::system(command.c_str()); // the shell is part of the test
        out = scratch.Read("stdout");
        err = scratch.Read("stderr");
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    ScratchFolder scratch;
    std::string out;
    std::string err;
};

} // namespace ls::test
