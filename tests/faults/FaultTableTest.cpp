// Every action of the program with files, on a file system whose calls fail in turn.

#include "FaultRow.h"

#include "base/FileError.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace ls {
namespace {

using test::Desk;
using test::Disk;
using test::FaultRow;
using test::Outcome;

constexpr int MostCalls = 200;

// One run of a row in which call number `failAt` fails; 0 for none.
struct FaultRun
{
    FaultRun(const FaultRow& row, int failAt, int number, bool forGood = false)
    {
        Desk desk;
        if (row.prepare) {
            row.prepare(desk);
        }
        desk.messages.Take();
        before = desk.Files();
        editedBefore = desk.book.BookChanged;
        desk.files.fail = [&](const std::string& operation) {
            ++calls;
            if (calls == failAt) {
                outcome.call = operation;
            }
            return calls == failAt || (forGood && failAt > 0 && calls > failAt) ? number : 0;
        };
        row.act(desk);
        desk.files.fail = nullptr;
        outcome.told = desk.messages.Take();
        outcome.left = desk.State();
        after = desk.Files();
    }

    int calls = 0;
    Outcome outcome;
    bool editedBefore = false;
    Disk before;
    Disk after;
};

std::vector<Outcome> OutcomesOf(const FaultRow& row, int number)
{
    std::vector<Outcome> outcomes;
    FaultRun good(row, 0, number);
    for (int failAt = 1; failAt <= MostCalls; ++failAt) {
        FaultRun run(row, failAt, number);
        if (run.outcome.call.empty()) {
            break;
        }
        run.outcome.disk = test::Changes(run.before, run.after, good.after);
        outcomes.push_back(run.outcome);
    }
    good.outcome.disk = test::Changes(good.before, good.after, good.after);
    outcomes.push_back(good.outcome);
    return outcomes;
}

class FaultTable : public testing::TestWithParam<FaultRow>
{
};

TEST_P(FaultTable, eachCallFailing_comesToWhatTheTableSays)
{
    for (const int number : {error::DeviceIo, error::DiskFull, error::PermissionDenied}) {
        SCOPED_TRACE(number);
        const std::string expected = test::ReadTable("window.txt", GetParam().name);
        EXPECT_NE(expected, "") << "the table has no such row";
        EXPECT_EQ(test::TableText(OutcomesOf(GetParam(), number)), test::WithError(expected, number));
    }
}

// The book's file stays unchanged, and each file under its final name is whole.
void ExpectNoHalfFile(const std::string& disk)
{
    EXPECT_EQ(disk.find("Book.IDA"), std::string::npos) << disk;
    for (std::size_t at = disk.find(" cut"); at != std::string::npos; at = disk.find(" cut", at + 1)) {
        const std::size_t before = disk.rfind(", ", at);
        const std::size_t from = before == std::string::npos ? 0 : before + 2;
        const std::string name = disk.substr(from, at - from);
        EXPECT_TRUE(name.find(".part") != std::string::npos || name.ends_with(".new")) << disk;
    }
}

TEST_P(FaultTable, eachCallFailing_leavesNoHalfFile)
{
    for (const Outcome& outcome : OutcomesOf(GetParam(), error::DiskFull)) {
        SCOPED_TRACE(outcome.call);
        ExpectNoHalfFile(outcome.disk);
    }
}

// A failure without a message must not change the result, except for the calls that the row lists as quiet.
TEST_P(FaultTable, eachCallFailing_isToldWhereItShows)
{
    const std::vector<Outcome> outcomes = OutcomesOf(GetParam(), error::DeviceIo);
    const Outcome& good = outcomes.back();
    for (const Outcome& outcome : outcomes) {
        const bool quiet =
            std::any_of(GetParam().quiet.begin(), GetParam().quiet.end(),
                        [&outcome](const std::string& call) { return outcome.call.starts_with(call); });
        if (outcome.told == good.told && !quiet) {
            EXPECT_EQ(outcome.left + "|" + outcome.disk, good.left + "|" + good.disk) << outcome.call;
        }
    }
}

// If the disk fails for good from some call on, unsaved edits stay in memory and can be saved elsewhere.
TEST_P(FaultTable, diskGoneFromEachCallOn_losesNoEditsAndLeavesNoHalfFile)
{
    const FaultRun good(GetParam(), 0, error::DeviceIo);
    const bool keeps = good.before == good.after || good.outcome.left.find("edited") != std::string::npos;
    for (int failAt = 1; failAt <= good.calls; ++failAt) {
        const FaultRun run(GetParam(), failAt, error::DeviceIo, true);
        SCOPED_TRACE(run.outcome.call);
        const std::string disk = test::Changes(run.before, run.after, good.after);
        ExpectNoHalfFile(disk);
        EXPECT_FALSE(run.outcome.told.empty() && !keeps && disk.empty())
            << "nothing was done, and no message was shown";
        if (good.editedBefore && !GetParam().dropsEdits && disk.find("Out.IDA whole") == std::string::npos) {
            EXPECT_NE(run.outcome.left.find(", edited, unsaved"), std::string::npos) << run.outcome.left;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Rows, FaultTable, testing::ValuesIn(test::AllRows()),
                         [](const auto& row) { return row.param.name; });

} // namespace
} // namespace ls
