// Save on a file system that fails at every single call in turn.

#include "reader/window/SaveCommandFixture.h"

namespace ls {
namespace {

struct SaveFailures : SaveCommandFixture, testing::WithParamInterface<int>
{
    // The calls of the whole command, from the click on; the one of that number fails.
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
    std::string error; ///< the call that failed; empty when there were fewer
};

// Either the book in memory is as it was, edits and all, or the new file is whole; the old one always is, and
// "File saved" is said of a whole file only.
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
    EXPECT_GE(unsaved, 5) << "testing, creating, reading, writing, finishing and naming failed";
}

INSTANTIATE_TEST_SUITE_P(Errors, SaveFailures, testing::Values(error::DiskFull, error::DeviceIo),
                         [](const testing::TestParamInfo<int>& row) {
                             return "error" + std::to_string(row.param);
                         });

} // namespace
} // namespace ls
