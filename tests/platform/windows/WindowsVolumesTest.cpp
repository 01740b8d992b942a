#include "platform/windows/WindowsVolumes.h"

#include "platform/windows/WideText.h"
#include "platform/windows/WindowsFileSystem.h"
#include "support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <windows.h>

namespace ls {
namespace {

// The folder that the drive of that letter opens; "none" when it is not offered.
std::string FolderOf(char letter)
{
    for (const Volume& volume : WindowsVolumes().List()) {
        if (volume.label.substr(0, 2) == std::string{letter, ':'}) {
            return volume.folder;
        }
    }
    return "none";
}

TEST(WindowsVolumes, list_drives_leadToTheirCurrentFolders)
{
    const test::ScratchFolder folder;
    const std::string before = WindowsFileSystem().CurrentFolder();
    ::SetCurrentDirectoryW(L"Z:\\");
    ::SetCurrentDirectoryW(ToWide(folder.Path())->c_str());
    EXPECT_EQ(FolderOf('c'), folder.Path());
    EXPECT_EQ(FolderOf('e'), "E:\\") << "a drive without a disk is offered";
    EXPECT_EQ(FolderOf('q'), "none");
    ::SetCurrentDirectoryW(L"C:\\");
    EXPECT_EQ(FolderOf('c'), "C:\\") << "a root keeps its separator";
    ::SetCurrentDirectoryW(ToWide(before)->c_str());
}

TEST(WindowsVolumes, list_driveThatIsNotTheCurrentOne_leadsToWhatTheSystemKeepsForIt)
{
    const std::string before = WindowsFileSystem().CurrentFolder();
    ::SetCurrentDirectoryW(L"Z:\\");
    ::SetEnvironmentVariableW(L"=C:", L"C:\\windows");
    EXPECT_EQ(FolderOf('c'), "C:\\windows");
    ::SetEnvironmentVariableW(L"=C:", nullptr);
    EXPECT_EQ(FolderOf('c'), "C:\\");
    ::SetCurrentDirectoryW(ToWide(before)->c_str());
}

} // namespace
} // namespace ls
