#include "base/ReplaceFile.h"

#include "support/MemoryFileSystem.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

using Strings = std::vector<std::string>;

struct ReplaceFile : testing::Test
{
    test::MemoryFileSystem files;
    std::unique_ptr<OutputFile> file;

    int Open(const std::string& path) { return OpenToReplace(files, path, file).number; }

    Strings Names()
    {
        std::vector<FolderEntry> entries;
        EXPECT_TRUE(files.List("/work", entries).Ok());
        Strings names;
        for (const FolderEntry& entry : entries) {
            names.push_back(entry.name);
        }
        return names;
    }
};

TEST_F(ReplaceFile, newName_isThereOnceFinished)
{
    ASSERT_EQ(Open("a.htm"), 0);
    EXPECT_TRUE(file->Write("one ").Ok());
    EXPECT_TRUE(file->Write("two").Ok());
    EXPECT_EQ(Names(), Strings{"a.htm.new"});
    EXPECT_TRUE(file->Finish().Ok());
    EXPECT_EQ(Names(), Strings{"a.htm"});
    EXPECT_EQ(files["/work/a.htm"], "one two");
}

TEST_F(ReplaceFile, existingFile_isReplacedOnlyWhenFinished)
{
    files["/work/a.htm"] = "a much longer old content";
    ASSERT_EQ(Open("a.htm"), 0);
    EXPECT_TRUE(file->Write("new").Ok());
    EXPECT_EQ(files["/work/a.htm"], "a much longer old content");
    EXPECT_TRUE(file->Finish().Ok());
    EXPECT_EQ(files["/work/a.htm"], "new");
    EXPECT_EQ(Names(), Strings{"a.htm"});
}

TEST_F(ReplaceFile, neverFinished_leavesTheOldFileAndNothingBeside)
{
    files["/work/a.htm"] = "old";
    ASSERT_EQ(Open("a.htm"), 0);
    EXPECT_TRUE(file->Write("new").Ok());
    file.reset();
    EXPECT_EQ(files["/work/a.htm"], "old");
    EXPECT_EQ(Names(), Strings{"a.htm"});
}

TEST_F(ReplaceFile, faultOnTheWay_leavesTheOldFileAndNothingBeside)
{
    for (const std::string operation : {"write a.htm.new", "finish a.htm.new", "rename a.htm.new a.htm"}) {
        SCOPED_TRACE(operation);
        files["/work/a.htm"] = "old";
        files.fail = [&operation](const std::string& o) { return o == operation ? error::DiskFull : 0; };
        ASSERT_EQ(Open("a.htm"), 0);
        FileError error = file->Write("new");
        if (error.Ok()) {
            error = file->Finish();
        }
        EXPECT_EQ(error.number, error::DiskFull);
        file.reset();
        EXPECT_EQ(files["/work/a.htm"], "old");
        EXPECT_EQ(Names(), Strings{"a.htm"});
    }
}

TEST_F(ReplaceFile, namesBesideThatAreTaken_areKept)
{
    files["/work/a.htm.new"] = "the user's";
    files["/work/a.htm.new2"] = "the user's too";
    ASSERT_EQ(Open("a.htm"), 0);
    EXPECT_EQ(Names(), (Strings{"a.htm.new", "a.htm.new2", "a.htm.new3"}));
    EXPECT_TRUE(file->Finish().Ok());
    EXPECT_EQ(Names(), (Strings{"a.htm", "a.htm.new", "a.htm.new2"}));
    EXPECT_EQ(files["/work/a.htm.new"], "the user's");
}

TEST_F(ReplaceFile, allNamesBesideTaken_isError58)
{
    files["/work/a.htm.new"] = "";
    for (int number = 2; number <= 99; ++number) {
        files["/work/a.htm.new" + std::to_string(number)] = "";
    }
    EXPECT_EQ(Open("a.htm"), error::FileAlreadyExists);
    EXPECT_EQ(file, nullptr);
}

TEST_F(ReplaceFile, folder_isError75AndStays)
{
    files.AddFolder("/work/a.htm");
    EXPECT_EQ(Open("a.htm"), error::PathFileAccess);
    EXPECT_EQ(file, nullptr);
    EXPECT_EQ(Names(), Strings{"a.htm"});
}

TEST_F(ReplaceFile, fileLockedElsewhere_isError70)
{
    files["/work/a.htm"] = "old";
    files.fail = [](const std::string& o) { return o == "open a.htm" ? error::PermissionDenied : 0; };
    EXPECT_EQ(Open("a.htm"), error::PermissionDenied);
    EXPECT_EQ(file, nullptr);
}

TEST_F(ReplaceFile, readOnlyFile_isError70)
{
    files["/work/a.htm"] = "old";
    files.fail = [](const std::string& o) { return o == "writable a.htm" ? error::PermissionDenied : 0; };
    EXPECT_EQ(Open("a.htm"), error::PermissionDenied);
    EXPECT_EQ(files["/work/a.htm"], "old");
    EXPECT_EQ(Names(), Strings{"a.htm"});
}

TEST_F(ReplaceFile, finishedTwice_isError52)
{
    ASSERT_EQ(Open("a.htm"), 0);
    EXPECT_TRUE(file->Finish().Ok());
    EXPECT_EQ(file->Finish().number, error::BadFileNumber);
    EXPECT_EQ(file->Write("late").number, error::BadFileNumber);
}

TEST_F(ReplaceFile, createdFile_isThereOnceFinished)
{
    ASSERT_TRUE(OpenToCreate(files, "a.IDA", file).Ok());
    EXPECT_TRUE(file->Write("one").Ok());
    EXPECT_EQ(Names(), Strings{"a.IDA.new"});
    EXPECT_TRUE(file->Finish().Ok());
    EXPECT_EQ(Names(), Strings{"a.IDA"});
    EXPECT_EQ(files["/work/a.IDA"], "one");
}

TEST_F(ReplaceFile, createdUnderAnExistingName_isError58)
{
    files["/work/a.IDA"] = "old";
    EXPECT_EQ(OpenToCreate(files, "a.IDA", file).number, 58);
    EXPECT_EQ(Names(), Strings{"a.IDA"});
}

TEST_F(ReplaceFile, createdNameTakenInTheMeantime_isError58AndKept)
{
    ASSERT_TRUE(OpenToCreate(files, "a.IDA", file).Ok());
    files["/work/a.IDA"] = "other";
    EXPECT_EQ(file->Finish().number, 58);
    EXPECT_EQ(Names(), Strings{"a.IDA"});
    EXPECT_EQ(files["/work/a.IDA"], "other");
}

} // namespace
} // namespace ls
