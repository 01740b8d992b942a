#include "browser/APISubs.h"

#include "support/RecordingRegistry.h"
#include "support/TestSeams.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

using Strings = std::vector<std::string>;

struct LaunchProgramTest : testing::Test
{
    test::TestSeams world;
    test::RecordingRegistry registry;
    std::string progSpec;
    std::string document;

    int Launch(const std::string& program, const std::string& page)
    {
        progSpec = program;
        document = page;
        return LaunchProgram(world.Get(), registry, progSpec, document);
    }

    // The single box that was shown.
    std::string Box()
    {
        EXPECT_EQ(world.messages.boxes.size(), 1U);
        return world.messages.boxes.empty() ? std::string() : world.messages.boxes.front();
    }
};

struct LineRow
{
    const char* name;
    const char* progSpec;
    const char* document;
    const char* commandLine;
};

struct WindowsLineTest : LaunchProgramTest, testing::WithParamInterface<LineRow>
{
    WindowsLineTest()
    {
        world.paths = WindowsPaths;
        world.files.currentFolder = "C:\\DIR";
        world.processes.environment = {{"SystemRoot", "C:\\WINDOWS"}, {"ProgramFiles", "C:\\Program Files"}};
        registry.RegisterForUser(".HTM", "htmlfile", R"("C:\Program Files\Web\browse.exe" -nohome "%1")");
        registry.RegisterForUser(".CUT", "cutfile", R"(C:\Program Files\Web\browse.exe %1)");
        registry.RegisterForUser(".ENV", "envfile", R"("%ProgramFiles%\Web\browse.exe" "%1")");
        registry.RegisterForUser(".txt", "txtfile", R"(  note.exe %1)");
    }
};

TEST_P(WindowsLineTest, launchProgram_specAndDocument_startsTheLine)
{
    EXPECT_EQ(Launch(GetParam().progSpec, GetParam().document), 0);
    EXPECT_EQ(world.processes.started, Strings{GetParam().commandLine});
    EXPECT_TRUE(world.messages.boxes.empty());
}

INSTANTIATE_TEST_SUITE_P(
    Table, WindowsLineTest,
    testing::Values(
        LineRow{"registeredAndRequoted", ".HTM", "C:\\DIR\\page.htm",
                R"("C:\Program Files\Web\browse.exe" C:\DIR\page.htm)"},
        LineRow{"registeredUnquotedIsCut", ".CUT", "C:\\DIR\\page.htm", R"(C:\Program C:\DIR\page.htm)"},
        LineRow{"registeredWithVariable", ".ENV", "C:\\p.htm",
                R"("C:\Program Files\Web\browse.exe" C:\p.htm)"},
        LineRow{"registeredWithBlanksBefore", ".txt", "C:\\p.txt", R"(note.exe C:\p.txt)"},
        LineRow{"pathWithVariable", "%SystemRoot%\\browse.exe", "C:\\p.htm",
                R"(C:\WINDOWS\browse.exe C:\p.htm)"},
        LineRow{"pathWithBlank", "C:\\My Web\\b.exe", "C:\\p.htm", R"("C:\My Web\b.exe" C:\p.htm)"},
        LineRow{"pathAlreadyQuoted", "\"C:\\My Web\\b.exe\"", "C:\\p.htm", R"("C:\My Web\b.exe" C:\p.htm)"},
        LineRow{"noDocument", "b.exe", "", "b.exe"},
        LineRow{"bareDocument", "b.exe", "page.htm", R"(b.exe C:\DIR\page.htm)"},
        LineRow{"bareDocumentWithBlank", "b.exe", "my page.htm", R"(b.exe "C:\DIR\my page.htm")"},
        LineRow{"documentWithBlank", "b.exe", "C:\\A B\\page.htm", R"(b.exe "C:\A B\page.htm")"},
        LineRow{"documentAlreadyQuoted", "b.exe", "\"C:\\A B\\p.htm\"", R"(b.exe "C:\A B\p.htm")"},
        LineRow{"address", "b.exe", "http://h/p?q=1", "b.exe http://h/p?q=1"},
        LineRow{"addressInCapitals", "b.exe", "HTTP://H/P", "b.exe HTTP://H/P"},
        LineRow{"safeAddress", "b.exe", "https://h/p", "b.exe https://h/p"},
        LineRow{"percentInTheDocument", "b.exe", "http://h/a%20b", "b.exe http://h/a%20b"}),
    [](const auto& row) { return row.param.name; });

TEST_F(LaunchProgramTest, launchProgram_unixPaths_slashIsTheSeparator)
{
    world.files.currentFolder = "/home/u";
    registry.RegisterForUser(".HTM", "web.desktop", "/usr/bin/web %u");
    EXPECT_EQ(Launch(".HTM", "my page.htm"), 0);
    EXPECT_EQ(Launch(".HTM", "/d/page.htm"), 0);
    EXPECT_EQ(world.processes.started,
              (Strings{"/usr/bin/web \"/home/u/my page.htm\"", "/usr/bin/web /d/page.htm"}));
}

TEST_F(LaunchProgramTest, launchProgram_arguments_areRewritten)
{
    world.files.currentFolder = "/home/u";
    registry.RegisterForUser(".HTM", "web.desktop", "\"/opt/My Web/web\" %u");
    EXPECT_EQ(Launch(".HTM", "my page.htm"), 0);
    EXPECT_EQ(progSpec, "\"/opt/My Web/web\"");
    EXPECT_EQ(document, "\"/home/u/my page.htm\"");
}

TEST_F(LaunchProgramTest, launchProgram_fileType_asksForClassAndCommand)
{
    registry.RegisterForUser(".HTM", "htmlfile", "web %1");
    EXPECT_EQ(Launch(".HTM", ""), 0);
    EXPECT_EQ(registry.opened, (Strings{"HKCU\\SOFTWARE\\Classes\\.HTM",
                                        "HKCU\\SOFTWARE\\Classes\\htmlfile\\shell\\open\\command"}));
}

TEST_F(LaunchProgramTest, launchProgram_path_leavesTheRegistryAlone)
{
    EXPECT_EQ(Launch("/usr/bin/web", "/p.htm"), 0);
    EXPECT_TRUE(registry.opened.empty());
}

TEST_F(LaunchProgramTest, launchProgram_unknownFileType_isMinusOne)
{
    EXPECT_EQ(Launch(".QQQ", "/p.htm"), -1);
    EXPECT_EQ(Box(), "critical|Lodestar Advisor|Failed to open registry key "
                     "<<HKEY_LOCAL_MACHINE\\SOFTWARE\\Classes\\.QQQ>>. You may typed an invalid filetype, or "
                     "you do not have an appropriate viewer program registered on your computer.");
    EXPECT_TRUE(world.processes.started.empty());
    EXPECT_FALSE(world.end.Ended());
}

TEST_F(LaunchProgramTest, launchProgram_classWithoutCommand_saysSoAndIsMinusOne)
{
    registry.keys["HKLM\\SOFTWARE\\Classes\\.HTM"] = test::RecordingRegistry::Value{"htmlfile"};
    EXPECT_EQ(Launch(".HTM", "/p.htm"), -1);
    EXPECT_EQ(Box(),
              "critical|Lodestar Advisor|Failed to open registry key "
              "<<HKEY_LOCAL_MACHINE\\SOFTWARE\\Classes\\htmlfile\\shell\\open\\command>>. You may typed "
              "an invalid filetype, or you do not have an appropriate viewer program registered on "
              "your computer.");
    EXPECT_EQ(registry.opened.size(), 4U);
    EXPECT_TRUE(world.processes.started.empty());
}

TEST_F(LaunchProgramTest, launchProgram_emptyClassOrCommand_isMinusOneAndSilent)
{
    registry.RegisterForUser(".HTM", "", "web %1");
    EXPECT_EQ(Launch(".HTM", "/p.htm"), -1);
    registry.RegisterForUser(".HTM", "htmlfile", "");
    EXPECT_EQ(Launch(".HTM", "/p.htm"), -1);
    registry.RegisterForUser(".HTM", "htmlfile", "   ");
    EXPECT_EQ(Launch(".HTM", "/p.htm"), -1);
    EXPECT_TRUE(world.messages.boxes.empty());
    EXPECT_TRUE(world.processes.started.empty());
}

TEST_F(LaunchProgramTest, launchProgram_registryFault_endsTheProgramAndStartsNothing)
{
    registry.keys["HKCU\\SOFTWARE\\Classes\\.HTM"] = test::RecordingRegistry::Value{"x", 4};
    EXPECT_EQ(Launch(".HTM", "/p.htm"), -1);
    EXPECT_EQ(Box(), "critical|Lodestar Advisor|Registry value for:  is not text.  Program exiting.");
    EXPECT_TRUE(world.end.Ended());
    EXPECT_EQ(Launch("/usr/bin/web", "/p.htm"), -3);
    EXPECT_TRUE(world.processes.started.empty());
}

TEST_F(LaunchProgramTest, launchProgram_lonePercent_isE1)
{
    EXPECT_EQ(Launch("50%.exe", ""), -2);
    EXPECT_EQ(Box(), "exclamation|Lodestar Advisor|Error due to invalid program name <<50%.exe>>. ");
    EXPECT_TRUE(world.processes.started.empty());
}

TEST_F(LaunchProgramTest, launchProgram_percentAtTheEnd_isE1)
{
    world.processes.environment = {{"A", "a"}};
    EXPECT_EQ(Launch("%A%50%", ""), -2);
    EXPECT_EQ(Box(), "exclamation|Lodestar Advisor|Error due to invalid program name <<a50%>>. ");
}

TEST_F(LaunchProgramTest, launchProgram_registeredPercent_isE1WithTheFileType)
{
    registry.RegisterForUser(".HTM", "htmlfile", "50%.exe %1");
    EXPECT_EQ(Launch(".HTM", ""), -2);
    EXPECT_EQ(Box(), "exclamation|Lodestar Advisor|Error due to invalid program name <<50%.exe>>. Check your "
                     "registry settings for <<.HTM>>.");
}

TEST_F(LaunchProgramTest, launchProgram_endlessVariables_isE1)
{
    world.processes.environment = {{"A", "%B%"}, {"B", "%A%"}};
    EXPECT_EQ(Launch("%A%.exe", ""), -2);
    EXPECT_EQ(Box(), "exclamation|Lodestar Advisor|Error due to invalid program name <<%A%.exe>>. ");
}

TEST_F(LaunchProgramTest, launchProgram_undefinedVariable_isE2)
{
    EXPECT_EQ(Launch("%NoSuchVar%\\x.exe", ""), -2);
    EXPECT_EQ(Box(), "exclamation|Lodestar Advisor|Error due to undefined symbolic name <<NoSuchVar>>. ");
    EXPECT_TRUE(world.processes.started.empty());
}

TEST_F(LaunchProgramTest, launchProgram_registeredUndefinedVariable_isE2WithTheFileType)
{
    registry.RegisterForUser(".HTM", "htmlfile", "%NoSuchVar%\\x.exe %1");
    EXPECT_EQ(Launch(".HTM", ""), -2);
    EXPECT_EQ(Box(), "exclamation|Lodestar Advisor|Error due to undefined symbolic name <<NoSuchVar>>. Check "
                     "your registry settings for <<.HTM>>.");
}

TEST_F(LaunchProgramTest, launchProgram_startRaisesError_isE3)
{
    world.processes.result = {MakeFileError(error::FileNotFound), 0};
    EXPECT_EQ(Launch("/opt/My Web/web", "/p.htm"), -3);
    EXPECT_EQ(Box(), "exclamation|Lodestar Advisor|Error # 53 on command line <<\"/opt/My Web/web\" /p.htm>> "
                     "because of: File not found");
}

TEST_F(LaunchProgramTest, launchProgram_negativeErrorNumber_hasNoBlank)
{
    world.processes.result = {{-2147467259, "Unspecified error"}, 0};
    EXPECT_EQ(Launch("web", ""), -3);
    EXPECT_EQ(Box(), "exclamation|Lodestar Advisor|Error #-2147467259 on command line <<web>> because of: "
                     "Unspecified error");
}

TEST_F(LaunchProgramTest, launchProgram_taskIdZero_isE4)
{
    world.processes.result = {{}, 0};
    EXPECT_EQ(Launch("/usr/bin/web", "/p.htm"), -3);
    EXPECT_EQ(Box(), "exclamation|Lodestar Advisor|Failed to start program with command line: "
                     "<</usr/bin/web /p.htm>>");
}

TEST_F(LaunchProgramTest, launchProgram_pathThatIsNoUtf8_isShownAndStartsAsItIs)
{
    EXPECT_EQ(Launch("/opt/na\xefve/web", ""), 0);
    EXPECT_EQ(world.processes.started, Strings{"/opt/na\xefve/web"});
    world.processes.result = {{}, 0};
    EXPECT_EQ(Launch("/opt/na\xefve/web", ""), -3);
    EXPECT_EQ(Box(), "exclamation|Lodestar Advisor|Failed to start program with command line: "
                     "<</opt/na\xef\xbf\xbdve/web>>");
}

} // namespace
} // namespace ls
