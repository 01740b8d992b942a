#pragma once

#include "support/Json.h"
#include "support/MemoryFileSystem.h"
#include "support/RecordingProcesses.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ls::test {

/// `lsbook` run in process, with files in memory; where CliByProgram.cpp takes the place of CliFixture.cpp,
/// the built program with real files.
class CliFixture : public testing::Test
{
protected:
    /// The exit status; `out` and `err` then hold what it wrote.
    int Run(const std::vector<std::string>& arguments);

    /// Runs a command that must end with `status` and say nothing on standard error; gives its output.
    std::string Out(const std::vector<std::string>& arguments, int status = 0)
    {
        EXPECT_EQ(Run(arguments), status);
        EXPECT_EQ(err, "");
        return out;
    }

    /// The same with its output as JSON.
    Json OutJson(std::vector<std::string> arguments, int status = 0)
    {
        arguments.emplace_back("--json");
        return Json::Parse(Out(arguments, status));
    }

    MemoryFileSystem files;
    RecordingProcesses processes;
    std::string in; ///< what standard input holds
    bool inIsTerminal = false;
    bool outIsTerminal = false;
    bool errIsTerminal = false;
    int columns = 0;
    std::string out;
    std::string err;
};

/// A book of three topics with references, a logic block, and letters with accents.
[[nodiscard]] std::string SmallBook();

} // namespace ls::test
