#include "platform/SystemSeams.h"

#include "support/RecordingProcesses.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

TEST(StateFolderTest, eachEnvironment_givesItsFolder)
{
    const struct
    {
        const char* name;
        const char* state;
        const char* home;
        const char* folder;
    } rows[] = {
        {"home only", "", "/home/u", "/home/u/.local/state/lodestar-advisor"},
        {"a folder of its own", "/var/state", "/home/u", "/var/state/lodestar-advisor"},
        {"no home", "/var/state", "", "/var/state/lodestar-advisor"},
        {"a relative one does not count", "state", "/home/u", "/home/u/.local/state/lodestar-advisor"},
        {"nothing", "", "", ""},
        {"a relative home does not count", "", "u", ""},
    };
    for (const auto& row : rows) {
        test::RecordingProcesses processes;
        processes.environment["XDG_STATE_HOME"] = row.state;
        processes.environment["HOME"] = row.home;
        EXPECT_EQ(StateFolder(processes), row.folder) << row.name;
    }
}

} // namespace
} // namespace ls
