#include "platform/linux/LinuxProcesses.h"

#include "ChildProcess.h"
#include "support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <thread>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace ls {
namespace {

struct LinuxProcessesTest : testing::Test
{
    test::ScratchFolder folder;
    LinuxProcesses processes;

    // A script that runs `body`; its output becomes the file "out" in one step.
    std::string Script(const std::string& name, const std::string& body)
    {
        return folder.WriteProgram(name, "#!/bin/sh\n{\n" + body + "\n} > '" + (folder / "out.part") +
                                             "'\nmv '" + (folder / "out.part") + "' '" + (folder / "out") +
                                             "'\n");
    }

    // The output of the script, after it has ended.
    std::string Output()
    {
        for (int i = 0; i < 3000 && !folder.Has("out"); ++i) {
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
        return folder.Read("out");
    }
};

TEST_F(LinuxProcessesTest, environment_names_giveTheirValues)
{
    ::setenv("LSTEST_VALUE", "a value", 1);
    ::setenv("LSTEST_EMPTY", "", 1);
    ::unsetenv("LSTEST_NONE");
    EXPECT_EQ(processes.Environment("LSTEST_VALUE"), "a value");
    EXPECT_EQ(processes.Environment("LSTEST_EMPTY"), "");
    EXPECT_EQ(processes.Environment("LSTEST_NONE"), "");
    EXPECT_EQ(processes.Environment("lstest_value"), "");
    EXPECT_EQ(processes.Environment(""), "");
    EXPECT_EQ(processes.Environment(std::string("LSTEST_VALUE\0", 13)), "");
}

TEST_F(LinuxProcessesTest, programFolder_isThatOfTheRealFile)
{
    const std::filesystem::path program = std::filesystem::canonical("/proc/self/exe");
    EXPECT_EQ(processes.ProgramFolder(), program.parent_path().string());
}

TEST_F(LinuxProcessesTest, start_words_reachTheProgramAsTheyAre)
{
    const std::string script = Script("my browser", R"(printf '<%s>\n' "$@")");
    const Processes::Started started =
        processes.Start("\"" + script + "\" \"a  b\" $HOME ; * `id` 'x y' \\n");
    EXPECT_EQ(started.error, FileError{});
    EXPECT_GT(started.taskId, 0);
    EXPECT_EQ(Output(), "<a  b>\n<$HOME>\n<;>\n<*>\n<`id`>\n<'x>\n<y'>\n<\\n>\n");
}

TEST_F(LinuxProcessesTest, start_bareName_isLookedForInThePath)
{
    Script("lstest-browser", "echo \"$1\"");
    const std::string before = std::getenv("PATH");
    ::setenv("PATH", (folder.Path() + ":" + before).c_str(), 1);
    EXPECT_EQ(processes.Start("lstest-browser page.htm").error, FileError{});
    ::setenv("PATH", before.c_str(), 1);
    EXPECT_EQ(Output(), "page.htm\n");
}

TEST_F(LinuxProcessesTest, start_anyProgram_isNobodysChild)
{
    const std::string script = Script("web", "echo ended");
    for (const std::string& program : {script, folder / "none", folder.Path()}) {
        static_cast<void>(processes.Start(program));
        EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1) << program;
        EXPECT_EQ(errno, ECHILD) << program;
    }
    EXPECT_EQ(Output(), "ended\n");
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1);
}

TEST_F(LinuxProcessesTest, start_program_hasASessionOfItsOwn)
{
    // The sixth field of the stat line is the session; the program's name in that line has no blank here.
    const std::string script = Script("web", "cut -d' ' -f6 /proc/$$/stat");
    const Processes::Started started = processes.Start(script);
    EXPECT_EQ(started.error, FileError{});
    const int session = std::stoi(Output());
    EXPECT_NE(session, ::getsid(0));
    EXPECT_NE(session, started.taskId); // it leads no session, so it never gets a terminal
}

TEST_F(LinuxProcessesTest, start_program_taskIdIsItsProcess)
{
    const Processes::Started started = processes.Start(Script("web", "echo $$"));
    EXPECT_EQ(Output(), std::to_string(started.taskId) + "\n");
}

TEST_F(LinuxProcessesTest, start_openDescriptors_areClosedForTheProgram)
{
    // Two descriptors that a child would inherit, one with a high number.
    const int low = ::open("/dev/zero", O_RDONLY);
    const int high = ::fcntl(low, F_DUPFD, 400);
    ASSERT_GE(high, 400);
    const std::string script = Script("web", "for fd in /proc/$$/fd/*; do "
                                             "case $(readlink $fd) in */zero) echo ${fd##*/};; esac; done; "
                                             "readlink /proc/$$/fd/0 /proc/$$/fd/2");
    EXPECT_EQ(processes.Start(script).error, FileError{});
    EXPECT_EQ(Output(), "/dev/null\n/dev/null\n");
    ::close(low);
    ::close(high);
}

TEST_F(LinuxProcessesTest, start_standardInputClosed_stillHasTheNullDevice)
{
    const std::string script = Script("web", "readlink /proc/$$/fd/0 /proc/$$/fd/2");
    const int input = ::fcntl(0, F_DUPFD_CLOEXEC, 10);
    ASSERT_GE(input, 10);
    ::close(0);
    const FileError error = processes.Start(script).error;
    ::dup2(input, 0);
    ::close(input);
    EXPECT_EQ(error, FileError{});
    EXPECT_EQ(Output(), "/dev/null\n/dev/null\n");
}

TEST_F(LinuxProcessesTest, start_allStandardDescriptorsClosed_programHasThem)
{
    const std::string part = folder / "out.part";
    // Another process reads the shell's descriptors, as a redirection in the shell would change them.
    const std::string script = folder.WriteProgram(
        "web", "#!/bin/sh\nlinks=$(readlink /proc/$$/fd/0 /proc/$$/fd/1 /proc/$$/fd/2)\necho \"$links\" > '" +
                   part + "'\nmv '" + part + "' '" + (folder / "out") + "'\n");
    EXPECT_EQ(test::RunInChild([this, &script] {
                  for (int number = 0; number < 3; ++number) {
                      ::close(number);
                  }
                  return processes.Start(script).error.number;
              }),
              0);
    EXPECT_EQ(Output(), "/dev/null\n/dev/null\n/dev/null\n");
}

TEST_F(LinuxProcessesTest, start_ignoredAndBlockedSignals_areDefaultForTheProgram)
{
    const auto before = std::signal(SIGTERM, SIG_IGN);
    sigset_t blocked;
    sigset_t oldMask;
    ::sigemptyset(&blocked);
    ::sigaddset(&blocked, SIGUSR1);
    ::pthread_sigmask(SIG_BLOCK, &blocked, &oldMask);
    // No script here, because a shell may clear the mask for its commands. cp writes the copy in one piece.
    EXPECT_EQ(processes.Start("cp /proc/self/status " + (folder / "out")).error, FileError{});
    ::pthread_sigmask(SIG_SETMASK, &oldMask, nullptr);
    std::signal(SIGTERM, before);
    while (Output().empty()) {
        std::this_thread::yield();
    }
    EXPECT_NE(Output().find("\nSigBlk:\t0000000000000000\nSigIgn:\t0000000000000000\n"), std::string::npos)
        << Output();
}

TEST_F(LinuxProcessesTest, start_longRunningProgram_isNotWaitedFor)
{
    // The started program waits for a file that the test creates after the start.
    const std::string script =
        // If the test is cut short, its folder disappears and the script ends.
        Script("web", "until [ -e '" + (folder / "go") + "' ] || [ ! -e '" + (folder / "web") +
                          "' ]; do sleep 0.05; done; echo done");
    EXPECT_EQ(processes.Start(script).error, FileError{});
    EXPECT_FALSE(folder.Has("out"));
    folder.Write("go", "");
    EXPECT_EQ(Output(), "done\n");
}

struct StartFailure
{
    const char* name;
    const char* commandLine; // "@" is replaced by the scratch folder
    FileError expected;
};

struct LinuxProcessesFailureTest : LinuxProcessesTest, testing::WithParamInterface<StartFailure>
{
};

TEST_P(LinuxProcessesFailureTest, start_impossible_tellsWhy)
{
    folder.Write("text", "#!/bin/sh\n");
    folder.Write("books/a", "");
    folder.WriteProgram("noprogram", "echo a shell would run this\n");
    folder.WriteProgram("nointerpreter", "#!/no/such/interpreter\n");
    std::string commandLine = GetParam().commandLine;
    if (const std::size_t at = commandLine.find('@'); at != std::string::npos) {
        commandLine.replace(at, 1, folder.Path());
    }
    const Processes::Started started = processes.Start(commandLine);
    EXPECT_EQ(started.error, GetParam().expected);
    EXPECT_EQ(started.taskId, 0);
}

const FileError NotFound{53, "File not found"};
const FileError Denied{70, "Permission denied"};
const FileError Invalid{5, "Invalid procedure call or argument"};

INSTANTIATE_TEST_SUITE_P(
    Table, LinuxProcessesFailureTest,
    testing::Values(StartFailure{"missing", "@/none page.htm", NotFound},
                    StartFailure{"missingFolder", "@/none/web", NotFound},
                    StartFailure{"missingInPath", "lstest-no-such-program", NotFound},
                    StartFailure{"cutAtFirstBlank", "@/Program Files/web page.htm", NotFound},
                    StartFailure{"folder", "@/books", {75, "Path/File access error"}},
                    StartFailure{"notRunnable", "@/text", Denied},
                    StartFailure{"device", "/dev/null", Denied},
                    StartFailure{"noProgram", "@/noprogram", Invalid},
                    StartFailure{"missingInterpreter", "@/nointerpreter", NotFound},
                    StartFailure{"emptyLine", "", Invalid}, StartFailure{"blankLine", "   ", Invalid},
                    StartFailure{"emptyProgram", "\"\" page.htm", NotFound}),
    [](const auto& row) { return row.param.name; });

TEST_F(LinuxProcessesTest, start_tooLongArgument_is5)
{
    const std::string script = Script("web", "");
    EXPECT_EQ(processes.Start(script + " " + std::string(4'000'000, 'x')).error, Invalid);
}

} // namespace
} // namespace ls
