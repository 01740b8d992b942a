// The name that the recent files get for an opened book.

#include "reader/window/MainFixture.h"
#include "support/RowName.h"

namespace ls {
namespace {

struct NameCase
{
    const char* name;
    const char* iniDir;
    const char* workDir;
    const char* file; ///< where the book lies
    const char* chosen;
    const char* recent;
};

struct RecentFileNameTest : MainFixture, testing::WithParamInterface<NameCase>
{
};

TEST_P(RecentFileNameTest, openedBook_entersTheRecentFilesAs)
{
    world.files.AddFolder("/ini");
    global.settings.IniDir = GetParam().iniDir;
    book.WorkDir = GetParam().workDir;
    world.files[GetParam().file] = "LODESTAR BOOK V5.3\r\n[A]\r\n";
    Choose(GetParam().chosen);
    commands.OpenItem_Click();
    EXPECT_EQ(global.settings.RecentFiles[0], GetParam().recent);
    EXPECT_EQ(book.BookPath, GetParam().chosen);
}

INSTANTIATE_TEST_SUITE_P(
    Names, RecentFileNameTest,
    testing::Values(
        NameCase{"relativePath", "", "", "/work/Guide.IDA", "Guide.IDA", "Guide.IDA"},
        NameCase{"relativePathWithIniDir", "/ini", "", "/work/Guide.IDA", "Guide.IDA", "/work/Guide.IDA"},
        NameCase{"fullPathWithIniDir", "/ini", "", "/work/Guide.IDA", "/WORK/guide.ida", "/WORK/guide.ida"},
        NameCase{"workDirAndIniDir", "/ini", "/books", "/books/Guide.IDA", "Guide.IDA", "/books/Guide.IDA"},
        NameCase{"besideTheProgram", "/ini", "", "/program/Help.ida", "LS:Help.ida", "LS:Help.ida"}),
    test::RowName());

} // namespace
} // namespace ls
