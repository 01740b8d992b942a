#include "platform/linux/MimeApps.h"

#include "ScratchDesktop.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace ls {
namespace {

using Strings = std::vector<std::string>;

struct MimeAppsTest : testing::Test, test::ScratchDesktop
{
    std::string Default() { return DefaultApplication(ReadXdgFolders(processes), "text/html"); }

    std::optional<std::string> Exec(const std::string& id)
    {
        const auto entry = FindDesktopEntry(ReadXdgFolders(processes), id);
        return entry ? std::optional(entry->exec) : std::nullopt;
    }
};

// Every place that can name an application, strongest first. The test writes all of them and removes them one
// by one.
struct Place
{
    const char* file;
    const char* group;
};

const Place Places[] = {
    {"config/kde-mimeapps.list", "Default Applications"},
    {"config/gnome-mimeapps.list", "Default Applications"},
    {"config/mimeapps.list", "Default Applications"},
    {"etc/kde-mimeapps.list", "Default Applications"},
    {"etc/mimeapps.list", "Default Applications"},
    {"etc2/kde-mimeapps.list", "Default Applications"},
    {"etc2/mimeapps.list", "Default Applications"},
    {"data/applications/kde-mimeapps.list", "Default Applications"},
    {"data/applications/mimeapps.list", "Default Applications"},
    {"share/applications/gnome-mimeapps.list", "Default Applications"},
    {"share/applications/mimeapps.list", "Default Applications"},
    {"share2/applications/mimeapps.list", "Default Applications"},
};

const Place WeakPlaces[] = {
    {"config/mimeapps.list", "Added Associations"},
    {"etc/mimeapps.list", "Added Associations"},
    {"data/applications/mimeapps.list", "Added Associations"},
    {"data/applications/mimeinfo.cache", "MIME Cache"},
    {"share/applications/mimeapps.list", "Added Associations"},
    {"share/applications/mimeinfo.cache", "MIME Cache"},
    {"share2/applications/mimeinfo.cache", "MIME Cache"},
};

struct PrecedenceTest : MimeAppsTest
{
    template <std::size_t Size>
    void TakeAway(const Place (&places)[Size])
    {
        processes.environment["XDG_CURRENT_DESKTOP"] = "KDE:GNOME";
        processes.environment["XDG_CONFIG_DIRS"] = folder / "etc:" + (folder / "etc2");
        processes.environment["XDG_DATA_DIRS"] = folder / "share/:" + (folder / "share2");
        for (std::size_t i = 0; i < Size; ++i) {
            const std::string name = "web" + std::to_string(i);
            Install(name);
            WriteList(places[i].file, places[i].group, name + ".desktop;");
        }
        for (std::size_t i = 0; i < Size; ++i) {
            EXPECT_EQ(Default(), "web" + std::to_string(i) + ".desktop") << places[i].file;
            std::filesystem::remove(folder / places[i].file);
        }
        EXPECT_EQ(Default(), "");
    }
};

TEST_F(PrecedenceTest, defaultApplication_defaults_userBeforeSystem)
{
    TakeAway(Places);
}

TEST_F(PrecedenceTest, defaultApplication_associations_userBeforeSystem)
{
    TakeAway(WeakPlaces);
}

TEST_F(PrecedenceTest, defaultApplication_systemDefault_beatsUsersAssociation)
{
    Install("one");
    Install("two");
    WriteList("config/mimeapps.list", "Added Associations", "one.desktop");
    WriteList("share/applications/mimeapps.list", "Default Applications", "two.desktop");
    EXPECT_EQ(Default(), "two.desktop");
}

TEST_F(MimeAppsTest, defaultApplication_nothingAnywhere_isEmpty)
{
    EXPECT_EQ(Default(), "");
}

TEST_F(MimeAppsTest, defaultApplication_listOfSeveral_isTheFirstThatIsThere)
{
    Install("one");
    Install("two");
    WriteList("config/mimeapps.list", "Default Applications", "none.desktop; two.desktop;one.desktop");
    EXPECT_EQ(Default(), "two.desktop");
}

TEST_F(MimeAppsTest, defaultApplication_otherTypes_areNotTaken)
{
    Install("one");
    folder.Write("config/mimeapps.list", "[Default Applications]\nx-scheme-handler/http=one.desktop\n"
                                         "application/xhtml+xml=one.desktop\n");
    EXPECT_EQ(Default(), "");
    EXPECT_EQ(DefaultApplication(ReadXdgFolders(processes), "application/xhtml+xml"), "one.desktop");
}

TEST_F(MimeAppsTest, defaultApplication_missingHiddenAndBroken_arePassedOver)
{
    Install("good");
    folder.WriteProgram("bin/web", "");
    WriteEntry("share/applications/hidden.desktop", "Exec=web\nHidden=true\n");
    WriteEntry("share/applications/terminal.desktop", "Exec=web\nTerminal=true\n");
    WriteEntry("share/applications/tryexec.desktop", "Exec=web\nTryExec=uninstalled\n");
    WriteEntry("share/applications/exec.desktop", "Exec=uninstalled %u\n");
    folder.Write("share/applications/broken.desktop", "no entry");
    folder.MakeFolder("share/applications/folder.desktop");
    for (const char* id :
         {"none.desktop", "hidden.desktop", "terminal.desktop", "tryexec.desktop", "exec.desktop",
          "broken.desktop", "folder.desktop", "good", "../applications/good.desktop"}) {
        WriteList("config/mimeapps.list", "Default Applications", id + std::string(";good.desktop"));
        EXPECT_EQ(Default(), "good.desktop") << id;
    }
}

TEST_F(MimeAppsTest, defaultApplication_tryExecThere_isTaken)
{
    folder.WriteProgram("bin/web", "");
    const std::string probe = folder.WriteProgram("opt/probe", "");
    WriteEntry("share/applications/web.desktop", "Exec=web\nTryExec=" + probe + "\n");
    WriteList("config/mimeapps.list", "Default Applications", "web.desktop");
    EXPECT_EQ(Default(), "web.desktop");
}

TEST_F(MimeAppsTest, defaultApplication_removedAssociation_isNotTakenFromLaterLists)
{
    Install("one");
    Install("two");
    folder.Write("config/mimeapps.list", "[Removed Associations]\ntext/html=one.desktop;\n");
    WriteList("share/applications/mimeinfo.cache", "MIME Cache", "one.desktop;two.desktop;");
    EXPECT_EQ(Default(), "two.desktop");
}

TEST_F(MimeAppsTest, defaultApplication_desktopsList_addsNoAssociations)
{
    Install("one");
    processes.environment["XDG_CURRENT_DESKTOP"] = "KDE";
    WriteList("config/kde-mimeapps.list", "Added Associations", "one.desktop");
    EXPECT_EQ(Default(), "");
}

TEST_F(MimeAppsTest, defaultApplication_cacheInConfigFolder_isNotRead)
{
    Install("one");
    WriteList("config/mimeinfo.cache", "MIME Cache", "one.desktop");
    EXPECT_EQ(Default(), "");
}

TEST_F(MimeAppsTest, defaultApplication_hugeList_isPassedOver)
{
    Install("one");
    Install("two");
    WriteList("config/mimeapps.list", "Default Applications", "one.desktop");
    std::filesystem::resize_file(folder / "config/mimeapps.list", 1024 * 1024 * 1024);
    WriteList("etc/mimeapps.list", "Default Applications", "two.desktop");
    EXPECT_EQ(Default(), "two.desktop");
}

TEST_F(MimeAppsTest, findDesktopEntry_usersFile_isPreferred)
{
    Install("web");
    WriteEntry("data/applications/web.desktop", "Exec=web --mine %u\n");
    EXPECT_EQ(Exec("web.desktop"), "web --mine %u");
}

TEST_F(MimeAppsTest, findDesktopEntry_usersHiddenFile_hidesTheSystems)
{
    Install("web");
    EXPECT_EQ(Exec("web.desktop"), "web %u");
    folder.Write("data/applications/web.desktop", "[Desktop Entry]\nHidden=true\n");
    EXPECT_EQ(Exec("web.desktop"), std::nullopt);
}

TEST_F(MimeAppsTest, findDesktopEntry_dashes_mayBeFolders)
{
    folder.WriteProgram("bin/web", "");
    WriteEntry("share/applications/org/a-web.desktop", "Exec=web --one\n");
    WriteEntry("share/applications/org/a/b/web.desktop", "Exec=web --two\n");
    EXPECT_EQ(Exec("org-a-web.desktop"), "web --one");
    EXPECT_EQ(Exec("org-a-b-web.desktop"), "web --two");
    EXPECT_EQ(Exec("org-web.desktop"), std::nullopt);
}

TEST_F(MimeAppsTest, findDesktopEntry_idThatLeavesTheFolders_isRefused)
{
    folder.WriteProgram("bin/web", "");
    WriteEntry("share/web.desktop", "Exec=web\n");
    folder.MakeFolder("share/applications/org");
    EXPECT_EQ(Exec("../web.desktop"), std::nullopt);
    EXPECT_EQ(Exec("..-web.desktop"), std::nullopt);
    EXPECT_EQ(Exec("org-..-..-web.desktop"), std::nullopt);
    EXPECT_EQ(Exec(std::string(300, 'x') + ".desktop"), std::nullopt);
    EXPECT_EQ(Exec(""), std::nullopt);
}

TEST(XdgFoldersTest, readXdgFolders_nothingSet_isStandard)
{
    test::RecordingProcesses processes;
    processes.environment = {{"HOME", "/home/u"}};
    const XdgFolders folders = ReadXdgFolders(processes);
    EXPECT_EQ(folders.config, (Strings{"/home/u/.config", "/etc/xdg"}));
    EXPECT_EQ(folders.data, (Strings{"/home/u/.local/share", "/usr/local/share", "/usr/share"}));
    EXPECT_EQ(folders.desktops, Strings{});
}

TEST(XdgFoldersTest, readXdgFolders_noHome_hasNoUsersFolders)
{
    test::RecordingProcesses processes;
    const XdgFolders folders = ReadXdgFolders(processes);
    EXPECT_EQ(folders.config, Strings{"/etc/xdg"});
    EXPECT_EQ(folders.data, (Strings{"/usr/local/share", "/usr/share"}));
}

TEST(XdgFoldersTest, readXdgFolders_relativeFolders_areLeftOut)
{
    test::RecordingProcesses processes;
    processes.environment = {{"HOME", "/home/u"},
                             {"XDG_CONFIG_HOME", "config"},
                             {"XDG_CONFIG_DIRS", "etc:/etc/a::/etc/b"},
                             {"XDG_DATA_HOME", "/data"},
                             {"XDG_DATA_DIRS", "share"},
                             {"XDG_CURRENT_DESKTOP", "Ubuntu:GNOME:../x"},
                             {"PATH", "/bin"}};
    const XdgFolders folders = ReadXdgFolders(processes);
    EXPECT_EQ(folders.config, (Strings{"/home/u/.config", "/etc/a", "/etc/b"}));
    EXPECT_EQ(folders.data, Strings{"/data"});
    EXPECT_EQ(folders.desktops, (Strings{"ubuntu", "gnome"}));
    EXPECT_EQ(folders.searchPath, "/bin");
}

} // namespace
} // namespace ls
