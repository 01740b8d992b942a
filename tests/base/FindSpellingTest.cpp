#include "base/FindSpelling.h"

#include "support/MemoryFileSystem.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

struct FindSpellingTest : testing::Test
{
    test::MemoryFileSystem files;

    std::string Find(const std::string& path) { return FindSpelling(files, UnixPaths, path); }
};

TEST_F(FindSpellingTest, find_exactSpelling_wins)
{
    files["/b/Guide.IDA"];
    files["/b/guide.ida"];
    EXPECT_EQ(Find("/b/guide.ida"), "/b/guide.ida");
    EXPECT_EQ(Find("/b/Guide.IDA"), "/b/Guide.IDA");
}

TEST_F(FindSpellingTest, find_existingPath_listsNothing)
{
    files["/b/Guide.IDA"];
    EXPECT_EQ(Find("/b/Guide.IDA"), "/b/Guide.IDA");
    EXPECT_TRUE(files.log.empty());
}

TEST_F(FindSpellingTest, find_everyLevelInOtherCase_isFound)
{
    files["/Home/Books/Guide.IDA"];
    EXPECT_EQ(Find("/HOME/books/GUIDE.ida"), "/Home/Books/Guide.IDA");
}

TEST_F(FindSpellingTest, find_exactLevel_isNotLeftForAnother)
{
    files["/B/Guide.IDA"];
    files["/b/Other.IDA"];
    EXPECT_EQ(Find("/b/guide.ida"), "/b/guide.ida"); // not in "/b", and "/B" is another folder
    EXPECT_EQ(Find("/b/OTHER.IDA"), "/b/Other.IDA");
}

TEST_F(FindSpellingTest, find_severalMatches_takesTheFirstByBytes)
{
    files["/b/guide.IDA"];
    files["/b/Guide.IDA"];
    files["/b/gUIDE.IDA"];
    EXPECT_EQ(Find("/b/GUIDE.IDA"), "/b/Guide.IDA");
}

TEST_F(FindSpellingTest, find_noMatch_givesThePathBack)
{
    files["/b/Guide.IDA"];
    for (const char* path : {"", "/", "/b/Guide", "/B/None.IDA", "/none/Guide.IDA", "/b/Guide.IDA/x"}) {
        EXPECT_EQ(Find(path), path);
    }
}

TEST_F(FindSpellingTest, find_relativePath_isTakenInTheCurrentFolder)
{
    files["/work/Sub/Guide.IDA"];
    files["/work/Note.TXT"];
    EXPECT_EQ(Find("note.txt"), "Note.TXT");
    EXPECT_EQ(Find("sub/guide.ida"), "Sub/Guide.IDA");
}

TEST_F(FindSpellingTest, find_doubledSeparators_arePassedOver)
{
    files["/b/Guide.IDA"];
    EXPECT_EQ(Find("/B//guide.ida"), "/b/Guide.IDA");
}

TEST_F(FindSpellingTest, find_accentsInOtherCase_areFound)
{
    files["/B\xC3\xBC"
          "cher/\xC3\x84.IDA"];
    EXPECT_EQ(Find("/B\xC3\x9C"
                   "CHER/\xC3\xA4.ida"),
              "/B\xC3\xBC"
              "cher/\xC3\x84.IDA");
}

TEST_F(FindSpellingTest, find_lettersThatTheCodePageLacks_mustBeSpelledAsTheyAre)
{
    files["/b/\xD0\x9A.IDA"];
    EXPECT_EQ(Find("/b/\xD0\x9A.ida"), "/b/\xD0\x9A.IDA");
    EXPECT_EQ(Find("/b/\xD0\xBA.ida"), "/b/\xD0\xBA.ida");
}

TEST_F(FindSpellingTest, find_bytesThatAreNoText_areComparedAsTheyAre)
{
    files["/b/\xE9x.IDA"];
    EXPECT_EQ(Find("/b/\xE9X.ida"), "/b/\xE9x.IDA");
    EXPECT_EQ(Find("/b/\xC9X.ida"), "/b/\xC9X.ida");
}

TEST_F(FindSpellingTest, find_folderThatCannotBeListed_givesThePathBack)
{
    files["/b/Guide.IDA"];
    files.fail = [](const std::string& operation) {
        return operation == "list /b" ? error::PermissionDenied : 0;
    };
    EXPECT_EQ(Find("/b/guide.ida"), "/b/guide.ida");
}

} // namespace
} // namespace ls
