#include "platform/linux/FindProgram.h"

#include "ChildProcess.h"
#include "support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

namespace ls {
namespace {

using test::ScratchFolder;

struct FindProgramTest : testing::Test
{
    ScratchFolder folder;
    std::string program;

    int Find(const std::string& name, const std::string& searchPath)
    {
        return FindProgram(name, searchPath, program).number;
    }
};

TEST_F(FindProgramTest, findProgram_bareName_isTheFirstOfTheSearchPath)
{
    folder.WriteProgram("one/web", "");
    folder.WriteProgram("two/web", "");
    EXPECT_EQ(Find("web", folder / "none:" + (folder / "two:") + (folder / "one")), 0);
    EXPECT_EQ(program, folder / "two/web");
}

TEST_F(FindProgramTest, findProgram_plainFileBeforeProgram_isPassedOver)
{
    folder.Write("one/web", "");
    folder.WriteProgram("two/web", "");
    EXPECT_EQ(Find("web", folder / "one:" + (folder / "two")), 0);
    EXPECT_EQ(program, folder / "two/web");
}

TEST_F(FindProgramTest, findProgram_onlyPlainFile_is70)
{
    folder.Write("one/web", "");
    EXPECT_EQ(Find("web", folder / "one:" + (folder / "two")), 70);
}

TEST_F(FindProgramTest, findProgram_closedFolderInSearchPath_is53)
{
    folder.WriteProgram("closed/web", "");
    ASSERT_EQ(::chmod(folder.Path().c_str(), 0755), 0);
    ASSERT_EQ(::chmod((folder / "closed").c_str(), 0), 0);
    EXPECT_EQ(test::RunInChild(
                  [this] { return test::BecomeOrdinaryUser() ? Find("web", folder / "closed") : 255; }),
              53);
    ASSERT_EQ(::chmod((folder / "closed").c_str(), 0755), 0);
}

TEST_F(FindProgramTest, findProgram_folderOfThatNameInSearchPath_is53)
{
    folder.MakeFolder("one/web");
    EXPECT_EQ(Find("web", folder / "one"), 53);
}

TEST_F(FindProgramTest, findProgram_emptyPartOfSearchPath_isNotTheCurrentFolder)
{
    folder.WriteProgram("lstest-web", "");
    ASSERT_EQ(::chdir(folder.Path().c_str()), 0);
    EXPECT_EQ(Find("lstest-web", "::"), 53);
    EXPECT_EQ(::chdir("/"), 0);
}

TEST_F(FindProgramTest, findProgram_noSearchPath_usesTheSystemsFolders)
{
    EXPECT_EQ(Find("sh", ""), 0);
    EXPECT_TRUE(program == "/usr/bin/sh" || program == "/bin/sh") << program;
}

TEST_F(FindProgramTest, findProgram_path_isNotSearched)
{
    const std::string web = folder.WriteProgram("web", "");
    EXPECT_EQ(Find(web, ""), 0);
    EXPECT_EQ(program, web);
    EXPECT_EQ(Find(folder / "none", ""), 53);
    EXPECT_EQ(Find(folder / "none/web", ""), 53);
    EXPECT_EQ(Find(web + "/below", ""), 53);
    EXPECT_EQ(Find(folder.Path(), ""), 75);
    EXPECT_EQ(Find(folder.Write("text", ""), ""), 70);
}

TEST_F(FindProgramTest, findProgram_noName_is53)
{
    EXPECT_EQ(Find("", ""), 53);
    EXPECT_EQ(Find(std::string("sh\0x", 4), ""), 53);
}

} // namespace
} // namespace ls
