#include "platform/windows/WindowsFileSystem.h"

#include "platform/windows/WideText.h"
#include "platform/windows/WindowsOutputFile.h"
#include "support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <atomic>
#include <filesystem>
#include <thread>

#include <windows.h>

namespace ls {
namespace {

const FileError NameTaken{58, "File already exists"};
const FileError Missing{53, "File not found"};
const FileError NoFolder{76, "Path not found"};
const FileError Denied{70, "Permission denied"};
const FileError Folder{75, "Path/File access error"};
const FileError BadName{52, "Bad file name or number"};
const FileError NoDevice{68, "Device unavailable"};

struct WindowsFileWriteTest : testing::Test
{
    test::ScratchFolder folder;
    WindowsFileSystem files;
    std::unique_ptr<OutputFile> file;

    static void MarkReadOnly(const std::string& path, bool readOnly)
    {
        ::SetFileAttributesW(ToWide(path)->c_str(),
                             readOnly ? FILE_ATTRIBUTE_READONLY : FILE_ATTRIBUTE_NORMAL);
    }
};

TEST_F(WindowsFileWriteTest, createNew_newName_holdsWhatWasWritten)
{
    ASSERT_EQ(files.CreateNew(folder / "a", file), FileError{});
    EXPECT_EQ(file->Write("one\r\n"), FileError{});
    EXPECT_EQ(file->Write(""), FileError{});
    EXPECT_EQ(file->Write(std::string_view("\0two\n", 5)), FileError{});
    EXPECT_EQ(file->Write(std::string(3'000'000, 'x')), FileError{});
    EXPECT_EQ(file->Finish(), FileError{});
    EXPECT_TRUE(folder.Read("a") == std::string("one\r\n\0two\n", 10) + std::string(3'000'000, 'x'));
}

TEST_F(WindowsFileWriteTest, createNew_takenName_isRefused)
{
    folder.Write("a", "old");
    folder.MakeFolder("books");
    EXPECT_EQ(files.CreateNew(folder / "a", file), NameTaken);
    EXPECT_EQ(file, nullptr);
    EXPECT_EQ(files.CreateNew(folder / "A", file), NameTaken);
    EXPECT_EQ(files.CreateNew(folder / "books", file), NameTaken);
    EXPECT_EQ(folder.Read("a"), "old");
}

TEST_F(WindowsFileWriteTest, createNew_impossible_tellsWhy)
{
    EXPECT_EQ(files.CreateNew(folder / "none\\a", file), NoFolder);
    EXPECT_EQ(files.CreateNew(folder.Write("a", "") + "\\b", file), NoFolder);
    EXPECT_EQ(files.CreateNew("Q:\\a", file), NoDevice);
    EXPECT_EQ(files.CreateNew("NUL", file), NoDevice);
    EXPECT_EQ(files.CreateNew(folder / "a?b", file), BadName);
    EXPECT_EQ(files.CreateNew(folder / "a\xFF", file), BadName);
}

TEST_F(WindowsFileWriteTest, createNew_sameMoment_hasOneWinner)
{
    for (int round = 0; round < 20; ++round) {
        const std::string path = folder / ("race" + std::to_string(round));
        std::atomic<int> won = 0;
        std::atomic<int> refused = 0;
        std::atomic<int> ready = 0;
        const auto make = [&] {
            std::unique_ptr<OutputFile> mine;
            for (++ready; ready < 2;) {
                std::this_thread::yield();
            }
            const FileError error = files.CreateNew(path, mine);
            won += error.Ok() ? 1 : 0;
            refused += error == NameTaken ? 1 : 0;
        };
        std::thread other(make);
        make();
        other.join();
        EXPECT_EQ(won, 1);
        EXPECT_EQ(refused, 1);
    }
}

TEST_F(WindowsFileWriteTest, finish_twice_is52)
{
    ASSERT_EQ(files.CreateNew(folder / "a", file), FileError{});
    EXPECT_EQ(file->Finish(), FileError{});
    EXPECT_EQ(file->Finish(), BadName);
    EXPECT_EQ(file->Write("x"), BadName);
    EXPECT_EQ(folder.Read("a"), "");
}

// A handle without the right to write acts as a failing disk.
TEST_F(WindowsFileWriteTest, write_thatFails_isToldAgainByFinish)
{
    folder.Write("a", "old");
    WindowsOutputFile closed(
        WindowsHandle(::CreateFileW(ToWide(folder / "a")->c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr)));
    EXPECT_EQ(closed.Write("x"), Denied);
    EXPECT_EQ(closed.Write(""), Denied);
    EXPECT_EQ(closed.Finish(), Denied);
    EXPECT_EQ(folder.Read("a"), "old");
}

TEST_F(WindowsFileWriteTest, renameToNew_takenName_isRefused)
{
    const std::string from = folder.Write("from", "new");
    folder.Write("to", "old");
    folder.MakeFolder("books");
    EXPECT_EQ(files.RenameToNew(from, folder / "to"), NameTaken);
    EXPECT_EQ(files.RenameToNew(from, folder / "TO"), NameTaken);
    EXPECT_EQ(folder.Read("to"), "old");
    EXPECT_EQ(folder.Read("from"), "new");
    EXPECT_EQ(files.RenameToNew(from, folder / "free"), FileError{});
    EXPECT_EQ(folder.Read("free"), "new");
    EXPECT_FALSE(folder.Has("from"));
}

TEST_F(WindowsFileWriteTest, rename_missing_tellsWhat)
{
    const std::string from = folder.Write("from", "new");
    EXPECT_EQ(files.RenameToNew(folder / "none", folder / "to"), Missing);
    EXPECT_EQ(files.RenameToNew(from, folder / "none\\to"), NoFolder);
    EXPECT_EQ(files.RenameOver(folder / "none", folder / "to"), Missing);
    EXPECT_EQ(files.RenameOver(from, folder / "none\\to"), NoFolder);
    EXPECT_EQ(files.RenameOver(from, folder.MakeFolder("books")), Folder);
    EXPECT_EQ(folder.Read("from"), "new");
}

TEST_F(WindowsFileWriteTest, renameOver_takenName_isReplaced)
{
    folder.Write("to", "old");
    EXPECT_EQ(files.RenameOver(folder.Write("from", "new"), folder / "to"), FileError{});
    EXPECT_EQ(folder.Read("to"), "new");
    EXPECT_FALSE(folder.Has("from"));
}

// A file that a reader has open with Shared can be replaced and removed.
TEST_F(WindowsFileWriteTest, renameAndRemove_fileThatIsOpenShared_areDone)
{
    const std::string path = folder.Write("a", "old");
    std::unique_ptr<BookFile> reader;
    ASSERT_EQ(files.OpenForReading(path, Sharing::Shared, reader), FileError{});
    EXPECT_EQ(files.RenameToNew(path, folder / "b"), FileError{});
    EXPECT_EQ(folder.Read("b"), "old");
    EXPECT_EQ(files.Remove(folder / "b"), FileError{});
    reader.reset();
    EXPECT_FALSE(folder.Has("b"));
}

// A scanner has the file open for a moment: the rename waits and then succeeds.
TEST_F(WindowsFileWriteTest, rename_fileThatIsOpenForAMoment_waits)
{
    const std::string path = folder.Write("a", "new");
    std::unique_ptr<BookFile> scanner;
    ASSERT_EQ(files.OpenForReading(path, Sharing::Locked, scanner), FileError{});
    std::thread later([&scanner] {
        ::Sleep(200);
        scanner.reset();
    });
    EXPECT_EQ(files.RenameToNew(path, folder / "b"), FileError{});
    later.join();
    EXPECT_EQ(folder.Read("b"), "new");
}

TEST_F(WindowsFileWriteTest, rename_lockedFile_isRefused)
{
    const std::string path = folder.Write("a", "mine");
    const std::string other = folder.Write("b", "new");
    std::unique_ptr<BookFile> lock;
    ASSERT_EQ(files.OpenForReading(path, Sharing::Locked, lock), FileError{});
    EXPECT_EQ(files.RenameOver(other, path), Denied);
    EXPECT_EQ(files.RenameToNew(path, folder / "c"), Denied);
    EXPECT_EQ(files.Remove(path), Denied);
    lock.reset();
    EXPECT_EQ(folder.Read("a"), "mine");
    EXPECT_EQ(folder.Read("b"), "new");
}

TEST_F(WindowsFileWriteTest, readOnlyFile_isNotWritable)
{
    const std::string path = folder.Write("a", "mine");
    EXPECT_EQ(files.CheckWritable(path), FileError{});
    MarkReadOnly(path, true);
    EXPECT_EQ(files.CheckWritable(path), Denied);
    EXPECT_EQ(files.Remove(path), Denied);
    EXPECT_EQ(files.CheckWritable(folder / "none"), Missing);
    EXPECT_EQ(files.CheckWritable(folder / "none\\a"), NoFolder);
    EXPECT_EQ(folder.Read("a"), "mine");
    MarkReadOnly(path, false);
}

TEST_F(WindowsFileWriteTest, remove_names_takesFilesOnly)
{
    EXPECT_EQ(files.Remove(folder.Write("a", "")), FileError{});
    EXPECT_FALSE(folder.Has("a"));
    EXPECT_EQ(files.Remove(folder / "a"), Missing);
    EXPECT_EQ(files.Remove(folder / "none\\a"), NoFolder);
    EXPECT_EQ(files.Remove(folder.MakeFolder("books")), Folder);
    EXPECT_EQ(files.Remove("Q:\\a"), NoDevice);
}

TEST_F(WindowsFileWriteTest, makeFolder_levels_areMadeAndKept)
{
    EXPECT_EQ(files.MakeFolder(folder / "a\\b\\\xCE\xB1"), FileError{});
    EXPECT_TRUE(files.Exists(folder / "a\\b\\\xCE\xB1"));
    folder.Write("a\\kept", "kept");
    EXPECT_EQ(files.MakeFolder(folder / "a"), FileError{}) << "an existing folder is left alone";
    EXPECT_EQ(folder.Read("a\\kept"), "kept");
    EXPECT_EQ(files.MakeFolder("C:\\"), FileError{});
    EXPECT_EQ(files.MakeFolder(folder / "a\\kept"), Folder);
    EXPECT_EQ(files.MakeFolder(folder / "a\\kept\\below"), Folder);
    EXPECT_EQ(files.MakeFolder("Q:\\a\\b"), NoDevice);
    EXPECT_EQ(files.MakeFolder(folder / "a\xFF"), BadName);
}

} // namespace
} // namespace ls
