// The built program in its own process: exact output and exit status.

#include "platform/SystemSeams.h"
#include "support/RunProgram.h"
#include "support/ScratchFolder.h"
#include "support/TestSeams.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

using Strings = std::vector<std::string>;

class Program : public testing::Test
{
protected:
    // Runs lsbook inside the scratch folder.
    int Run(const Strings& arguments)
    {
        const test::ProgramRun run = test::RunProgram(LS_LSBOOK, arguments, scratch.Path());
        out = run.out;
        err = run.err;
        return run.status;
    }

    test::ScratchFolder scratch;
    std::string out;
    std::string err;
};

TEST_F(Program, version_onStandardOutput)
{
    EXPECT_EQ(Run({"--version"}), 0);
    EXPECT_EQ(out, "lsbook " LS_VERSION "\n");
    EXPECT_EQ(err, "");
}

TEST_F(Program, wrongUsage_onStandardError)
{
    EXPECT_EQ(Run({"show"}), 2);
    EXPECT_EQ(out, "");
    EXPECT_EQ(err, "lsbook show: BOOK is missing\nTry \"lsbook help show\".\n");
}

TEST_F(Program, missingFile_endsWithThree)
{
    EXPECT_EQ(Run({"info", "no such.IDA"}), 3);
    EXPECT_EQ(out, "");
    EXPECT_EQ(err, "critical: Error opening <<no such.IDA>> with code 53: File not found\n");
}

TEST_F(Program, noBook_endsWithOne)
{
    scratch.Write("a.txt", "Hello\r\n");
    EXPECT_EQ(Run({"show", "a.txt", "A"}), 1);
    EXPECT_EQ(out, "");
    EXPECT_EQ(err, "question: The file you opened is not a Lodestar Book or Advice file. Do you want to view "
                   "it as a single topic text file?\nlsbook: --plain takes it as plain text.\n");
    EXPECT_EQ(Run({"show", "a.txt", "--plain"}), 0);
    EXPECT_EQ(out, "Hello\n");
}

TEST_F(Program, topicByAnAccentedTitle_isShown)
{
    scratch.Write("a.IDA", test::CrLf({"LODESTAR BOOK V5.3", "[Caf\xE9]", "<B>Caf\xE9</B> &AMP; \x80 5"}));
    EXPECT_EQ(Run({"show", "a.IDA", "Café"}), 0);
    EXPECT_EQ(out, "Café & € 5\n") << "a pipe gets no styles";
    EXPECT_EQ(err, "");
}

// Greek letters, which the code page of Western Europe lacks.
TEST_F(Program, bookWithANameBeyondTheCodePage_isWrittenReadAndNamed)
{
    const std::string name = "\xCE\xB1\xCE\xB2 \xE2\x82\xAC.IDA";
    scratch.Write("a.IDA", test::CrLf({"LODESTAR BOOK V5.3", "[A]", "x"}));
    EXPECT_EQ(Run({"save", "a.IDA", name}), 0);
    EXPECT_EQ(Run({"topics", name}), 0);
    EXPECT_EQ(out, "1. A\n");
    EXPECT_EQ(Run({"save", "a.IDA", name}), 1) << "no file is overwritten";
    EXPECT_EQ(Run({"info", "\xCE\xB3" + name}), 3);
    EXPECT_EQ(err, "critical: Error opening <<\xCE\xB3" + name + ">> with code 53: File not found\n");
}

TEST_F(Program, advise_statusTellsHowTheDialogueEnded)
{
    scratch.Write("a.IDA", test::CrLf({"LODESTAR BOOK V5.3", "[A]", "<IXML>", "<LOGIC>", "TARGET R",
                                       "R(1)=X(\xC9)", "R(2)=X(NO)", "<DEFINITIONS>", "<Q ID=X>x?</Q>",
                                       "<Q ID=R>", "<AV ID=R(1)>One.</AV>", "[B]", "<IXML>", "<LOGIC>",
                                       "AV(1)=AV(1)", "<DEFINITIONS>"}));
    EXPECT_EQ(Run({"advise", "a.IDA", "A", "--answers", "É"}), 0);
    EXPECT_EQ(out, "Advisor: A\n\nx?\n  1) É\n  2) NO\n> É\n\nAdvice R(1):\nOne.\n");
    EXPECT_EQ(Run({"advise", "a.IDA", "A", "--answers", "MAYBE"}), 2);
    EXPECT_EQ(Run({"advise", "a.IDA", "B"}), 4);
    EXPECT_EQ(err, "critical: Warning--circular definition\n");
}

TEST_F(Program, bookLockedElsewhere_isDenied)
{
    const std::string path = scratch.Write("a.IDA", test::CrLf({"LODESTAR BOOK V5.3", "[A]", "x"}));
    const std::unique_ptr<FileSystem> files = MakeFileSystem();
    std::unique_ptr<BookFile> locked;
    ASSERT_EQ(files->OpenForReading(path, Sharing::Locked, locked), FileError{});
    EXPECT_EQ(Run({"topics", "a.IDA"}), 3);
    EXPECT_EQ(out, "");
    EXPECT_EQ(err, "critical: Error opening <<a.IDA>> with code 70: Permission denied\n");
    locked.reset();
    EXPECT_EQ(Run({"topics", "a.IDA"}), 0);
    EXPECT_EQ(out, "1. A\n");
}

} // namespace
} // namespace ls
