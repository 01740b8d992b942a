#include "browser/HelpPages.h"

#include "support/RecordingRegistry.h"
#include "support/TestSeams.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

using Strings = std::vector<std::string>;

constexpr const char* NoKey =
    "critical|Lodestar Advisor|Failed to open registry key <<HKEY_LOCAL_MACHINE\\SOFTWARE\\Classes\\.HTM>>. "
    "You may typed an invalid filetype, or you do not have an appropriate viewer program registered on your "
    "computer.";
constexpr const char* Question =
    "none|Lodestar Advisor|I need a web browser to display the information, but your registry does not have "
    "an "
    "unambiguous reference to a single browser. Do you want to help me find your web browser so that I can "
    "open it?|YesNo";

struct HelpPagesTest : testing::Test
{
    test::TestSeams world;
    test::RecordingRegistry registry;
    Strings asked;      ///< start paths given to the file selector
    std::string picked; ///< the path that it returns

    void Show(const std::string& page)
    {
        ShowHelpPage(page, world.Get(), registry, [this](const std::string& startPath) {
            asked.push_back(startPath);
            return picked;
        });
    }
};

TEST_F(HelpPagesTest, show_registeredBrowser_getsThePageOfTheProgramsFolder)
{
    registry.RegisterForUser(".HTM", "page", "/usr/bin/web --new %u");
    Show("Lodestar_Open.htm");
    EXPECT_EQ(world.processes.started, Strings{"/usr/bin/web /program/Lodestar_Open.htm"});
    EXPECT_EQ(world.messages.Take(), Strings{});
    EXPECT_EQ(asked, Strings{});
}

TEST_F(HelpPagesTest, show_emptyName_isTheFirstPage)
{
    registry.RegisterForUser(".HTM", "page", "/usr/bin/web");
    Show("");
    EXPECT_EQ(world.processes.started, Strings{"/usr/bin/web /program/Lodestar_Ideas.htm"});
}

TEST_F(HelpPagesTest, show_pageInAnotherCase_isFound)
{
    world.files["/program/lodestar_open.htm"] = "";
    registry.RegisterForUser(".HTM", "page", "/usr/bin/web");
    EXPECT_TRUE(HasHelpPage("Lodestar_Open.htm", world.Get()));
    Show("Lodestar_Open.htm");
    EXPECT_EQ(world.processes.started, Strings{"/usr/bin/web /program/lodestar_open.htm"});
}

TEST_F(HelpPagesTest, hasHelpPage_noSuchFile_isFalse)
{
    EXPECT_FALSE(HasHelpPage("Lodestar_Open.htm", world.Get()));
}

TEST_F(HelpPagesTest, show_windowsPaths_backslashIsTheSeparator)
{
    world.paths = WindowsPaths;
    world.processes.programFolder = "C:\\Program Files\\Advisor";
    registry.RegisterForUser(".HTM", "page", "\"C:\\Web\\browse.exe\" -x \"%1\"");
    Show("Lodestar_Open.htm");
    EXPECT_EQ(world.processes.started,
              Strings{"C:\\Web\\browse.exe \"C:\\Program Files\\Advisor\\Lodestar_Open.htm\""});
}

TEST_F(HelpPagesTest, show_noBrowserAndYes_startsTheOneThatIsPicked)
{
    world.messages.replies = {Reply::Yes};
    picked = "/opt/My Web/web";
    Show("Lodestar_Open.htm");
    EXPECT_EQ(world.messages.Take(), (Strings{NoKey, Question}));
    EXPECT_EQ(asked, Strings{"/usr/bin/*"});
    EXPECT_EQ(world.processes.started, Strings{"\"/opt/My Web/web\" /program/Lodestar_Open.htm"});
}

TEST_F(HelpPagesTest, show_noBrowserOnWindows_looksForExeFiles)
{
    world.paths = WindowsPaths;
    world.messages.replies = {Reply::Yes};
    Show("Lodestar_Open.htm");
    EXPECT_EQ(asked, Strings{"*.exe"});
    EXPECT_EQ(world.processes.started, Strings{});
}

TEST_F(HelpPagesTest, show_noBrowserAndNoOrTheBoxIsClosed_asksNoMore)
{
    picked = "/usr/bin/web";
    for (const Reply reply : {Reply::No, Reply::Cancel}) {
        world.messages.replies = {reply};
        Show("Lodestar_Open.htm");
        EXPECT_EQ(world.messages.Take(), (Strings{NoKey, Question}));
    }
    EXPECT_EQ(asked, Strings{});
    EXPECT_EQ(world.processes.started, Strings{});
}

TEST_F(HelpPagesTest, show_pickedBrowserFails_isToldOnceAndNotAskedAgain)
{
    world.messages.replies = {Reply::Yes};
    picked = "/none/web";
    world.processes.result = {MakeFileError(53), 0};
    Show("Lodestar_Open.htm");
    EXPECT_EQ(world.messages.Take(),
              (Strings{NoKey, Question,
                       "exclamation|Lodestar Advisor|Error # 53 on command line <</none/web "
                       "/program/Lodestar_Open.htm>> because of: File not found"}));
    EXPECT_EQ(asked, Strings{"/usr/bin/*"});
}

TEST_F(HelpPagesTest, show_choice_isNotRemembered)
{
    world.messages.replies = {Reply::Yes, Reply::Yes};
    picked = "/usr/bin/web";
    Show("Lodestar_Open.htm");
    Show("Lodestar_Open.htm");
    EXPECT_EQ(asked.size(), 2U);
}

TEST_F(HelpPagesTest, show_registryFault_endsTheProgramAndAsksNothing)
{
    registry.keys["HKCU\\SOFTWARE\\Classes\\.HTM"] = std::nullopt;
    Show("Lodestar_Open.htm");
    EXPECT_TRUE(world.end.Ended());
    EXPECT_EQ(world.messages.Take().size(), 1U);
    EXPECT_EQ(asked, Strings{});
    EXPECT_EQ(world.processes.started, Strings{});
}

} // namespace
} // namespace ls
