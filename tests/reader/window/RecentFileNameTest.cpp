// The name that the recent files get for an opened book.

#include "reader/window/MainFixture.h"

namespace ls {
namespace {

struct RecentFileNameTest : MainFixture
{
};

TEST_F(RecentFileNameTest, recentName_relativePath_staysAsGivenWithoutIniDir)
{
    world.files["/work/Guide.IDA"] = "LODESTAR BOOK V5.3\r\n[A]\r\n";
    Choose("Guide.IDA");
    commands.OpenItem_Click();
    EXPECT_EQ(global.settings.RecentFiles[0], "Guide.IDA");
}

TEST_F(RecentFileNameTest, recentName_relativePathWithIniDir_isTheFullPath)
{
    global.settings.IniDir = "/ini";
    world.files.AddFolder("/ini");
    world.files["/work/Guide.IDA"] = "LODESTAR BOOK V5.3\r\n[A]\r\n";
    Choose("Guide.IDA");
    commands.OpenItem_Click();
    EXPECT_EQ(global.settings.RecentFiles[0], "/work/Guide.IDA");
    EXPECT_EQ(book.BookPath, "Guide.IDA");
}

TEST_F(RecentFileNameTest, recentName_fullPathWithIniDir_staysAsGiven)
{
    global.settings.IniDir = "/ini";
    world.files.AddFolder("/ini");
    world.files["/work/Guide.IDA"] = "LODESTAR BOOK V5.3\r\n[A]\r\n";
    Choose("/WORK/guide.ida");
    commands.OpenItem_Click();
    EXPECT_EQ(book.OpenPath, "/work/Guide.IDA");
    EXPECT_EQ(global.settings.RecentFiles[0], "/WORK/guide.ida");
}

TEST_F(RecentFileNameTest, recentName_workDirAndIniDir_isThePathThatWasOpened)
{
    global.settings.IniDir = "/ini";
    world.files.AddFolder("/ini");
    book.WorkDir = "/books";
    world.files["/books/Guide.IDA"] = "LODESTAR BOOK V5.3\r\n[A]\r\n";
    Choose("Guide.IDA");
    commands.OpenItem_Click();
    EXPECT_EQ(global.settings.RecentFiles[0], "/books/Guide.IDA");
}

TEST_F(RecentFileNameTest, recentName_bookBesideTheProgram_keepsItsPrefix)
{
    global.settings.IniDir = "/ini";
    world.files.AddFolder("/ini");
    world.files["/program/Help.ida"] = "LODESTAR BOOK V5.3\r\n[A]\r\n";
    Choose("LS:Help.ida");
    commands.OpenItem_Click();
    EXPECT_EQ(global.settings.RecentFiles[0], "LS:Help.ida");
}

} // namespace
} // namespace ls
