#include "platform/windows/WindowsProcesses.h"

#include "ScratchKeys.h"
#include "browser/APISubs.h"
#include "platform/SystemSeams.h"
#include "platform/windows/WindowsFileSystem.h"
#include "platform/windows/WindowsRegistry.h"
#include "support/RecordingMessages.h"
#include "support/ScratchFolder.h"

#include <chrono>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <thread>

namespace ls {
namespace {

using Strings = std::vector<std::string>;

void SetVariable(const char* name, const std::string& value)
{
    ::SetEnvironmentVariableW(ToWide(name)->c_str(), ToWide(value)->c_str());
}

/// A program with a blank in its folder that writes how it was started; see Peer.cpp.
struct WindowsProcessesTest : testing::Test
{
    test::ScratchFolder folder;
    WindowsFileSystem files;
    WindowsProcesses processes;
    std::string program = folder.MakeFolder("My Web") + "\\web.exe";
    std::string oldFolder = files.CurrentFolder();

    WindowsProcessesTest()
    {
        std::filesystem::copy_file(LS_PEER, *ToWide(program));
        SetVariable("LSTEST_REPORT", folder / "report");
    }
    ~WindowsProcessesTest() override
    {
        ::SetEnvironmentVariableW(L"LSTEST_REPORT", nullptr);
        ::SetCurrentDirectoryW(ToWide(oldFolder)->c_str());
    }

    void GoTo(const std::string& path)
    {
        ASSERT_NE(::SetCurrentDirectoryW(ToWide(path)->c_str()), 0) << path;
    }

    // The program's line, what it reads of it, how to show its window, and its folder.
    Strings Report()
    {
        const std::filesystem::path report = *ToWide(folder / "report");
        // The file has its name shortly before the program lets others open it.
        for (int i = 0; i < 3000 && !std::ifstream(report).is_open(); ++i) {
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
        Strings lines;
        std::istringstream text(folder.Read("report"));
        for (std::string line; std::getline(text, line);) {
            lines.push_back(line);
        }
        std::filesystem::remove(report);
        lines.resize(4);
        return lines;
    }
};

TEST_F(WindowsProcessesTest, environment_names_giveTheirValues)
{
    SetVariable("LSTEST_VALUE", "a value");
    SetVariable("LSTEST_WIDE", "\xCE\xB1\xCE\xB2 \xE2\x82\xAC");
    SetVariable("LSTEST_LONG", std::string(5000, 'x'));
    EXPECT_EQ(processes.Environment("LSTEST_VALUE"), "a value");
    EXPECT_EQ(processes.Environment("lstest_value"), "a value") << "names have no case";
    EXPECT_EQ(processes.Environment("LSTEST_WIDE"), "\xCE\xB1\xCE\xB2 \xE2\x82\xAC")
        << "beyond the code page";
    EXPECT_EQ(processes.Environment("LSTEST_LONG"), std::string(5000, 'x'));
    EXPECT_EQ(processes.Environment("LSTEST_NONE"), "");
    EXPECT_EQ(processes.Environment(""), "");
    EXPECT_EQ(processes.Environment(std::string("LSTEST_VALUE\0", 13)), "");
}

TEST_F(WindowsProcessesTest, stateFolder_isBelowTheUsersLocalOne)
{
    const std::string local = processes.Environment("LOCALAPPDATA");
    EXPECT_NE(local, "");
    EXPECT_EQ(StateFolder(processes), local + "\\Lodestar Advisor");
    SetVariable("LOCALAPPDATA", "not a full path");
    EXPECT_EQ(StateFolder(processes), "");
    SetVariable("LOCALAPPDATA", local);
}

TEST_F(WindowsProcessesTest, programFolder_isThatOfTheRunningProgram)
{
    const std::filesystem::path expected = std::filesystem::path(LS_PEER).parent_path();
    EXPECT_TRUE(std::filesystem::equivalent(*ToWide(processes.ProgramFolder()), expected))
        << processes.ProgramFolder();
    EXPECT_FALSE(processes.ProgramFolder().ends_with('\\'));
}

TEST_F(WindowsProcessesTest, start_commandLine_reachesTheProgramAsItStands)
{
    GoTo(folder.Path());
    const std::string line = "\"" + program + "\" C:\\My Books\\Guide.IDA  /topic=\"A  \"\"B\" /x=\xCE\xB1";
    const Processes::Started started = processes.Start(line);
    EXPECT_EQ(started.error, FileError{});
    EXPECT_NE(started.taskId, 0);
    EXPECT_EQ(Report(), (Strings{line, "C:\\My Books\\Guide.IDA||A  \"\"B|invalid",
                                 std::to_string(SW_SHOWNORMAL), folder.Path()}));
}

TEST_F(WindowsProcessesTest, start_parametersOfTheBook_areReadFromTheOneString)
{
    EXPECT_EQ(processes
                  .Start("\"" + program +
                         "\" Gr\xC3\xB6\xC3\x9F"
                         "e.IDA /INIDIR=C:\\Mine /TOPIC=Caf\xC3\xA9")
                  .error,
              FileError{});
    EXPECT_EQ(Report()[1], "Gr\xC3\xB6\xC3\x9F"
                           "e.IDA|C:\\Mine|Caf\xC3\xA9|valid");
}

TEST_F(WindowsProcessesTest, start_unquotedProgram_isItsFirstWord)
{
    std::filesystem::copy_file(LS_PEER, *ToWide(folder / "web.exe"));
    EXPECT_EQ(processes.Start(folder / "web" + " page.htm").error, FileError{}) << "its type may be left out";
    EXPECT_EQ(Report()[1], "page.htm|||valid");
    EXPECT_EQ(processes.Start(program + " page.htm").error, MakeFileError(error::FileNotFound))
        << "the program ends at the first blank";
}

TEST_F(WindowsProcessesTest, start_bareName_isLookedForInThePathOnly)
{
    const std::string path = processes.Environment("PATH");
    GoTo(folder / "My Web");
    EXPECT_EQ(processes.Start("web.exe page.htm").error, MakeFileError(error::FileNotFound));
    SetVariable("PATH", (folder / "My Web") + ";" + path);
    EXPECT_EQ(processes.Start("web page.htm").error, FileError{});
    SetVariable("PATH", path);
    EXPECT_EQ(Report()[1], "page.htm|||valid");
}

struct FailureRow
{
    const char* name;
    const char* commandLine; ///< "@" is replaced by the scratch folder
    int expected;
};

struct WindowsProcessesFailureTest : WindowsProcessesTest, testing::WithParamInterface<FailureRow>
{
};

TEST_P(WindowsProcessesFailureTest, start_impossible_tellsWhy)
{
    folder.Write("text.exe", "no program at all");
    folder.Write("run.bat", "@echo off\r\n");
    folder.MakeFolder("books.exe");
    std::string line = GetParam().commandLine;
    for (std::size_t at = line.find('@'); at != std::string::npos; at = line.find('@')) {
        line.replace(at, 1, folder.Path());
    }
    const Processes::Started started = processes.Start(line);
    EXPECT_EQ(started.error, MakeFileError(GetParam().expected));
    EXPECT_EQ(started.taskId, 0);
}

INSTANTIATE_TEST_SUITE_P(Table, WindowsProcessesFailureTest,
                         testing::Values(FailureRow{"missing", "@\\none.exe page.htm", 53},
                                         FailureRow{"missingFolder", "@\\none\\web.exe", 53},
                                         FailureRow{"missingInPath", "lstest-no-such-program", 53},
                                         FailureRow{"missingDrive", "Q:\\web.exe", 53},
                                         FailureRow{"cutAtFirstBlank", "@\\My Web\\web.exe page.htm", 53},
                                         FailureRow{"folder", "@\\books.exe", 75},
                                         FailureRow{"noProgram", "@\\text.exe", 5},
                                         FailureRow{"batchFile", "@\\run.bat", 5},
                                         FailureRow{"batchFileWithADot", "@\\run.bat.", 5},
                                         FailureRow{"emptyLine", "", 5}, FailureRow{"blankLine", "   ", 5},
                                         FailureRow{"emptyProgram", "\"\" page.htm", 53},
                                         FailureRow{"notUtf8", "@\\\xFF.exe", 5}),
                         [](const auto& row) { return row.param.name; });

// The whole launch: the registry names a program, and it gets the page.
TEST_F(WindowsProcessesTest, launchProgram_pageInTheCurrentFolder_reachesTheBrowser)
{
    test::ScratchKeys keys;
    keys.Register(".lstest", "lstest.page", "\"" + program + "\" -new \"%1\"");
    GoTo(folder.Path());
    ProgramEnd end;
    test::RecordingMessages messages{end};
    const Seams seams{files, messages, processes, end, WindowsPaths};
    WindowsRegistry registry;
    std::string progSpec = ".lstest";
    std::string document = "my page.htm";
    EXPECT_EQ(LaunchProgram(seams, registry, progSpec, document), 0);
    EXPECT_EQ(Report()[0], "\"" + program + "\" \"" + folder / "my page.htm" + "\"");
    EXPECT_EQ(messages.Take(), Strings{});

    keys.Register(".lstest", "lstest.page", program + " %1");
    progSpec = ".lstest";
    document = "C:\\page.htm";
    EXPECT_EQ(LaunchProgram(seams, registry, progSpec, document), -3);
    const std::string cut = program.substr(0, program.find(' '));
    EXPECT_EQ(messages.Take(), Strings{"exclamation|Lodestar Advisor|Error # 53 on command line <<" + cut +
                                       " C:\\page.htm>> because of: File not found"});
}

} // namespace
} // namespace ls
