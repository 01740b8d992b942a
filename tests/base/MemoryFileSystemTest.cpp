#include "support/MemoryFileSystem.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

using test::MemoryFileSystem;
using Strings = std::vector<std::string>;

struct MemoryFileSystemTest : testing::Test
{
    MemoryFileSystem files;
    std::unique_ptr<BookFile> in;
    std::unique_ptr<OutputFile> out;

    int OpenError(const std::string& path) { return files.OpenForReading(path, Sharing::Shared, in).number; }

    std::string Read(FilePos pos, std::size_t size)
    {
        std::string bytes(size, '?');
        std::size_t got = 0;
        EXPECT_TRUE(in->ReadAt(pos, bytes.data(), size, got).Ok());
        return bytes.substr(0, got);
    }
};

TEST_F(MemoryFileSystemTest, open_whatIsNoFile_givesItsError)
{
    files["/b/x"] = "x";
    files.AddFolder("/empty");
    EXPECT_EQ(OpenError("/b/y"), error::FileNotFound);
    EXPECT_EQ(OpenError("/none/y"), error::PathNotFound);
    EXPECT_EQ(OpenError("/b"), error::PathFileAccess);
    EXPECT_EQ(OpenError("/empty"), error::PathFileAccess);
    EXPECT_EQ(in, nullptr);
    EXPECT_EQ(OpenError("/b/x"), 0);
}

TEST_F(MemoryFileSystemTest, open_recordsHowItWasShared)
{
    files["/x"];
    ASSERT_TRUE(files.OpenForReading("/x", Sharing::Shared, in).Ok());
    ASSERT_TRUE(files.OpenForReading("/x", Sharing::Locked, in).Ok());
    EXPECT_EQ(files.opened, (Strings{"/x shared", "/x locked"}));
}

TEST_F(MemoryFileSystemTest, readAt_givesWhatTheFileHoldsNow)
{
    files["/x"] = "abcdef";
    ASSERT_EQ(OpenError("/x"), 0);
    EXPECT_EQ(Read(1, 3), "abc");
    EXPECT_EQ(Read(5, 10), "ef");
    EXPECT_EQ(Read(7, 1), "");
    EXPECT_EQ(Read(700, 1), "");
    files["/x"] = "changed";
    EXPECT_EQ(Read(1, 10), "changed");
    FilePos size = 0;
    ASSERT_TRUE(in->Size(size).Ok());
    EXPECT_EQ(size, 7);
}

TEST_F(MemoryFileSystemTest, createNew_writesAFile)
{
    ASSERT_TRUE(files.CreateNew("/b/x", out).Ok());
    ASSERT_TRUE(out->Write("ab").Ok());
    ASSERT_TRUE(out->Write("c").Ok());
    ASSERT_TRUE(out->Finish().Ok());
    EXPECT_EQ(files["/b/x"], "abc");
    EXPECT_TRUE(files.Exists("/b"));
}

TEST_F(MemoryFileSystemTest, createNew_existingName_isError58AndKeepsTheFile)
{
    files["/x"] = "kept";
    EXPECT_EQ(files.CreateNew("/x", out).number, error::FileAlreadyExists);
    EXPECT_EQ(files["/x"], "kept");
}

TEST_F(MemoryFileSystemTest, write_fault_leavesAPart)
{
    files.fail = [](const std::string& operation) { return operation == "write /x" ? error::DiskFull : 0; };
    ASSERT_TRUE(files.CreateNew("/x", out).Ok());
    EXPECT_EQ(out->Write("abcd").number, error::DiskFull);
    EXPECT_EQ(files["/x"], "ab");
}

TEST_F(MemoryFileSystemTest, rename_toNewOrOver)
{
    files["/a"] = "a";
    files["/b"] = "b";
    EXPECT_EQ(files.RenameToNew("/a", "/b").number, error::FileAlreadyExists);
    EXPECT_EQ(files["/b"], "b");
    ASSERT_TRUE(files.RenameOver("/a", "/b").Ok());
    EXPECT_EQ(files["/b"], "a");
    EXPECT_FALSE(files.Has("/a"));
    ASSERT_TRUE(files.RenameToNew("/b", "/c").Ok());
    EXPECT_EQ(files["/c"], "a");
    EXPECT_EQ(files.RenameToNew("/a", "/d").number, error::FileNotFound);
}

TEST_F(MemoryFileSystemTest, remove_takesTheFileOnce)
{
    files["/a"];
    EXPECT_TRUE(files.Remove("/a").Ok());
    EXPECT_EQ(files.Remove("/a").number, error::FileNotFound);
    EXPECT_FALSE(files.Exists("/a"));
}

TEST_F(MemoryFileSystemTest, relativePaths_lieInTheCurrentFolder)
{
    files["x"] = "x";
    EXPECT_TRUE(files.Exists("/work/x"));
    files.currentFolder = "/other";
    EXPECT_FALSE(files.Exists("x"));
    EXPECT_EQ(files.CurrentFolder(), "/other");
}

TEST_F(MemoryFileSystemTest, list_givesFilesAndFolders)
{
    files["/b/x"];
    files["/b/.hidden"];
    files["/b/sub/deep/y"];
    files.AddFolder("/b/empty");
    files["/bb/other"];
    std::vector<FolderEntry> entries;
    ASSERT_TRUE(files.List("/b", entries).Ok());
    EXPECT_EQ(
        entries,
        (std::vector<FolderEntry>{
            {".hidden", false, true}, {"empty", true, false}, {"sub", true, false}, {"x", false, false}}));
    EXPECT_EQ(files.List("/none", entries).number, error::PathNotFound);
    EXPECT_TRUE(entries.empty());
}

TEST_F(MemoryFileSystemTest, fail_isAskedBeforeEveryOperation)
{
    files["/a"] = "a";
    ASSERT_EQ(OpenError("/a"), 0);
    ASSERT_TRUE(files.CreateNew("/n", out).Ok());
    files.log.clear();
    files.fail = [](const std::string&) { return error::DeviceIo; };
    char byte = 0;
    std::size_t got = 0;
    std::vector<FolderEntry> entries;
    std::unique_ptr<BookFile> other;
    std::unique_ptr<OutputFile> created;
    EXPECT_EQ(files.OpenForReading("/a", Sharing::Shared, other).number, error::DeviceIo);
    EXPECT_EQ(in->ReadAt(1, &byte, 1, got).number, error::DeviceIo);
    EXPECT_EQ(files.CreateNew("/c", created).number, error::DeviceIo);
    EXPECT_EQ(out->Write("x").number, error::DeviceIo);
    EXPECT_EQ(out->Finish().number, error::DeviceIo);
    EXPECT_EQ(files.RenameOver("/a", "/b").number, error::DeviceIo);
    EXPECT_EQ(files.RenameToNew("/a", "/b").number, error::DeviceIo);
    EXPECT_EQ(files.Remove("/a").number, error::DeviceIo);
    EXPECT_EQ(files.List("/", entries).number, error::DeviceIo);
    EXPECT_EQ(files.log, (Strings{"open /a", "read /a 1", "create /c", "write /n", "finish /n",
                                  "rename /a /b", "rename /a /b", "remove /a", "list /"}));
    EXPECT_TRUE(files.Has("/a"));
}

TEST_F(MemoryFileSystemTest, makeFolder_makesThoseAboveAndRefusesAFile)
{
    EXPECT_EQ(files.MakeFolder("/x/y/z"), FileError{});
    EXPECT_TRUE(files.CreateNew("/x/y/z/new", out).Ok());
    EXPECT_TRUE(files.CreateNew("/x/new", out).Ok());
    EXPECT_EQ(files.MakeFolder("/x/y"), FileError{});
    files["/file"] = "f";
    EXPECT_EQ(files.MakeFolder("/file").number, error::PathFileAccess);
    files.fail = [](const std::string& is) { return is == "folder /q" ? error::DiskFull : 0; };
    EXPECT_EQ(files.MakeFolder("/q").number, error::DiskFull);
    EXPECT_FALSE(files.Exists("/q"));
}

} // namespace
} // namespace ls
