// Saves on a file system whose calls fail, a different one in each round.

#include "reader/window/SaveCommandFixture.h"

namespace ls {
namespace {

struct SaveFailures : SaveCommandFixture, testing::WithParamInterface<int>
{
    // Lets one call of the command fail, the one with that number.
    void FailAt(int failAt)
    {
        calls = 0;
        error.clear();
        world.files.fail = [this, failAt](const std::string& operation) {
            if (++calls != failAt) {
                return 0;
            }
            error = operation;
            return GetParam();
        };
    }

    int calls = 0;
    std::string error; ///< the call that failed; empty if there were fewer calls
};

// After a failure either the book in memory is unchanged, with its edits, or the new file is complete. The
// old file is always complete, and "File saved" is reported only for a complete new file.
TEST_P(SaveFailures, save_eachCallFailing_losesNothing)
{
    int unsaved = 0;
    for (int failAt = 1;; ++failAt) {
        SCOPED_TRACE(failAt);
        for (const char* path : {"/work/Out.IDA", "/work/Out.IDA.part", "/work/Again.IDA"}) {
            world.files.RemoveIfPossible(path);
        }
        OpenEdited();
        const std::string input = world.files["/work/Book.IDA"];
        FailAt(failAt);
        SaveAs("Out.IDA");
        world.files.fail = nullptr;
        SCOPED_TRACE(error);
        const Strings boxes = Boxes();
        EXPECT_EQ(world.files["/work/Book.IDA"], input);
        const bool saved = world.files.Has("/work/Out.IDA");
        EXPECT_EQ(!boxes.empty() && boxes.front() == "information|Lodestar Advisor|File saved", saved);
        if (saved) {
            EXPECT_EQ(world.files["/work/Out.IDA"], EditedBook);
        } else {
            ++unsaved;
            EXPECT_EQ(boxes.size(), 1U);
            ExpectNothingLost();
        }
        if (HasFailure() || error.empty() || world.end.Ended()) {
            break;
        }
    }
    EXPECT_GE(unsaved, 5)
        << "too few kinds of calls failed: testing, creating, reading, writing, finishing, naming";
}

INSTANTIATE_TEST_SUITE_P(Errors, SaveFailures, testing::Values(error::DiskFull, error::DeviceIo),
                         [](const testing::TestParamInfo<int>& row) {
                             return "error" + std::to_string(row.param);
                         });

} // namespace
} // namespace ls
