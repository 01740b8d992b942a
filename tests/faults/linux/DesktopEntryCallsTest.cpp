// The search for the desktop's browser, with each of its calls failing.

#include "../SystemCallsFixture.h"
#include "TwoBrowsers.h"
#include "browser/APISubs.h"
#include "platform/linux/LinuxFileSystem.h"
#include "platform/linux/LinuxRegistry.h"
#include "support/RecordingMessages.h"

namespace ls {
namespace {

using DesktopEntryCalls = test::SystemCalls;

TEST_P(DesktopEntryCalls, desktopEntries_eachCallFailing_giveTheBrowserOrNone)
{
    test::WriteTwoBrowsers(folder);
    test::RecordingProcesses processes = test::ProcessesOn(folder);
    LinuxRegistry registry(processes);
    ProgramEnd end;
    LinuxFileSystem files;
    test::RecordingMessages messages{end};
    const Seams seams{files, messages, processes, end, UnixPaths};
    std::string id;
    ForEachCall(
        [&](const std::string&) {
            EXPECT_TRUE(id == "web.desktop" || id == "other.desktop" || id.empty()) << id;
            EXPECT_EQ(id.empty(), !messages.Take().empty()) << "a missing browser gives a message";
            EXPECT_FALSE(end.Ended());
        },
        [&] { id = RegGetString(seams, registry, "SOFTWARE\\Classes\\.HTM", ""); }, [] {});
    EXPECT_EQ(id, "web.desktop");
}

INSTANTIATE_TEST_SUITE_P(Faults, DesktopEntryCalls, testing::ValuesIn(test::SystemFaults()),
                         [](const auto& row) { return row.param.name; });

} // namespace
} // namespace ls
