#include "platform/linux/LinuxFileSystem.h"

#include "ChildProcess.h"
#include "support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

namespace ls {
namespace {

using test::RunInChild;
using test::ScratchFolder;

struct LinuxFileSystemTest : testing::Test
{
    ScratchFolder folder;
    LinuxFileSystem files;
    std::unique_ptr<BookFile> file;

    FileError Open(const std::string& path) { return files.OpenForReading(path, Sharing::Shared, file); }

    std::string ReadAt(FilePos pos, std::size_t size)
    {
        std::string buffer(size, '?');
        std::size_t got = 0;
        EXPECT_EQ(file->ReadAt(pos, buffer.data(), size, got), FileError{});
        return buffer.substr(0, got);
    }

    // Sorted names: "name", "name/" for a folder, "(name)" for a hidden one.
    std::vector<std::string> Names(const std::string& path)
    {
        std::vector<FolderEntry> entries;
        EXPECT_EQ(files.List(path, entries), FileError{});
        std::vector<std::string> names;
        for (const FolderEntry& entry : entries) {
            const std::string name = entry.name + (entry.isFolder ? "/" : "");
            names.push_back(entry.hidden ? "(" + name + ")" : name);
        }
        std::sort(names.begin(), names.end());
        return names;
    }
};

TEST_F(LinuxFileSystemTest, sameFile_linksAndSpellings_areOneFile)
{
    const std::string a = folder.Write("a", "x");
    const std::string b = folder.Write("b", "x");
    std::filesystem::create_hard_link(a, a + ".hard");
    std::filesystem::create_symlink(a, a + ".soft");
    EXPECT_TRUE(files.SameFile(a, a));
    EXPECT_TRUE(files.SameFile(a, a + ".hard"));
    EXPECT_TRUE(files.SameFile(a + ".soft", a));
    EXPECT_FALSE(files.SameFile(a, b));
    EXPECT_FALSE(files.SameFile(a, a + ".none"));
}

TEST_F(LinuxFileSystemTest, readAt_positions_countFromOne)
{
    ASSERT_EQ(Open(folder.Write("a", "abcdef")), FileError{});
    EXPECT_EQ(ReadAt(1, 2), "ab");
    EXPECT_EQ(ReadAt(5, 2), "ef");
    EXPECT_EQ(ReadAt(2, 3), "bcd");
}

TEST_F(LinuxFileSystemTest, readAt_endOfFile_givesFewerBytes)
{
    ASSERT_EQ(Open(folder.Write("a", "abcdef")), FileError{});
    EXPECT_EQ(ReadAt(5, 10), "ef");
    EXPECT_EQ(ReadAt(7, 10), "");
    EXPECT_EQ(ReadAt(1'000'000'000'000, 10), "");
}

// The kernel gives this file one page at a time, whatever size is asked for.
TEST_F(LinuxFileSystemTest, readAt_shortReads_goesOnToTheEnd)
{
    ASSERT_EQ(Open("/proc/self/smaps"), FileError{});
    constexpr std::size_t Page = 4096;
    EXPECT_GT(ReadAt(1, 10 * Page).size(), 2 * Page);
}

TEST_F(LinuxFileSystemTest, readAt_positionZero_isRefused)
{
    ASSERT_EQ(Open(folder.Write("a", "abc")), FileError{});
    char byte = 0;
    std::size_t got = 7;
    EXPECT_EQ(file->ReadAt(0, &byte, 1, got), (FileError{5, "Invalid procedure call or argument"}));
    EXPECT_EQ(got, 0U);
}

TEST_F(LinuxFileSystemTest, readAt_beyondTwoGigabytes_readsThere)
{
    const std::string path = folder.Write("a", "");
    constexpr FilePos Far = 3'000'000'000;
    std::filesystem::resize_file(path, Far - 1); // a hole, which takes no room on the disk
    std::FILE* end = std::fopen(path.c_str(), "a");
    std::fputs("far", end);
    std::fclose(end);
    ASSERT_EQ(Open(path), FileError{});
    EXPECT_EQ(ReadAt(Far, 10), "far");
}

TEST_F(LinuxFileSystemTest, size_fileThatGrew_isItsSizeNow)
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

TEST_F(LinuxFileSystemTest, open_missing_tellsFileFromFolder)
{
    EXPECT_EQ(Open(folder / "none"), (FileError{53, "File not found"}));
    EXPECT_EQ(Open(folder / "none/none"), (FileError{76, "Path not found"}));
    EXPECT_EQ(Open(folder.Write("a", "") + "/below"), (FileError{76, "Path not found"}));
    EXPECT_EQ(file, nullptr);
}

TEST_F(LinuxFileSystemTest, open_folder_is75)
{
    EXPECT_EQ(Open(folder.Path()), (FileError{75, "Path/File access error"}));
    EXPECT_EQ(Open("/"), (FileError{75, "Path/File access error"}));
}

TEST_F(LinuxFileSystemTest, open_pipe_doesNotWait)
{
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    EXPECT_EQ(Open(folder / "pipe"), (FileError{68, "Device unavailable"}));
    EXPECT_EQ(files.OpenForReading(folder / "pipe", Sharing::Locked, file).number, 68);
}

TEST_F(LinuxFileSystemTest, open_deviceOrSocket_is68)
{
    EXPECT_EQ(Open("/dev/zero"), (FileError{68, "Device unavailable"}));
    EXPECT_EQ(Open("/dev/tty").number, 68);
    const std::string path = folder / "socket";
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    path.copy(address.sun_path, sizeof address.sun_path - 1);
    const int socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
    ASSERT_EQ(::bind(socket, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    EXPECT_EQ(Open(path), (FileError{68, "Device unavailable"}));
    ::close(socket);
}

TEST_F(LinuxFileSystemTest, open_links_followsThem)
{
    folder.Write("a", "abc");
    std::filesystem::create_symlink("a", folder / "good");
    std::filesystem::create_symlink("none", folder / "dangling");
    std::filesystem::create_symlink("loop", folder / "loop");
    ASSERT_EQ(Open(folder / "good"), FileError{});
    EXPECT_EQ(ReadAt(1, 3), "abc");
    EXPECT_EQ(Open(folder / "dangling"), (FileError{53, "File not found"}));
    EXPECT_EQ(Open(folder / "loop"), (FileError{75, "Path/File access error"}));
}

TEST_F(LinuxFileSystemTest, open_impossibleName_is52)
{
    folder.Write("a", "");
    const FileError badName{52, "Bad file name or number"};
    EXPECT_EQ(Open(folder / "a" + std::string("\0b", 2)), badName);
    EXPECT_EQ(Open(folder / std::string(300, 'x')), badName);
    EXPECT_EQ(Open(std::string(5000, '/') + "a"), badName);
}

// Root is refused nothing, so a child process without root's rights opens it.
TEST_F(LinuxFileSystemTest, open_noRights_is70)
{
    const std::string path = folder.Write("closed/a", "");
    ASSERT_EQ(::chmod(folder.Path().c_str(), 0755), 0);
    ASSERT_EQ(::chmod(path.c_str(), 0), 0);
    const auto openIt = [this, &path] { return test::BecomeOrdinaryUser() ? Open(path).number : 255; };
    EXPECT_EQ(RunInChild(openIt), 70);
    ASSERT_EQ(::chmod(path.c_str(), 0644), 0);
    ASSERT_EQ(::chmod((folder / "closed").c_str(), 0), 0);
    EXPECT_EQ(RunInChild(openIt), 70);
    ASSERT_EQ(::chmod((folder / "closed").c_str(), 0755), 0);
    EXPECT_EQ(RunInChild(openIt), 0);
}

TEST_F(LinuxFileSystemTest, open_lockedWithoutRightToWrite_isOpened)
{
    const std::string path = folder.Write("a", "abc");
    ASSERT_EQ(::chmod(folder.Path().c_str(), 0755), 0);
    ASSERT_EQ(::chmod(path.c_str(), 0444), 0);
    EXPECT_EQ(RunInChild([this, &path] {
                  if (!test::BecomeOrdinaryUser()) {
                      return 255;
                  }
                  return files.OpenForReading(path, Sharing::Locked, file).number;
              }),
              0);
}

TEST_F(LinuxFileSystemTest, open_noDescriptorLeft_is67)
{
    const std::string path = folder.Write("a", "");
    EXPECT_EQ(RunInChild([this, &path] {
                  const rlimit none{0, 0};
                  ::setrlimit(RLIMIT_NOFILE, &none);
                  return Open(path).number;
              }),
              67);
}

TEST_F(LinuxFileSystemTest, exists_everyKindOfName_isSeen)
{
    folder.Write("a", "");
    std::filesystem::create_symlink("none", folder / "dangling");
    EXPECT_TRUE(files.Exists(folder / "a"));
    EXPECT_TRUE(files.Exists(folder.Path()));
    EXPECT_TRUE(files.Exists(folder / "dangling"));
    EXPECT_TRUE(files.Exists("/dev/null"));
    EXPECT_FALSE(files.Exists(folder / "none"));
    EXPECT_FALSE(files.Exists(folder / "a/below"));
    EXPECT_FALSE(files.Exists(folder / "a" + std::string("\0", 1)));
    EXPECT_FALSE(files.Exists(""));
}

TEST_F(LinuxFileSystemTest, list_folder_tellsFoldersAndHiddenNames)
{
    folder.Write("Guide.IDA", "");
    folder.Write(".hidden", "");
    folder.MakeFolder("books");
    folder.MakeFolder(".config");
    folder.Write("na\xefve.IDA", ""); // any bytes, not only UTF-8
    std::filesystem::create_symlink("books", folder / "to folder");
    std::filesystem::create_symlink("Guide.IDA", folder / "to file");
    std::filesystem::create_symlink("none", folder / "to nothing");
    EXPECT_EQ(Names(folder.Path()),
              (std::vector<std::string>{"(.config/)", "(.hidden)", "Guide.IDA", "books/", "na\xefve.IDA",
                                        "to file", "to folder/", "to nothing"}));
}

TEST_F(LinuxFileSystemTest, list_linkToFolder_listsTheFolder)
{
    folder.Write("books/a", "");
    std::filesystem::create_symlink("books", folder / "link");
    EXPECT_EQ(Names(folder / "link"), std::vector<std::string>{"a"});
}

TEST_F(LinuxFileSystemTest, list_noFolder_isCleared)
{
    std::vector<FolderEntry> entries{{"old", false, false}};
    EXPECT_EQ(files.List(folder / "none", entries), (FileError{76, "Path not found"}));
    EXPECT_TRUE(entries.empty());
    EXPECT_EQ(files.List(folder.Write("a", ""), entries), (FileError{76, "Path not found"}));
}

TEST_F(LinuxFileSystemTest, list_noRights_is70)
{
    folder.MakeFolder("closed");
    ASSERT_EQ(::chmod(folder.Path().c_str(), 0755), 0);
    ASSERT_EQ(::chmod((folder / "closed").c_str(), 0), 0);
    EXPECT_EQ(RunInChild([this] {
                  std::vector<FolderEntry> entries;
                  return test::BecomeOrdinaryUser() ? files.List(folder / "closed", entries).number : 255;
              }),
              70);
    ASSERT_EQ(::chmod((folder / "closed").c_str(), 0755), 0); // so that the folder can be removed
}

TEST_F(LinuxFileSystemTest, currentFolder_changed_isTheFullPath)
{
    folder.Write("a", "");
    ASSERT_EQ(::chdir(folder.Path().c_str()), 0);
    EXPECT_EQ(files.CurrentFolder(), folder.Path());
    EXPECT_EQ(Names(""), std::vector<std::string>{"a"});
    EXPECT_EQ(Open("a"), FileError{});
    EXPECT_EQ(Open("none"), (FileError{53, "File not found"}));
    EXPECT_EQ(::chdir("/"), 0);
}

TEST_F(LinuxFileSystemTest, currentFolder_removed_isEmpty)
{
    const std::string gone = folder.MakeFolder("gone");
    ASSERT_EQ(::chdir(gone.c_str()), 0);
    ASSERT_EQ(::rmdir(gone.c_str()), 0);
    EXPECT_EQ(files.CurrentFolder(), "");
    EXPECT_EQ(::chdir("/"), 0);
}

} // namespace
} // namespace ls
