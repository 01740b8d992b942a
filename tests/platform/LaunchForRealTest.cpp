#include "browser/APISubs.h"

#include "ScratchDesktop.h"
#include "base/Messages.h"
#include "platform/linux/LinuxFileSystem.h"
#include "platform/linux/LinuxProcesses.h"
#include "platform/linux/LinuxRegistry.h"
#include "support/RecordingMessages.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <thread>

#include <unistd.h>

namespace ls {
namespace {

// The whole launch with the real system: the lists name a browser, and that browser gets the page.
struct LaunchForRealTest : testing::Test, test::ScratchDesktop
{
    LinuxFileSystem files;
    LinuxProcesses realProcesses;
    LinuxRegistry registry{realProcesses};
    ProgramEnd end;
    test::RecordingMessages messages{end};
    std::string oldPath = std::getenv("PATH");

    LaunchForRealTest()
    {
        processes.environment["PATH"] += ":" + oldPath;
        for (const auto& [name, value] : processes.environment) {
            ::setenv(name.c_str(), value.c_str(), 1);
        }
        folder.WriteProgram("opt/My Web/web", "#!/bin/sh\nprintf '<%s>' \"$@\" > '" + (folder / "part") +
                                                  "'\nmv '" + (folder / "part") + "' '" + (folder / "out") +
                                                  "'\n");
        WriteEntry("share/applications/web.desktop",
                   "Exec=\"" + (folder / "opt/My Web/web") + "\" --new %u\n");
        WriteList("share/applications/mimeinfo.cache", "MIME Cache", "web.desktop;");
    }

    ~LaunchForRealTest() override
    {
        for (const auto& [name, value] : processes.environment) {
            ::unsetenv(name.c_str());
        }
        ::setenv("PATH", oldPath.c_str(), 1);
    }

    int Launch(std::string progSpec, std::string document)
    {
        const Seams seams{files, messages, realProcesses, end, UnixPaths};
        return LaunchProgram(seams, registry, progSpec, document);
    }
};

TEST_F(LaunchForRealTest, launchProgram_pageInTheCurrentFolder_reachesTheBrowser)
{
    ASSERT_EQ(::chdir(folder.Path().c_str()), 0);
    EXPECT_EQ(Launch(".HTM", "my page.htm"), 0);
    EXPECT_EQ(::chdir("/"), 0);
    for (int i = 0; i < 3000 && !folder.Has("out"); ++i) {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    EXPECT_EQ(folder.Read("out"), "<" + (folder / "my page.htm") + ">");
    EXPECT_TRUE(messages.boxes.empty());
}

TEST_F(LaunchForRealTest, launchProgram_missingProgram_tellsTheSystemsError)
{
    EXPECT_EQ(Launch(folder / "none/web", "/p.htm"), -3);
    EXPECT_EQ(messages.boxes,
              std::vector<std::string>{"exclamation|Lodestar Advisor|Error # 53 on command line <<" +
                                       (folder / "none/web") + " /p.htm>> because of: File not found"});
}

} // namespace
} // namespace ls
