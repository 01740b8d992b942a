// The built program, as a shell runs it: exact streams and exit status.

#include "ProgramFixture.h"

#include "platform/linux/LinuxFileSystem.h"
#include "support/Json.h"
#include "support/TestSeams.h"

#include <pty.h>
#include <unistd.h>

#include <array>
#include <cstdlib>

namespace ls {
namespace {

using test::Json;

class Program : public test::ProgramFixture
{
};

TEST_F(Program, version_onStandardOutput)
{
    EXPECT_EQ(Run("--version"), 0);
    EXPECT_EQ(out, "lsbook " LS_VERSION "\n");
    EXPECT_EQ(err, "");
}

TEST_F(Program, wrongUsage_onStandardError)
{
    EXPECT_EQ(Run("show"), 2);
    EXPECT_EQ(out, "");
    EXPECT_EQ(err, "lsbook show: BOOK is missing\nTry \"lsbook help show\".\n");
}

TEST_F(Program, missingFile_endsWithThree)
{
    EXPECT_EQ(Run("info 'no such.IDA'"), 3);
    EXPECT_EQ(out, "");
    EXPECT_EQ(err, "critical: Error opening <<no such.IDA>> with code 53: File not found\n");
}

TEST_F(Program, folder_endsWithThree)
{
    EXPECT_EQ(Run("topics ."), 3);
    EXPECT_EQ(err, "critical: Error opening <<.>> with code 75: Path/File access error\n");
}

TEST_F(Program, noBook_endsWithOne)
{
    scratch.Write("a.txt", "Hello\r\n");
    EXPECT_EQ(Run("show a.txt A"), 1);
    EXPECT_EQ(out, "");
    EXPECT_EQ(err, "question: The file you opened is not a Lodestar Book or Advice file. Do you want to view "
                   "it as a single topic text file?\nlsbook: --plain takes it as plain text.\n");
    EXPECT_EQ(Run("show a.txt --plain"), 0);
    EXPECT_EQ(out, "Hello\n");
}

TEST_F(Program, topicByAnAccentedTitle_isShown)
{
    scratch.Write("a.IDA", test::CrLf({"LODESTAR BOOK V5.3", "[Caf\xE9]", "<B>Caf\xE9</B> &AMP; \x80 5"}));
    EXPECT_EQ(Run("show a.IDA Café"), 0);
    EXPECT_EQ(out, "Café & € 5\n") << "a pipe gets no styles";
    EXPECT_EQ(err, "");
}

TEST_F(Program, fullOutput_endsWithThree)
{
    scratch.Write("a.IDA", test::CrLf({"LODESTAR BOOK V5.3", "[A]", "x"}));
    const std::string command =
        "'" LS_LSBOOK "' topics '" + scratch.Path() + "/a.IDA' >/dev/full 2>'" + scratch.Path() + "/stderr'";
    const int status = std::system(command.c_str()); // NOLINT(cert-env33-c)
    EXPECT_EQ(WEXITSTATUS(status), 3);
    EXPECT_EQ(scratch.Read("stderr"), "lsbook: standard output cannot be written\n");
}

TEST_F(Program, advise_statusTellsHowTheDialogueEnded)
{
    scratch.Write("a.IDA", test::CrLf({"LODESTAR BOOK V5.3", "[A]", "<IXML>", "<LOGIC>", "TARGET R",
                                       "R(1)=X(\xC9)", "R(2)=X(NO)", "<DEFINITIONS>", "<Q ID=X>x?</Q>",
                                       "<Q ID=R>", "<AV ID=R(1)>One.</AV>", "[B]", "<IXML>", "<LOGIC>",
                                       "AV(1)=AV(1)", "<DEFINITIONS>"}));
    EXPECT_EQ(Run("advise a.IDA A --answers É"), 0);
    EXPECT_EQ(out, "Advisor: A\n\nx?\n  1) É\n  2) NO\n> É\n\nAdvice R(1):\nOne.\n");
    EXPECT_EQ(Run("advise a.IDA A --answers MAYBE"), 2);
    EXPECT_EQ(Run("advise a.IDA B"), 4);
    EXPECT_EQ(err, "critical: Warning--circular definition\n");
}

// Runs `lsbook show a.IDA A` in a folder, on a terminal that is 20 characters wide; gives what stands there.
std::string ShowOnTerminal(const std::string& folder)
{
    winsize size{};
    size.ws_row = 25;
    size.ws_col = 20;
    int terminal = -1;
    const pid_t child = forkpty(&terminal, nullptr, nullptr, &size);
    if (child == 0) {
        unsetenv("NO_COLOR");
        setenv("TERM", "xterm", 1);
        if (chdir(folder.c_str()) == 0) {
            execl(LS_LSBOOK, "lsbook", "show", "a.IDA", "A", nullptr);
        }
        _exit(127);
    }
    std::string shown;
    std::array<char, 4096> block{};
    for (ssize_t got = 0; (got = read(terminal, block.data(), block.size())) > 0;) {
        shown.append(block.data(), static_cast<std::size_t>(got));
    }
    close(terminal);
    int status = -1;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
    return shown;
}

TEST_F(Program, terminal_givesStylesAndItsWidth)
{
    scratch.Write("a.IDA", test::CrLf({"LODESTAR BOOK V5.3", "[A]", "<B>one</B> two three four five"}));
    EXPECT_EQ(ShowOnTerminal(scratch.Path()), "\033[1mone\033[0m two three four\r\nfive\r\n");
}

TEST_F(Program, bookLockedElsewhere_isDenied)
{
    const std::string path = scratch.Write("a.IDA", test::CrLf({"LODESTAR BOOK V5.3", "[A]", "x"}));
    LinuxFileSystem files;
    std::unique_ptr<BookFile> locked;
    ASSERT_EQ(files.OpenForReading(path, Sharing::Locked, locked), FileError{});
    EXPECT_EQ(Run("topics a.IDA"), 3);
    EXPECT_EQ(out, "");
    EXPECT_EQ(err, "critical: Error opening <<a.IDA>> with code 70: Permission denied\n");
    locked.reset();
    EXPECT_EQ(Run("topics a.IDA"), 0);
    EXPECT_EQ(out, "1. A\n");
}

class ProgramCase : public Program, public testing::WithParamInterface<const char*>
{
};

TEST_P(ProgramCase, json_asExpected)
{
    const std::string base = std::string(LS_TEST_DATA) + "/cases/text/" + GetParam();
    const Json expected = Json::ParseFile(base + ".json");
    ASSERT_EQ(Run("info --json '" + base + ".IDA'"), 0);
    const Json info = Json::Parse(out);
    EXPECT_EQ(info["author"].String(), expected["info"]["author"].String());
    EXPECT_EQ(info["topic_count"].Int(), expected["info"]["topic_count"].Int());
    EXPECT_EQ(info["xref_count"].Int(), expected["info"]["xref_count"].Int());
    ASSERT_EQ(Run("topics --json '" + base + ".IDA'"), 0);
    const Json topics = Json::Parse(out);
    ASSERT_EQ(topics["topics"].Items().size(), expected["topics"].Items().size());
    for (std::size_t i = 0; i < topics["topics"].Items().size(); ++i) {
        EXPECT_EQ(topics["topics"].Items()[i]["title"].String(),
                  expected["topics"].Items()[i]["title"].String());
        EXPECT_EQ(topics["topics"].Items()[i]["pos"].Int(), expected["topics"].Items()[i]["pos"].Int());
    }
    ASSERT_EQ(Run("xrefs --json '" + base + ".IDA'"), 0);
    const Json xrefs = Json::Parse(out);
    ASSERT_EQ(xrefs["xrefs"].Items().size(), expected["xrefs"].Items().size());
    for (std::size_t i = 0; i < xrefs["xrefs"].Items().size(); ++i) {
        EXPECT_EQ(xrefs["xrefs"].Items()[i]["text"].String(), expected["xrefs"].Items()[i]["text"].String());
    }
    for (const Json& show : expected["show"].Items()) {
        ASSERT_EQ(Run("show --json '" + base + ".IDA' --number " + std::to_string(show["number"].Int()) +
                      " --width " + std::to_string(show["width"].Int())),
                  0);
        EXPECT_EQ(Json::Parse(out)["lines"].Strings(), show["lines"].Strings());
        EXPECT_EQ(err, "");
    }
}

INSTANTIATE_TEST_SUITE_P(Cases, ProgramCase, testing::Values("book-001", "book-017", "book-042"),
                         [](const testing::TestParamInfo<const char*>& row) {
                             return "case" + std::string(row.param).substr(5);
                         });

} // namespace
} // namespace ls
