#include "platform/linux/LinuxRegistry.h"

#include "ScratchDesktop.h"
#include "browser/APISubs.h"
#include "support/TestSeams.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

using Strings = std::vector<std::string>;

struct LinuxRegistryTest : testing::Test, test::ScratchDesktop
{
    test::TestSeams world;
    LinuxRegistry registry{processes};

    LinuxRegistryTest()
    {
        Install("web");
        Install("viewer");
        folder.Write("config/mimeapps.list", "[Default Applications]\n"
                                             "text/html=web.desktop\n"
                                             "application/pdf=viewer.desktop\n");
    }

    // A key's text as the program reads it; "" without a key.
    std::string Text(const std::string& path)
    {
        const auto key = registry.Open(Registry::Root::CurrentUser, path);
        return key ? RegQueryString(world.Get(), *key, "") : "";
    }

    int Launch(const std::string& document)
    {
        std::string progSpec = ".HTM";
        std::string page = document;
        Seams seams{world.files, world.messages, processes, world.end, world.paths};
        return LaunchProgram(seams, registry, progSpec, page);
    }
};

TEST_F(LinuxRegistryTest, open_fileType_isItsApplication)
{
    EXPECT_EQ(Text("SOFTWARE\\Classes\\.HTM"), "web.desktop");
    EXPECT_EQ(Text("SOFTWARE\\Classes\\.htm"), "web.desktop");
    EXPECT_EQ(Text("SOFTWARE\\Classes\\.Html"), "web.desktop");
    EXPECT_EQ(Text("SOFTWARE\\Classes\\.PDF"), "viewer.desktop");
}

TEST_F(LinuxRegistryTest, open_unknownKeys_areNotThere)
{
    for (const char* path : {"SOFTWARE\\Classes\\.QQQ", "SOFTWARE\\Classes\\.TXT", "SOFTWARE\\Classes\\", "",
                             "SOFTWARE\\Other\\.HTM", "SOFTWARE\\Classes\\web.desktop",
                             "SOFTWARE\\Classes\\none.desktop\\shell\\open\\command",
                             "SOFTWARE\\Classes\\\\shell\\open\\command"}) {
        EXPECT_EQ(registry.Open(Registry::Root::CurrentUser, path), nullptr) << path;
    }
}

TEST_F(LinuxRegistryTest, open_machinesKey_isNotThere)
{
    EXPECT_EQ(registry.Open(Registry::Root::LocalMachine, "SOFTWARE\\Classes\\.HTM"), nullptr);
}

TEST_F(LinuxRegistryTest, open_command_isTheEntrysOwn)
{
    EXPECT_EQ(Text("SOFTWARE\\Classes\\web.desktop\\shell\\open\\command"), "web %u");
}

TEST_F(LinuxRegistryTest, query_otherValueNames_areNotThere)
{
    const auto key = registry.Open(Registry::Root::CurrentUser, "SOFTWARE\\Classes\\.HTM");
    ASSERT_NE(key, nullptr);
    std::uint32_t type = 0;
    std::uint32_t size = 0;
    EXPECT_FALSE(key->QueryType("Content Type", type, size));
    EXPECT_TRUE(key->QueryType("", type, size));
    EXPECT_EQ(type, RegSz);
    EXPECT_EQ(size, 12U);
    std::string small(11, ' ');
    EXPECT_FALSE(key->QueryText("", small));
    std::string buffer(12, ' ');
    EXPECT_TRUE(key->QueryText("", buffer));
    EXPECT_EQ(buffer, std::string("web.desktop\0", 12));
}

TEST_F(LinuxRegistryTest, launchProgram_registeredBrowser_isStarted)
{
    EXPECT_EQ(Launch("/d/my page.htm"), 0);
    EXPECT_EQ(processes.started, Strings{"web \"/d/my page.htm\""});
}

TEST_F(LinuxRegistryTest, launchProgram_browserInASandbox_isStartedByTheDesktop)
{
    folder.WriteProgram("bin/flatpak", "");
    WriteEntry("share/applications/org.web.Web.desktop", "Exec=flatpak run org.web.Web @@u %u @@\n");
    WriteList("config/mimeapps.list", "Default Applications", "org.web.Web.desktop");
    EXPECT_EQ(Launch("/d/page.htm"), 0);
    EXPECT_EQ(processes.started, Strings{"xdg-open /d/page.htm"});
}

TEST_F(LinuxRegistryTest, launchProgram_browserWithBlank_isQuoted)
{
    const std::string program = folder.WriteProgram("opt/My Web/web", "");
    WriteEntry("share/applications/web.desktop", "Exec=\"" + program + "\" --new %u\n");
    EXPECT_EQ(Launch("http://h/p"), 0);
    EXPECT_EQ(processes.started, Strings{"\"" + program + "\" http://h/p"});
}

TEST_F(LinuxRegistryTest, launchProgram_noBrowser_saysSoAndIsMinusOne)
{
    folder.Write("config/mimeapps.list", "");
    EXPECT_EQ(Launch("/d/page.htm"), -1);
    EXPECT_EQ(world.messages.boxes,
              Strings{"critical|Lodestar Advisor|Failed to open registry key "
                      "<<HKEY_LOCAL_MACHINE\\SOFTWARE\\Classes\\.HTM>>. You may typed an invalid filetype, "
                      "or you do not have an appropriate viewer program registered on your computer."});
    EXPECT_FALSE(world.end.Ended());
}

TEST_F(LinuxRegistryTest, launchProgram_browserChosenMeanwhile_isFound)
{
    EXPECT_EQ(Launch("/a"), 0);
    WriteList("config/mimeapps.list", "Default Applications", "viewer.desktop");
    EXPECT_EQ(Launch("/a"), 0);
    EXPECT_EQ(processes.started, (Strings{"web /a", "viewer /a"}));
}

} // namespace
} // namespace ls
