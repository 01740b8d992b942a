#include "platform/linux/DesktopEntry.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

struct CommandRow
{
    const char* name;
    const char* exec; // as written in the file
    const char* command;
};

struct OpenCommandTest : testing::TestWithParam<CommandRow>
{
};

TEST_P(OpenCommandTest, openCommand_exec_isCommand)
{
    const auto entry =
        ParseDesktopEntry(std::string("[Desktop Entry]\nType=Application\nExec=") + GetParam().exec + "\n");
    ASSERT_TRUE(entry.has_value());
    EXPECT_EQ(OpenCommand(*entry), GetParam().command);
}

INSTANTIATE_TEST_SUITE_P(
    Table, OpenCommandTest,
    testing::Values(CommandRow{"bareName", "web %u", "web %u"}, CommandRow{"noPlaceholder", "web", "web"},
                    CommandRow{"path", "/usr/bin/web %U", "/usr/bin/web %U"},
                    CommandRow{"switches", "web --new-window %u", "web --new-window %u"},
                    CommandRow{"switchWithValue", "web -P work %u", "web -P work %u"},
                    CommandRow{"quotedPath", R"("/opt/My Web/web" %u)", R"("/opt/My Web/web" %u)"},
                    CommandRow{"quotedWithoutNeed", R"("web" %u)", "web %u"},
                    CommandRow{"escapesInQuotes", R"("/opt/a\\$b c" %u)", R"("/opt/a$b c" %u)"},
                    CommandRow{"escapedBlank", R"("/opt/My\sWeb/web" %u)", R"("/opt/My Web/web" %u)"},
                    CommandRow{"tabBehindProgram", R"(web\t%u)", "web %u"},
                    CommandRow{"tabBeforeProgram", R"(\t"/opt/My Web/web" %u)", R"("/opt/My Web/web" %u)"},
                    CommandRow{"quotedPlaceholder", R"(web "%u")", R"(web "%u")"},
                    CommandRow{"bundledLauncher", "/var/lib/flatpak/exports/bin/org.web.Web @@u %u @@",
                               "/var/lib/flatpak/exports/bin/org.web.Web @@u %u @@"},
                    CommandRow{"snapByItsName", "/snap/bin/web %u", "/snap/bin/web %u"},
                    CommandRow{"flatpak", "/usr/bin/flatpak run --branch=stable org.web.Web @@u %u @@",
                               "xdg-open"},
                    CommandRow{"flatpakSwitchFirst", "flatpak --user run org.web.Web", "xdg-open"},
                    CommandRow{"snap", "snap run web %u", "xdg-open"},
                    CommandRow{"environmentPrefix", "env LANG=C /snap/bin/web %u", "xdg-open"},
                    CommandRow{"environmentPrefixByPath", "/usr/bin/env -i web %u", "xdg-open"},
                    CommandRow{"shell", R"(sh -c "web %u")", "xdg-open"},
                    CommandRow{"assignment", "LANG=C web %u", "xdg-open"},
                    CommandRow{"subcommand", "webclient openURL %u", "xdg-open"},
                    CommandRow{"percentInTheName", R"("/opt/50%%/web" %u)", "xdg-open"},
                    CommandRow{"quoteInTheName", R"("/opt/\\"my\\" web" %u)", "xdg-open"}),
    [](const auto& row) { return row.param.name; });

struct RefusedRow
{
    const char* name;
    const char* text;
};

struct RefusedEntryTest : testing::TestWithParam<RefusedRow>
{
};

TEST_P(RefusedEntryTest, parseDesktopEntry_unusable_isNothing)
{
    EXPECT_EQ(ParseDesktopEntry(GetParam().text), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(
    Table, RefusedEntryTest,
    testing::Values(RefusedRow{"empty", ""}, RefusedRow{"noGroup", "Type=Application\nExec=web\n"},
                    RefusedRow{"noType", "[Desktop Entry]\nExec=web\n"},
                    RefusedRow{"link", "[Desktop Entry]\nType=Link\nExec=web\n"},
                    RefusedRow{"noCommand", "[Desktop Entry]\nType=Application\n"},
                    RefusedRow{"emptyCommand", "[Desktop Entry]\nType=Application\nExec=\n"},
                    RefusedRow{"blankCommand", "[Desktop Entry]\nType=Application\nExec=\\s\n"},
                    RefusedRow{"tabAsCommand", "[Desktop Entry]\nType=Application\nExec=\\t\n"},
                    RefusedRow{"commandOfAnAction",
                               "[Desktop Entry]\nType=Application\n[Desktop Action new]\nExec=web\n"},
                    RefusedRow{"quoteNeverClosed", "[Desktop Entry]\nType=Application\nExec=\"web %u\n"},
                    RefusedRow{"emptyQuotes", "[Desktop Entry]\nType=Application\nExec=\"\" %u\n"},
                    RefusedRow{"hidden", "[Desktop Entry]\nType=Application\nExec=web\nHidden=true\n"},
                    RefusedRow{"terminal", "[Desktop Entry]\nType=Application\nExec=web\nTerminal=true\n"}),
    [](const auto& row) { return row.param.name; });

TEST(DesktopEntryTest, parseDesktopEntry_wholeEntry_isRead)
{
    const auto entry = ParseDesktopEntry("[Desktop Entry]\n"
                                         "Type=Application\n"
                                         "Name=Web\n"
                                         "NoDisplay=true\n"
                                         "Hidden=false\n"
                                         "Terminal=false\n"
                                         "TryExec=/opt/My\\sWeb/web\n"
                                         "Exec=\"/opt/My Web/web\"   --new %u\n"
                                         "[Desktop Action private]\n"
                                         "Exec=web --private\n");
    ASSERT_TRUE(entry.has_value());
    EXPECT_EQ(entry->exec, "\"/opt/My Web/web\"   --new %u");
    EXPECT_EQ(entry->tryExec, "/opt/My Web/web");
    EXPECT_EQ(entry->program, "/opt/My Web/web");
    EXPECT_EQ(entry->rest, "--new %u");
}

} // namespace
} // namespace ls
