#include "base/Messages.h"
#include "base/FileError.h"
#include "support/RecordingMessages.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

using Strings = std::vector<std::string>;

struct ErrorCase
{
    int number;
    const char* description;
};

struct FileErrorTest : testing::TestWithParam<ErrorCase>
{
};

TEST_P(FileErrorTest, number_hasItsDescription)
{
    EXPECT_EQ(MakeFileError(GetParam().number), (FileError{GetParam().number, GetParam().description}));
    EXPECT_FALSE(MakeFileError(GetParam().number).Ok());
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, FileErrorTest,
    testing::Values(ErrorCase{5, "Invalid procedure call or argument"}, ErrorCase{6, "Overflow"},
                    ErrorCase{7, "Out of memory"}, ErrorCase{52, "Bad file name or number"},
                    ErrorCase{53, "File not found"}, ErrorCase{55, "File already open"},
                    ErrorCase{57, "Device I/O error"}, ErrorCase{58, "File already exists"},
                    ErrorCase{61, "Disk full"}, ErrorCase{62, "Input past end of file"},
                    ErrorCase{67, "Too many files"}, ErrorCase{68, "Device unavailable"},
                    ErrorCase{70, "Permission denied"}, ErrorCase{71, "Disk not ready"},
                    ErrorCase{75, "Path/File access error"}, ErrorCase{76, "Path not found"}),
    [](const auto& row) { return std::to_string(row.param.number); });

TEST(FileError, zero_isSuccess)
{
    EXPECT_TRUE(FileError{}.Ok());
    EXPECT_EQ(MakeFileError(0), FileError{});
}

TEST(Messages, msgBox_carriesTheProgramsTitle)
{
    ProgramEnd end;
    test::RecordingMessages messages(end);
    messages.replies = {Reply::Yes};
    EXPECT_EQ(messages.MsgBox("Go on?", Icon::Question, Buttons::YesNo), Reply::Yes);
    EXPECT_EQ(messages.MsgBox("File saved", Icon::Information), Reply::Ok);
    EXPECT_EQ(messages.Take(),
              (Strings{"question|Lodestar Advisor|Go on?|YesNo", "information|Lodestar Advisor|File saved"}));
}

TEST(Messages, showOverflow_isCritical)
{
    ProgramEnd end;
    test::RecordingMessages messages(end);
    ShowOverflow(messages);
    EXPECT_EQ(messages.Take(), Strings{"critical|Lodestar Advisor|Overflow"});
}

TEST(Messages, afterTheEnd_nothingIsShownAndTheSafeReplyComes)
{
    ProgramEnd end;
    test::RecordingMessages messages(end);
    EndProgram(end, "a fault");
    EXPECT_EQ(messages.MsgBox("x", Icon::Critical), Reply::Ok);
    EXPECT_EQ(messages.MsgBox("x", Icon::Question, Buttons::OkCancel), Reply::Cancel);
    EXPECT_EQ(messages.MsgBox("x", Icon::Question, Buttons::YesNo), Reply::No);
    EXPECT_EQ(messages.MsgBox("x", Icon::Question, Buttons::YesNoCancel), Reply::Cancel);
    EXPECT_EQ(messages.InputBox("x", "y", "z"), std::nullopt);
    ShowOverflow(messages);
    EXPECT_EQ(messages.Take(), Strings{});
}

TEST(ProgramEnd, end_keepsTheFirstReason)
{
    ProgramEnd end;
    EXPECT_FALSE(end.Ended());
    EXPECT_EQ(end.Reason(), "");
    EndProgram(end, "first");
    EndProgram(end, "second");
    EXPECT_TRUE(end.Ended());
    EXPECT_EQ(end.Reason(), "first");
}

TEST(ProgramEnd, end_withoutAReason_endsAllTheSame)
{
    ProgramEnd end;
    EndProgram(end, "");
    EXPECT_TRUE(end.Ended());
}

TEST(ProgramEnd, lastAct_isDoneOnceWhenTheProgramHasEnded)
{
    ProgramEnd end;
    int done = 0;
    end.SetLastAct([&] {
        EXPECT_TRUE(end.Ended());
        ++done;
    });
    EXPECT_EQ(done, 0);
    EndProgram(end, "first");
    EndProgram(end, "second");
    EXPECT_EQ(done, 1);
}

} // namespace
} // namespace ls
