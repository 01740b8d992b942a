// The browser of the desktop, with each call failing by which it is found.

#include "../SystemCallsFixture.h"
#include "browser/APISubs.h"
#include "platform/linux/LinuxFileSystem.h"
#include "platform/linux/LinuxRegistry.h"
#include "support/RecordingMessages.h"
#include "support/RecordingProcesses.h"

namespace ls {
namespace {

using DesktopEntryCalls = test::SystemCalls;

TEST_P(DesktopEntryCalls, desktopEntries_eachCallFailing_giveTheBrowserOrNone)
{
    folder.WriteProgram("bin/web", "");
    folder.WriteProgram("bin/other", "");
    folder.Write("config/mimeapps.list", "[Default Applications]\ntext/html=web.desktop\n");
    folder.Write("share/applications/web.desktop", "[Desktop Entry]\nType=Application\nExec=web %u\n");
    folder.Write("share/applications/other.desktop", "[Desktop Entry]\nType=Application\nExec=other %u\n");
    folder.Write("share/applications/mimeinfo.cache", "[MIME Cache]\ntext/html=other.desktop\n");
    test::RecordingProcesses processes;
    processes.environment = {{"XDG_CONFIG_HOME", folder / "config"},
                             {"XDG_CONFIG_DIRS", folder / "etc"},
                             {"XDG_DATA_HOME", folder / "data"},
                             {"XDG_DATA_DIRS", folder / "share"},
                             {"PATH", folder / "bin"}};
    LinuxRegistry registry(processes);
    ProgramEnd end;
    LinuxFileSystem files;
    test::RecordingMessages messages{end};
    const Seams seams{files, messages, processes, end, UnixPaths};
    std::string id;
    ForEachCall(
        [&](const std::string&) {
            EXPECT_TRUE(id == "web.desktop" || id == "other.desktop" || id.empty()) << id;
            EXPECT_EQ(id.empty(), !messages.Take().empty()) << "no browser is told of";
            EXPECT_FALSE(end.Ended());
        },
        [&] { id = RegGetString(seams, registry, "SOFTWARE\\Classes\\.HTM", ""); }, [] {});
    EXPECT_EQ(id, "web.desktop");
}

INSTANTIATE_TEST_SUITE_P(Faults, DesktopEntryCalls, testing::ValuesIn(test::SystemFaults()),
                         [](const auto& row) { return row.param.name; });

} // namespace
} // namespace ls
