// Saving and replacing on real files: every system call of the program's own code fails in turn, once and for
// good.

#include "SystemCallsFixture.h"
#include "base/ReplaceFile.h"
#include "reader/window/RealDesk.h"
#include "support/TestSeams.h"

#include <algorithm>
#include <filesystem>

namespace ls {
namespace {

using test::SystemCalls;
using Strings = std::vector<std::string>;

const std::string Unedited = test::CrLf({"LODESTAR BOOK V5.3", "[A]", "a", "[B]", "b"});
const std::string Edited = test::CrLf({"LODESTAR BOOK V5.3", "[A]", "a", "[B]", "edited", ""});
constexpr const char* Saved = "information|Lodestar Advisor|File saved";

TEST_P(SystemCalls, save_eachCallFailing_losesNothing)
{
    std::unique_ptr<test::RealDesk> desk;
    Strings boxes;
    folder.Write("In.IDA", Unedited);
    ForEachCall(
        [&](const std::string&) {
            ASSERT_FALSE(boxes.empty()) << "no message";
            const bool saved = boxes.front() == Saved;
            EXPECT_EQ(folder.Has("Out.IDA"), saved);
            if (!saved) {
                EXPECT_EQ(desk->book.BookPath, folder / "In.IDA");
                EXPECT_TRUE(desk->book.BookChanged);
                EXPECT_EQ(desk->book.TopicRecs(2).Text, "edited\r\n");
                EXPECT_EQ(desk->SaveAs(folder / "Out.IDA").front(), Saved)
                    << "the same name, once the disk works again";
            }
            desk.reset(); // nobody else can read a locked book
            EXPECT_EQ(folder.Read("In.IDA"), Unedited);
            EXPECT_EQ(folder.Read("Out.IDA"), Edited);
        },
        [&] { boxes = desk->SaveAs(folder / "Out.IDA"); },
        [&] {
            desk.reset();
            for (const auto& entry : std::filesystem::directory_iterator(folder.Path())) {
                if (entry.path().filename() != "In.IDA") {
                    std::filesystem::remove(entry.path());
                }
            }
            desk = std::make_unique<test::RealDesk>(folder.Path());
            ASSERT_TRUE(desk->OpenEdited(folder / "In.IDA"));
        });
    for (const std::string& name : test::CallsOfSaving()) {
        EXPECT_NE(std::find(calls.begin(), calls.end(), name), calls.end()) << name << " never failed";
    }
}

TEST_P(SystemCalls, replaceFile_eachCallFailing_leavesTheOldFileOrTheWholeNewOne)
{
    const std::unique_ptr<FileSystem> files = MakeFileSystem();
    FileError error;
    ForEachCall(
        [&](const std::string& call) {
            const std::string bytes = folder.Read("Export.htm");
            EXPECT_EQ(bytes, error.Ok() ? "newer" : "older");
            const bool left = folder.Has("Export.htm.new");
            EXPECT_TRUE(!left || GetParam().forGood || call == test::CallOfRemoving());
        },
        [&] {
            std::unique_ptr<OutputFile> file;
            error = OpenToReplace(*files, folder / "Export.htm", file);
            error = error.Ok() ? file->Write("newer") : error;
            error = error.Ok() ? file->Finish() : error;
        },
        [&] {
            folder.Write("Export.htm", "older");
            std::filesystem::remove(folder / "Export.htm.new");
        });
}

INSTANTIATE_TEST_SUITE_P(Faults, SystemCalls, testing::ValuesIn(test::SystemFaults()),
                         [](const auto& row) { return row.param.name; });

} // namespace
} // namespace ls
