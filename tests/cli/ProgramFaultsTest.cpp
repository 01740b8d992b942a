// The built program on a system that refuses: full devices, limits of the user, missing rights, folders in
// place of files.

#include "platform/ChildProcess.h"
#include "support/RowName.h"
#include "support/ScratchFolder.h"
#include "support/TestSeams.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>

#include <pty.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace ls {
namespace {

const std::string SmallBook =
    test::CrLf({"LODESTAR BOOK V5.3", "[A]", "text", "<IXML>", "<LOGIC>", "TARGET R", "R(1)=X(1)",
                "R(2)=X(2)", "</LOGIC>", "<DEFINITIONS>", "<Q ID=R></Q>", "<Q ID=X>x?</Q>",
                "<AV ID=R(1)>One.</AV>", "<AV ID=R(2)>Two.</AV>", "</DEFINITIONS>", "</IXML>"});

class ProgramFaults : public testing::Test
{
protected:
    void SetUp() override
    {
        scratch.Write("a.IDA", SmallBook);
        scratch.Write("long.IDA", "LODESTAR BOOK V5.3\r\n[A]\r\n" + std::string(100'000, 'x') + "\r\n");
        scratch.Write("notes.txt", std::string(100'000, 'x') + "\n");
        scratch.Write("answers.json", "[[\"1\"]]");
        scratch.MakeFolder("folder");
    }

    // Runs lsbook with arguments written for a shell, after the shell commands of `setUp`; returns its
    // status.
    int Run(const std::string& setUp, const std::string& arguments)
    {
        const std::string command =
            "cd '" + scratch.Path() + "' && " + setUp + " '" LS_LSBOOK "' " + arguments;
        const int status = std::system(command.c_str()); // the shell is part of the test
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    test::ScratchFolder scratch;
};

struct Row
{
    const char* name;
    const char* setUp;
    const char* arguments;
    const char* told; ///< expected on standard error
};

class Refusals : public ProgramFaults, public testing::WithParamInterface<Row>
{
};

TEST_P(Refusals, command_isToldWithStatusThreeAndLeavesTheOldFile)
{
    scratch.Write("out", "older");
    EXPECT_EQ(Run(GetParam().setUp, std::string(GetParam().arguments) + " </dev/null 2>stderr"), 3);
    EXPECT_EQ(scratch.Read("stderr"), std::string(GetParam().told) + "\n");
    EXPECT_EQ(scratch.Read("out"), "older");
    EXPECT_EQ(scratch.Read("a.IDA"), SmallBook);
    EXPECT_FALSE(scratch.Has("out.new"));
    EXPECT_FALSE(scratch.Has("new"));
}

constexpr const char* NoOutput = "lsbook: standard output cannot be written";
constexpr const char* Full = "warning: Failed to write due to error #61: Disk full";

// One descriptor besides the standard streams. 3 is closed first, because a caller may have left it open.
constexpr const char* FourDescriptors = "exec 3>&-; prlimit --nofile=4";

const Row Rows[] = {
    {"infoFull", "", "info a.IDA >/dev/full", NoOutput},
    {"topicsFull", "", "topics a.IDA >/dev/full", NoOutput},
    {"showFull", "", "show a.IDA A >/dev/full", NoOutput},
    {"textFull", "", "text a.IDA A --json >/dev/full", NoOutput},
    {"pagesFull", "", "pages a.IDA A >/dev/full", NoOutput},
    {"adviseFull", "", "advise a.IDA A --answers-json answers.json >/dev/full", NoOutput},
    {"exploreFull", "", "advise a.IDA A --explore >/dev/full", NoOutput},
    {"saveSizeFull", "", "save a.IDA saved >/dev/full", NoOutput},
    {"helpFull", "", "--help >/dev/full", NoOutput},
    {"versionFull", "", "--version >/dev/full", NoOutput},
    {"saveBeyondLimit", "ulimit -f 8;", "save long.IDA out --force", Full},
    {"saveNewBeyondLimit", "ulimit -f 8;", "save long.IDA new", Full},
    {"exportBeyondLimit", "ulimit -f 8;", "export long.IDA A -o out --force", Full},
    {"exportNewBeyondLimit", "ulimit -f 8;", "export long.IDA A -o new", Full},
    {"convertBeyondLimit", "ulimit -f 8;", "convert notes.txt out --force", Full},
    {"saveNoDescriptor", FourDescriptors, "save a.IDA new",
     "warning: Failed to open output file due to error #67: Too many files"},
    {"exportNoDescriptor", FourDescriptors, "export a.IDA A -o new",
     "warning: Failed to open <<new>> due to error #67: Too many files."},
    {"convertNoDescriptor", FourDescriptors, "convert notes.txt new",
     "warning: Failed to open output file due to error #67: Too many files"},
    {"infoOfFolder", "", "info folder",
     "critical: Error opening <<folder>> with code 75: Path/File access error"},
    {"convertFolder", "", "convert folder new",
     "critical: Error opening <<folder>> with code 75: Path/File access error"},
    {"exportOverFolder", "", "export a.IDA A -o folder --force",
     "warning: Failed to open <<folder>> due to error #75: Path/File access error."},
    {"saveOverFolder", "", "save a.IDA folder --force",
     "warning: Failed to open output file due to error #75: Path/File access error"},
    {"answersFromFolder", "", "advise a.IDA A --answers-json folder",
     "critical: Error reading <<folder>> with code 75: Path/File access error"},
    {"exportOverDevice", "", "export a.IDA A -o /dev/full --force",
     "warning: Failed to open <</dev/full>> due to error #68: Device unavailable."},
    {"missingFolder", "", "save a.IDA none/new",
     "warning: Failed to open output file due to error #76: Path not found"},
};

INSTANTIATE_TEST_SUITE_P(System, Refusals, testing::ValuesIn(Rows), test::RowName());

TEST_F(ProgramFaults, inputThatIsNoTerminal_isNotRead)
{
    EXPECT_EQ(Run("", "advise a.IDA A <folder >stdout 2>stderr"), 0);
    EXPECT_EQ(scratch.Read("stderr"), "");
    EXPECT_TRUE(scratch.Read("stdout").ends_with("No answer is left for this question.\n"));
}

// Runs lsbook in the background of a terminal, where reading from the terminal fails with EIO.
int RunBehindTerminal(const std::string& folder)
{
    int terminal = -1;
    const pid_t shell = ::forkpty(&terminal, nullptr, nullptr, nullptr);
    if (shell == 0) {
        const pid_t job = ::fork();
        if (job == 0) {
            ::setpgid(0, 0);
            std::signal(SIGTTIN, SIG_IGN); // else the signal would stop it
            ::execl("/bin/sh", "sh", "-c", "cd \"$1\" && exec \"$0\" advise a.IDA A >stdout 2>stderr",
                    LS_LSBOOK, folder.c_str(), nullptr);
            ::_exit(127);
        }
        int status = -1;
        ::waitpid(job, &status, 0);
        ::_exit(WIFEXITED(status) ? WEXITSTATUS(status) : 127);
    }
    int status = -1;
    EXPECT_EQ(::waitpid(shell, &status, 0), shell);
    ::close(terminal);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST_F(ProgramFaults, terminalThatCannotBeRead_endsTheDialogueAndIsTold)
{
    EXPECT_EQ(RunBehindTerminal(scratch.Path()), 3);
    EXPECT_EQ(scratch.Read("stderr"), "lsbook: standard input cannot be read\n");
    EXPECT_TRUE(scratch.Read("stdout").ends_with("Your Answer: \nNo answer is left for this question.\n"));
}

// Root has all rights, so an ordinary user runs these.
TEST_F(ProgramFaults, rightsThatLack_areToldWithStatusThree)
{
    ASSERT_EQ(::chmod(scratch.Path().c_str(), 0755), 0);
    ASSERT_EQ(::chmod(scratch.Write("secret.IDA", SmallBook).c_str(), 0), 0);
    ASSERT_EQ(::chmod(scratch.Write("fixed", "older").c_str(), 0444), 0);
    scratch.Write("stderr", "");
    ASSERT_EQ(::chmod((scratch / "stderr").c_str(), 0666), 0);
    const std::pair<const char*, const char*> cases[] = {
        {"info secret.IDA", "critical: Error opening <<secret.IDA>> with code 70: Permission denied\n"},
        {"save a.IDA new", "warning: Failed to open output file due to error #70: Permission denied\n"},
        {"export a.IDA A -o new", "warning: Failed to open <<new>> due to error #70: Permission denied.\n"},
        {"export a.IDA A -o fixed --force",
         "warning: Failed to open <<fixed>> due to error #70: Permission denied.\n"},
        {"save a.IDA fixed --force",
         "warning: Failed to open output file due to error #70: Permission denied\n"},
        {"advise a.IDA A --answers-json secret.IDA",
         "critical: Error reading <<secret.IDA>> with code 70: Permission denied\n"},
    };
    for (const auto& [line, told] : cases) {
        const std::string arguments = line;
        const int status = test::RunInChild(
            [&] { return test::BecomeOrdinaryUser() ? Run("", arguments + " </dev/null 2>stderr") : 255; });
        EXPECT_EQ(status, 3) << arguments;
        EXPECT_EQ(scratch.Read("stderr"), told);
        EXPECT_EQ(scratch.Read("fixed"), "older");
    }
}

} // namespace
} // namespace ls
