// The file selector's rules on the drives of a real system.

#include "files/OpenFormRules.h"
#include "platform/windows/WideText.h"
#include "platform/windows/WindowsFileSystem.h"
#include "platform/windows/WindowsVolumes.h"
#include "support/RecordingMessages.h"
#include "support/RecordingProcesses.h"
#include "support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <algorithm>

#include <windows.h>

namespace ls {
namespace {

using Strings = std::vector<std::string>;
using Outcome = OpenFormRules::Outcome;

struct SelectorDrives : testing::Test
{
    test::ScratchFolder folder;
    WindowsFileSystem files;
    WindowsVolumes volumes;
    ProgramEnd end;
    test::RecordingMessages messages{end};
    test::RecordingProcesses processes;
    std::string oldFolder = files.CurrentFolder();
    std::unique_ptr<OpenFormRules> selector;

    SelectorDrives()
    {
        folder.Write("Guide.IDA", "book");
        ::SetCurrentDirectoryW(ToWide(folder.Path())->c_str());
        selector = std::make_unique<OpenFormRules>(Seams{files, messages, processes, end, WindowsPaths},
                                                   volumes, "R", "");
        selector->Load("");
    }
    ~SelectorDrives() override { ::SetCurrentDirectoryW(ToWide(oldFolder)->c_str()); }

    // The index of a drive in the list; -1 when it is not offered.
    [[nodiscard]] int IndexOf(const std::string& drive) const
    {
        const Strings& drives = selector->Drives();
        const auto found = std::find_if(drives.begin(), drives.end(), [&drive](const std::string& label) {
            return label.starts_with(drive);
        });
        return found == drives.end() ? -1 : static_cast<int>(found - drives.begin());
    }

    void ExpectWhereItBegan() const
    {
        EXPECT_EQ(selector->Text(), folder / "*.IDA");
        EXPECT_EQ(selector->FolderPath(), folder.Path());
        EXPECT_EQ(selector->CurrentDrive(), IndexOf("c:"));
        EXPECT_EQ(selector->Files(), Strings{"Guide.IDA"});
    }

    static std::string Refusal(const std::string& drive, const std::string& why)
    {
        return "exclamation|Lodestar Advisor|Sorry, you cannot choose drive " + drive + " due to error " +
               why;
    }
};

TEST_F(SelectorDrives, load_startsInTheCurrentFolder)
{
    EXPECT_NE(IndexOf("c:"), -1);
    ExpectWhereItBegan();
}

TEST_F(SelectorDrives, driveWithoutADisk_typedOrPicked_isToldAndStays)
{
    const Strings told{Refusal("e:", "71: Disk not ready")};
    EXPECT_EQ(selector->OkClicked("E:\\*.IDA"), Outcome::Stay);
    EXPECT_EQ(messages.Take(), told);
    ExpectWhereItBegan();
    ASSERT_NE(IndexOf("e:"), -1) << "offered, because a disk may be inserted";
    selector->DriveChanged(IndexOf("e:"));
    EXPECT_EQ(messages.Take(), told);
    ExpectWhereItBegan();
}

TEST_F(SelectorDrives, driveThatIsNotThere_isToldAndStays)
{
    EXPECT_EQ(IndexOf("q:"), -1);
    EXPECT_EQ(selector->OkClicked("Q:\\*.IDA"), Outcome::Stay);
    EXPECT_EQ(messages.Take(), Strings{Refusal("q:", "68: Device unavailable")});
    ExpectWhereItBegan();
}

TEST_F(SelectorDrives, root_isListedWithItsSeparator)
{
    EXPECT_EQ(selector->OkClicked("C:\\"), Outcome::Stay);
    EXPECT_EQ(selector->FolderPath(), "C:\\");
    EXPECT_EQ(selector->Text(), "C:\\*.*");
    ASSERT_FALSE(selector->Folders().empty());
    EXPECT_EQ(selector->Folders()[0].label, "C:\\");
    const auto& folders = selector->Folders();
    EXPECT_TRUE(std::any_of(folders.begin(), folders.end(),
                            [](const FolderItem& item) { return item.path == "C:\\windows"; }));
    EXPECT_EQ(messages.Take(), Strings{});
}

TEST_F(SelectorDrives, namesInAnotherCase_areFoundAsTheyAreSpelled)
{
    std::string upper = folder.Path();
    std::transform(upper.begin(), upper.end(), upper.begin(),
                   [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    EXPECT_EQ(selector->OkClicked(upper + "\\GUIDE.ida"), Outcome::Accepted);
    EXPECT_EQ(selector->ChosenFullPath(), folder / "Guide.IDA");
    EXPECT_EQ(messages.Take(), Strings{});
}

TEST_F(SelectorDrives, folderInAnotherCaseOrHidden_isNoFile)
{
    const std::string noFile = "exclamation|Lodestar Advisor|File does not exist: ";
    EXPECT_EQ(selector->OkClicked("C:\\WINDOWS"), Outcome::Stay);
    EXPECT_EQ(messages.Take(), Strings{noFile + "c:\\windows"});
    ::SetFileAttributesW(ToWide(folder.MakeFolder("books"))->c_str(), FILE_ATTRIBUTE_HIDDEN);
    selector->Load("");
    EXPECT_EQ(selector->OkClicked("BOOKS"), Outcome::Stay);
    EXPECT_EQ(messages.Take(), Strings{noFile + "books"});
}

} // namespace
} // namespace ls
