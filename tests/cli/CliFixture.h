#pragma once

#include "support/Json.h"
#include "support/MemoryFileSystem.h"
#include "support/RecordingProcesses.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ls::test {

/// Runs `lsbook` in process, with files in memory. With CliByProgram.cpp in place of CliFixture.cpp it runs
/// the built program with real files.
class CliFixture : public testing::Test
{
protected:
    /// Runs lsbook and returns the exit status; `out` and `err` get its output.
    int Run(const std::vector<std::string>& arguments);

    /// Runs a command that must end with `status` and write nothing to standard error; returns its output.
    std::string Out(const std::vector<std::string>& arguments, int status = 0)
    {
        EXPECT_EQ(Run(arguments), status);
        EXPECT_EQ(err, "");
        return out;
    }

    /// Like `Out`, with the output parsed as JSON.
    Json OutJson(std::vector<std::string> arguments, int status = 0)
    {
        arguments.emplace_back("--json");
        return Json::Parse(Out(arguments, status));
    }

    /// The entries of a case to run: all of them in process. By the program only the first, since the topic
    /// that is asked for makes no difference to what the program itself adds, and each process takes its
    /// time.
    [[nodiscard]] static std::vector<Json> Asked(const std::vector<Json>& entries);

    MemoryFileSystem files;
    RecordingProcesses processes;
    std::string in; ///< the content of standard input
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
