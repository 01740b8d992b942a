// Programs named in the real registry, up to the command line that would be started.

#include "ScratchKeys.h"
#include "browser/APISubs.h"
#include "platform/windows/WindowsProcesses.h"
#include "platform/windows/WindowsRegistry.h"
#include "support/TestSeams.h"

namespace ls {
namespace {

using Strings = std::vector<std::string>;

/// The system's environment; starts are recorded.
class RecordedStarts : public test::RecordingProcesses
{
public:
    std::string Environment(const std::string& name) override { return system.Environment(name); }

private:
    WindowsProcesses system;
};

struct RegistryLaunch : testing::Test
{
    test::ScratchKeys keys;
    WindowsRegistry registry;
    test::TestSeams world;
    RecordedStarts processes;

    int Launch(std::string document = "C:\\DIR\\page.htm")
    {
        std::string progSpec = ".lstest";
        const Seams seams{world.files, world.messages, processes, world.end, WindowsPaths};
        return LaunchProgram(seams, registry, progSpec, document);
    }

    static std::string NoKey(const std::string& path)
    {
        return "critical|Lodestar Advisor|Failed to open registry key "
               "<<HKEY_LOCAL_MACHINE\\SOFTWARE\\Classes\\" +
               path +
               ">>. You may typed an invalid filetype, or you do not have an appropriate viewer program "
               "registered on "
               "your computer.";
    }
};

struct CommandRow
{
    const char* name;
    const char* command;
    DWORD type;
    const char* line; ///< the started line; null when nothing is started
    int result;
    const char* box; ///< the box; null for none
};

struct RegisteredCommand : RegistryLaunch, testing::WithParamInterface<CommandRow>
{
};

TEST_P(RegisteredCommand, launch_startsItsProgramWithTheDocument)
{
    const CommandRow& row = GetParam();
    keys.Register(".lstest", "lstest.page", row.command, row.type);
    ::SetEnvironmentVariableW(L"LSTEST_WEB", L"C:\\My Web");
    EXPECT_EQ(Launch(), row.result);
    EXPECT_EQ(processes.started, row.line != nullptr ? Strings{row.line} : Strings{});
    EXPECT_EQ(world.messages.Take(), row.box != nullptr ? Strings{row.box} : Strings{});
    EXPECT_FALSE(world.end.Ended());
}

INSTANTIATE_TEST_SUITE_P(
    Table, RegisteredCommand,
    testing::Values(
        CommandRow{"quoted", R"("C:\Program Files\Web\browse.exe" -nohome "%1")", REG_SZ,
                   R"("C:\Program Files\Web\browse.exe" C:\DIR\page.htm)", 0, nullptr},
        CommandRow{"unquoted_cutAtTheFirstBlank", R"(C:\Program Files\Web\browse.exe %1)", REG_SZ,
                   R"(C:\Program C:\DIR\page.htm)", 0, nullptr},
        CommandRow{"withoutArguments", R"(C:\Web\browse.exe)", REG_SZ, R"(C:\Web\browse.exe C:\DIR\page.htm)",
                   0, nullptr},
        CommandRow{"expandable", R"(%LSTEST_WEB%\browse.exe "%1")", REG_EXPAND_SZ,
                   R"("C:\My Web\browse.exe" C:\DIR\page.htm)", 0, nullptr},
        CommandRow{"expandable_systemsVariable", R"(%SystemRoot%\browse.exe)", REG_EXPAND_SZ,
                   R"(C:\windows\browse.exe C:\DIR\page.htm)", 0, nullptr},
        CommandRow{"textWithAVariable_isExpandedToo", R"("%LSTEST_WEB%\browse.exe" -x)", REG_SZ,
                   R"("C:\My Web\browse.exe" C:\DIR\page.htm)", 0, nullptr},
        CommandRow{
            "undefinedVariable", R"(%NoSuchVar%\x.exe)", REG_EXPAND_SZ, nullptr, -2,
            "exclamation|Lodestar Advisor|Error due to undefined symbolic name <<NoSuchVar>>. Check your "
            "registry settings for <<.lstest>>."},
        CommandRow{
            "percentAlone", "50%.exe", REG_SZ, nullptr, -2,
            "exclamation|Lodestar Advisor|Error due to invalid program name <<50%.exe>>. Check your registry "
            "settings for <<.lstest>>."},
        CommandRow{"lettersOfTheCodePage",
                   "C:\\B\xC3\xBC"
                   "cher\\liseuse.exe \"%1\"",
                   REG_SZ,
                   "C:\\B\xC3\xBC"
                   "cher\\liseuse.exe C:\\DIR\\page.htm",
                   0, nullptr},
        CommandRow{"lettersBeyondTheCodePage", "\"C:\\\xCE\xB1\xCE\xB2 Web\\web.exe\" \"%1\"", REG_SZ,
                   "\"C:\\\xCE\xB1\xCE\xB2 Web\\web.exe\" C:\\DIR\\page.htm", 0, nullptr},
        CommandRow{"empty", "", REG_SZ, nullptr, -1, nullptr}),
    [](const auto& row) { return row.param.name; });

TEST_F(RegistryLaunch, missingType_isToldAndGoesOn)
{
    EXPECT_EQ(Launch(), -1);
    EXPECT_EQ(world.messages.Take(), Strings{NoKey(".lstest")});
    EXPECT_FALSE(world.end.Ended());
}

TEST_F(RegistryLaunch, missingCommand_isToldAndGoesOn)
{
    keys.SetText(HKEY_CURRENT_USER, ".lstest", "lstest.page");
    EXPECT_EQ(Launch(), -1);
    EXPECT_EQ(world.messages.Take(), Strings{NoKey("lstest.page\\shell\\open\\command")});
    EXPECT_FALSE(world.end.Ended());
}

TEST_F(RegistryLaunch, machinesKeys_areAskedWhereTheUserHasNone)
{
    keys.SetText(HKEY_LOCAL_MACHINE, ".lstest", "lstest.page");
    keys.SetText(HKEY_LOCAL_MACHINE, "lstest.page\\shell\\open\\command", "C:\\machine.exe %1");
    EXPECT_EQ(Launch(), 0);
    keys.SetText(HKEY_CURRENT_USER, "lstest.page\\shell\\open\\command", "C:\\user.exe %1");
    EXPECT_EQ(Launch(), 0);
    keys.Make(HKEY_CURRENT_USER, ".lstest"); // a key without a value
    EXPECT_EQ(Launch(), 0);
    EXPECT_EQ(processes.started,
              (Strings{"C:\\machine.exe C:\\DIR\\page.htm", "C:\\user.exe C:\\DIR\\page.htm",
                       "C:\\user.exe C:\\DIR\\page.htm"}));
    EXPECT_EQ(world.messages.Take(), Strings{});
}

struct EndRow
{
    const char* name;
    DWORD type; ///< type of a default value of four bytes; REG_NONE: no value
    const char* text;
};

struct RegistryEnd : RegistryLaunch, testing::WithParamInterface<EndRow>
{
};

TEST_P(RegistryEnd, valueThatIsNoText_endsTheProgram)
{
    constexpr DWORD Number = 7;
    if (GetParam().type == REG_NONE) {
        keys.Make(HKEY_CURRENT_USER, ".lstest");
    } else {
        keys.SetBytes(HKEY_CURRENT_USER, ".lstest", GetParam().type, &Number, sizeof Number);
    }
    Launch();
    EXPECT_EQ(world.messages.Take(), Strings{std::string("critical|Lodestar Advisor|") + GetParam().text});
    EXPECT_EQ(world.end.Reason(), GetParam().text);
    EXPECT_EQ(processes.started, Strings{});
}

constexpr const char* NotText = "Registry value for:  is not text.  Program exiting.";

INSTANTIATE_TEST_SUITE_P(
    Table, RegistryEnd,
    testing::Values(EndRow{"number", REG_DWORD, NotText}, EndRow{"bytes", REG_BINARY, NotText},
                    EndRow{"severalTexts", REG_MULTI_SZ, NotText},
                    EndRow{"none", REG_NONE, "Failed to find registry value for:  Program exiting."}),
    [](const auto& row) { return row.param.name; });

// Unusual forms of texts, as older or foreign setup programs write them.
TEST_F(RegistryLaunch, textsKeptOddly_areReadToTheirEnd)
{
    keys.SetText(HKEY_CURRENT_USER, ".lstest", "lstest.page");
    const std::string command = "lstest.page\\shell\\open\\command";
    const std::wstring text = L"C:\\a.exe %1";
    keys.SetBytes(HKEY_CURRENT_USER, command, REG_SZ, text.data(), text.size() * sizeof(wchar_t));
    EXPECT_EQ(Launch(""), 0) << "no NUL at its end";
    const std::wstring several = text + std::wstring(3, L'\0');
    keys.SetBytes(HKEY_CURRENT_USER, command, REG_SZ, several.data(), several.size() * sizeof(wchar_t));
    EXPECT_EQ(Launch(""), 0) << "three NULs at its end";
    keys.SetBytes(HKEY_CURRENT_USER, command, REG_SZ, text.data(), 0);
    EXPECT_EQ(Launch(""), -1) << "an empty value";
    EXPECT_EQ(processes.started, (Strings{"C:\\a.exe", "C:\\a.exe"}));
    EXPECT_FALSE(world.end.Ended());
    EXPECT_EQ(world.messages.Take(), Strings{});
}

} // namespace
} // namespace ls
