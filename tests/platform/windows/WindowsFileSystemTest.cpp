#include "platform/windows/WindowsFileSystem.h"

#include "platform/windows/WideText.h"
#include "support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include <windows.h>

namespace ls {
namespace {

using Strings = std::vector<std::string>;

const FileError Missing{53, "File not found"};
const FileError NoFolder{76, "Path not found"};
const FileError Folder{75, "Path/File access error"};
const FileError BadName{52, "Bad file name or number"};
const FileError NoDevice{68, "Device unavailable"};
const FileError NoDisk{71, "Disk not ready"};

// "αβ €.IDA": the first two letters are not in the code page of Western Europe.
const char* const WideName = "\xCE\xB1\xCE\xB2 \xE2\x82\xAC.IDA";

struct WindowsFileSystemTest : testing::Test
{
    test::ScratchFolder folder;
    WindowsFileSystem files;
    std::unique_ptr<BookFile> file;
    std::string oldFolder = files.CurrentFolder();

    ~WindowsFileSystemTest() override { GoTo(oldFolder); }

    static void GoTo(const std::string& path)
    {
        EXPECT_NE(::SetCurrentDirectoryW(ToWide(path)->c_str()), 0) << path;
    }

    FileError Open(const std::string& path) { return files.OpenForReading(path, Sharing::Shared, file); }

    std::string ReadAt(FilePos pos, std::size_t size)
    {
        std::string buffer(size, '?');
        std::size_t got = 0;
        EXPECT_EQ(file->ReadAt(pos, buffer.data(), size, got), FileError{});
        return buffer.substr(0, got);
    }

    // The content of that file; "error N" when it does not open.
    std::string Content(const std::string& path)
    {
        const FileError error = Open(path);
        return error.Ok() ? ReadAt(1, 1000) : "error " + std::to_string(error.number);
    }

    // Sorted names: "name", "name\" for a folder, "(name)" for a hidden one.
    Strings Names(const std::string& path)
    {
        std::vector<FolderEntry> entries;
        EXPECT_EQ(files.List(path, entries), FileError{}) << path;
        Strings names;
        for (const FolderEntry& entry : entries) {
            const std::string name = entry.name + (entry.isFolder ? "\\" : "");
            names.push_back(entry.hidden ? "(" + name + ")" : name);
        }
        std::sort(names.begin(), names.end());
        return names;
    }
};

TEST_F(WindowsFileSystemTest, readAt_positions_countFromOne)
{
    ASSERT_EQ(Open(folder.Write("a", "abcdef")), FileError{});
    EXPECT_EQ(ReadAt(1, 2), "ab");
    EXPECT_EQ(ReadAt(5, 2), "ef");
    EXPECT_EQ(ReadAt(5, 10), "ef") << "fewer at the end";
    EXPECT_EQ(ReadAt(7, 10), "");
    EXPECT_EQ(ReadAt(1'000'000'000'000, 10), "");
    char byte = 0;
    std::size_t got = 7;
    EXPECT_EQ(file->ReadAt(0, &byte, 1, got), (FileError{5, "Invalid procedure call or argument"}));
    EXPECT_EQ(got, 0U);
}

TEST_F(WindowsFileSystemTest, readAt_moreThanOnePiece_readsAll)
{
    std::string bytes(3'000'000, 'x');
    bytes.back() = 'z';
    ASSERT_EQ(Open(folder.Write("a", bytes)), FileError{});
    EXPECT_TRUE(ReadAt(1, bytes.size()) == bytes);
    EXPECT_EQ(ReadAt(2'999'999, 10), "xz");
}

TEST_F(WindowsFileSystemTest, readAt_beyondFourGigabytes_readsThere)
{
    const std::string path = folder.Write("a", "");
    constexpr FilePos Far = 5'000'000'000;
    std::filesystem::resize_file(path, Far - 1); // a hole, which takes no room on the disk
    std::FILE* end = std::fopen(path.c_str(), "ab");
    std::fputs("far", end);
    std::fclose(end);
    ASSERT_EQ(Open(path), FileError{});
    EXPECT_EQ(ReadAt(Far, 10), "far");
    FilePos size = 0;
    EXPECT_EQ(file->Size(size), FileError{});
    EXPECT_EQ(size, Far + 2);
}

TEST_F(WindowsFileSystemTest, size_fileThatGrew_isItsSizeNow)
{
    const std::string path = folder.Write("a", "abc");
    ASSERT_EQ(Open(path), FileError{});
    FilePos size = 0;
    EXPECT_EQ(file->Size(size), FileError{});
    EXPECT_EQ(size, 3);
    std::filesystem::resize_file(path, 10);
    EXPECT_EQ(file->Size(size), FileError{});
    EXPECT_EQ(size, 10);
}

TEST_F(WindowsFileSystemTest, open_missing_tellsFileFromFolderFromDrive)
{
    EXPECT_EQ(Open(folder / "none"), Missing);
    EXPECT_EQ(Open(folder / "none\\none"), NoFolder);
    EXPECT_EQ(Open(folder.Write("a", "") + "\\below"), NoFolder);
    EXPECT_EQ(Open("Q:\\a"), NoDevice);
    EXPECT_EQ(Open("Q:\\none\\a"), NoDevice);
    EXPECT_EQ(Open("\\\\?\\Q:\\a"), NoDevice);
    EXPECT_EQ(file, nullptr);
}

// tests/windows/with-wine makes such a drive.
TEST_F(WindowsFileSystemTest, driveWithoutADisk_isNotReady)
{
    ASSERT_EQ(::GetDriveTypeW(L"E:\\"), UINT{DRIVE_CDROM});
    EXPECT_EQ(Open("E:\\Guide.IDA"), NoDisk);
    EXPECT_EQ(Open("E:\\none\\Guide.IDA"), NoDisk);
    EXPECT_EQ(Open("e:Guide.IDA"), NoDisk);
    EXPECT_EQ(Open("\\\\?\\E:\\Guide.IDA"), NoDisk);
    EXPECT_EQ(Open("E:\\"), NoDisk);
    EXPECT_EQ(file, nullptr);
    std::unique_ptr<OutputFile> made;
    EXPECT_EQ(files.CreateNew("E:\\Guide.IDA", made), NoDisk);
    EXPECT_EQ(made, nullptr);
    std::vector<FolderEntry> entries{{"old", false, false}};
    EXPECT_EQ(files.List("E:\\", entries), NoDisk);
    EXPECT_EQ(files.List("E:", entries), NoDisk);
    EXPECT_TRUE(entries.empty());
    EXPECT_FALSE(files.Exists("E:\\Guide.IDA"));
    EXPECT_EQ(files.Remove("E:\\Guide.IDA"), NoDisk);
    EXPECT_EQ(files.MakeFolder("E:\\books"), NoDisk);
    EXPECT_EQ(files.RenameToNew(folder.Write("a", "book"), "E:\\a"), NoDisk);
    EXPECT_EQ(Content(folder / "a"), "book");
}

TEST_F(WindowsFileSystemTest, open_folder_is75)
{
    EXPECT_EQ(Open(folder.Path()), Folder);
    EXPECT_EQ(Open(folder.Path() + "\\"), Folder);
    EXPECT_EQ(Open("C:\\"), Folder);
    EXPECT_EQ(Open("C:"), Folder);
}

TEST_F(WindowsFileSystemTest, open_impossibleName_is52)
{
    EXPECT_EQ(Open(""), Missing);
    EXPECT_EQ(Open("a\xFF"), BadName);
    EXPECT_EQ(Open(folder / "a" + std::string("\0b", 2)), BadName);
    EXPECT_EQ(Open(folder / "a<b"), BadName);
    EXPECT_EQ(Open(folder / "a|b"), BadName);
}

TEST_F(WindowsFileSystemTest, open_device_is68)
{
    for (const char* name : {"NUL", "nul", "CON", "\\\\.\\NUL"}) {
        EXPECT_EQ(Open(name), NoDevice) << name;
        EXPECT_EQ(file, nullptr) << name;
    }
}

TEST_F(WindowsFileSystemTest, open_pipe_is68)
{
    const HANDLE pipe =
        ::CreateNamedPipeW(L"\\\\.\\pipe\\lstest", PIPE_ACCESS_DUPLEX, PIPE_TYPE_BYTE, 1, 0, 0, 0, nullptr);
    ASSERT_NE(pipe, INVALID_HANDLE_VALUE);
    EXPECT_EQ(Open("\\\\.\\pipe\\lstest"), NoDevice);
    ::CloseHandle(pipe);
}

TEST_F(WindowsFileSystemTest, names_inAnotherCase_areTheSameFile)
{
    folder.Write("Guide.IDA", "book");
    EXPECT_EQ(Content(folder / "guide.ida"), "book");
    EXPECT_EQ(Content(folder / "GUIDE.IDA"), "book");
    EXPECT_TRUE(files.Exists(folder / "gUIDE.ida"));
    EXPECT_TRUE(files.SameFile(folder / "Guide.IDA", folder / "GUIDE.ida"));
    std::unique_ptr<OutputFile> made;
    EXPECT_EQ(files.CreateNew(folder / "GUIDE.ida", made), MakeFileError(error::FileAlreadyExists));
    EXPECT_EQ(Names(folder.Path()), Strings{"Guide.IDA"}) << "listed in its real spelling";
}

TEST_F(WindowsFileSystemTest, names_beyondTheCodePage_workEverywhere)
{
    std::unique_ptr<OutputFile> made;
    ASSERT_EQ(files.CreateNew(folder / WideName, made), FileError{});
    EXPECT_EQ(made->Write("greek"), FileError{});
    EXPECT_EQ(made->Finish(), FileError{});
    EXPECT_EQ(Content(folder / WideName), "greek");
    EXPECT_EQ(Names(folder.Path()), Strings{WideName});
    file.reset();
    const std::string accents = folder / "\xC3\x84pfel.IDA";
    EXPECT_EQ(files.RenameToNew(folder / WideName, accents), FileError{});
    EXPECT_EQ(Content(folder / "\xC3\xA4PFEL.ida"), "greek") << "letters with accents have no case either";
    file.reset();
    EXPECT_EQ(files.Remove(accents), FileError{});
    EXPECT_FALSE(files.Exists(accents));
}

// "C:NAME" is a file in the drive's current folder.
TEST_F(WindowsFileSystemTest, names_behindADriveAlone_areInItsCurrentFolder)
{
    folder.Write("Guide.IDA", "book");
    ASSERT_EQ(folder.Path().substr(0, 2), "C:");
    GoTo(folder.Path());
    EXPECT_EQ(files.CurrentFolder(), folder.Path());
    EXPECT_EQ(Content("C:Guide.IDA"), "book");
    EXPECT_EQ(Content("Guide.IDA"), "book");
    EXPECT_EQ(Names("C:"), Strings{"Guide.IDA"});
    EXPECT_EQ(Names(""), Strings{"Guide.IDA"});
    std::unique_ptr<OutputFile> made;
    EXPECT_EQ(files.CreateNew("C:New.IDA", made), FileError{});
    EXPECT_TRUE(folder.Has("New.IDA"));
    EXPECT_EQ(Content("C:\\Guide.IDA"), "error 53") << "the root has no such file";
    EXPECT_EQ(Content(folder.Path().substr(2) + "\\Guide.IDA"), "book") << "a name without its drive";

    // The system stores the current folder of another drive in this variable.
    ::SetEnvironmentVariableW(L"=C:", ToWide(folder.Path())->c_str());
    GoTo("Z:\\");
    EXPECT_EQ(Content("C:Guide.IDA"), "book") << "from another drive";
}

TEST_F(WindowsFileSystemTest, list_root_hasItsFolders)
{
    const Strings names = Names("C:\\");
    EXPECT_EQ(std::count(names.begin(), names.end(), "windows\\"), 1);
    EXPECT_EQ(Names("C:/"), names);
    GoTo("C:\\");
    EXPECT_EQ(files.CurrentFolder(), "C:\\");
    EXPECT_EQ(Names("C:"), names);
}

TEST_F(WindowsFileSystemTest, list_folder_tellsFoldersAndHiddenNames)
{
    folder.Write("Guide.IDA", "");
    folder.MakeFolder("books");
    ::SetFileAttributesW(ToWide(folder.Write("secret", ""))->c_str(), FILE_ATTRIBUTE_HIDDEN);
    EXPECT_EQ(Names(folder.Path()), (Strings{"(secret)", "Guide.IDA", "books\\"}));
    EXPECT_EQ(Names(folder.Path() + "\\"), Names(folder.Path()));
    EXPECT_EQ(Names(folder / "books"), Strings{});
}

TEST_F(WindowsFileSystemTest, list_noFolder_isClearedAndTold)
{
    std::vector<FolderEntry> entries{{"old", false, false}};
    EXPECT_EQ(files.List(folder / "none", entries), NoFolder);
    EXPECT_TRUE(entries.empty());
    EXPECT_EQ(files.List(folder.Write("a", ""), entries), NoFolder);
    EXPECT_EQ(files.List("Q:\\", entries), NoDevice);
    EXPECT_EQ(files.List("Q:", entries), NoDevice);
    EXPECT_EQ(files.List("a\xFF", entries), BadName);
}

TEST_F(WindowsFileSystemTest, exists_everyKindOfName_isSeen)
{
    folder.Write("a", "");
    EXPECT_TRUE(files.Exists(folder / "a"));
    EXPECT_TRUE(files.Exists(folder.Path()));
    EXPECT_TRUE(files.Exists("C:\\"));
    EXPECT_FALSE(files.Exists(folder / "none"));
    EXPECT_FALSE(files.Exists(folder / "a\\below"));
    EXPECT_FALSE(files.Exists("Q:\\"));
    EXPECT_FALSE(files.Exists(""));
}

TEST_F(WindowsFileSystemTest, sameFile_linksAndSpellings_areOneFile)
{
    const std::string a = folder.Write("a", "x");
    const std::string b = folder.Write("b", "x");
    ASSERT_NE(::CreateHardLinkW(ToWide(a + ".hard")->c_str(), ToWide(a)->c_str(), nullptr), 0);
    GoTo(folder.Path());
    EXPECT_TRUE(files.SameFile(a, "a"));
    EXPECT_TRUE(files.SameFile(a, "C:.\\A"));
    EXPECT_TRUE(files.SameFile(a, a + ".hard"));
    EXPECT_FALSE(files.SameFile(a, b));
    EXPECT_FALSE(files.SameFile(a, a + ".none"));
}

TEST_F(WindowsFileSystemTest, longPath_isReached)
{
    std::string path = folder.Path();
    std::vector<std::wstring> folders;
    for (int level = 0; level < 12; ++level) {
        path += "\\" + std::string(30, static_cast<char>('a' + level));
        folders.push_back(*ToWide("\\\\?\\" + path));
        ASSERT_NE(::CreateDirectoryW(folders.back().c_str(), nullptr), 0) << path.size();
    }
    ASSERT_GT(path.size(), std::size_t{MAX_PATH});
    std::unique_ptr<OutputFile> made;
    ASSERT_EQ(files.CreateNew(path + "\\Guide.IDA", made), FileError{});
    EXPECT_EQ(made->Write("deep"), FileError{});
    EXPECT_EQ(made->Finish(), FileError{});
    EXPECT_EQ(Content(path + "\\Guide.IDA"), "deep");
    EXPECT_EQ(Names(path), Strings{"Guide.IDA"});
    EXPECT_EQ(Content(path + "\\None.IDA"), "error 53");
    file.reset();
    EXPECT_EQ(files.Remove(path + "\\Guide.IDA"), FileError{});
    for (; !folders.empty(); folders.pop_back()) { // the library's own function fails here
        EXPECT_NE(::RemoveDirectoryW(folders.back().c_str()), 0);
    }
}

} // namespace
} // namespace ls
