#include "platform/linux/LinuxFileSystem.h"

#include "ChildProcess.h"
#include "platform/linux/LinuxOutputFile.h"
#include "support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <latch>
#include <thread>

#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>

namespace ls {
namespace {

using test::RunInChild;

const FileError NameTaken{58, "File already exists"};
const FileError FileMissing{53, "File not found"};
const FileError FolderMissing{76, "Path not found"};
const FileError DiskFull{61, "Disk full"};
const FileError NotOpen{52, "Bad file name or number"};

struct LinuxFileSystemWriteTest : testing::Test
{
    test::ScratchFolder folder;
    LinuxFileSystem files;
    std::unique_ptr<OutputFile> file;
};

TEST_F(LinuxFileSystemWriteTest, createNew_newName_holdsWhatWasWritten)
{
    ASSERT_EQ(files.CreateNew(folder / "a", file), FileError{});
    EXPECT_EQ(file->Write("one\r\n"), FileError{});
    EXPECT_EQ(file->Write(""), FileError{});
    EXPECT_EQ(file->Write(std::string_view("\0two", 4)), FileError{});
    EXPECT_EQ(file->Finish(), FileError{});
    EXPECT_EQ(folder.Read("a"), std::string("one\r\n\0two", 9));
}

TEST_F(LinuxFileSystemWriteTest, createNew_takenName_isRefused)
{
    folder.Write("a", "old");
    std::filesystem::create_symlink("none", folder / "dangling");
    folder.MakeFolder("books");
    for (const char* name : {"a", "dangling", "books"}) {
        EXPECT_EQ(files.CreateNew(folder / name, file), NameTaken) << name;
        EXPECT_EQ(file, nullptr) << name;
    }
    EXPECT_EQ(folder.Read("a"), "old");
    EXPECT_FALSE(folder.Has("none"));
}

TEST_F(LinuxFileSystemWriteTest, createNew_missingFolder_is76)
{
    EXPECT_EQ(files.CreateNew(folder / "none/a", file), FolderMissing);
    EXPECT_EQ(files.CreateNew(folder.Write("a", "") + "/b", file), FolderMissing);
}

TEST_F(LinuxFileSystemWriteTest, createNew_impossibleName_is52)
{
    EXPECT_EQ(files.CreateNew(folder / std::string(300, 'x'), file), NotOpen);
    EXPECT_EQ(files.CreateNew(folder / "a" + std::string("\0b", 2), file), NotOpen);
    EXPECT_FALSE(folder.Has("a"));
}

TEST_F(LinuxFileSystemWriteTest, createNew_closedFolder_is70)
{
    ASSERT_EQ(::chmod(folder.Path().c_str(), 0555), 0);
    EXPECT_EQ(RunInChild([this] {
                  return test::BecomeOrdinaryUser() ? files.CreateNew(folder / "a", file).number : 255;
              }),
              70);
}

TEST_F(LinuxFileSystemWriteTest, finish_twice_is52)
{
    ASSERT_EQ(files.CreateNew(folder / "a", file), FileError{});
    EXPECT_EQ(file->Finish(), FileError{});
    EXPECT_EQ(file->Finish(), NotOpen);
    EXPECT_EQ(file->Write("x"), NotOpen);
    EXPECT_EQ(folder.Read("a"), "");
}

TEST_F(LinuxFileSystemWriteTest, write_fullDevice_failsAndFinishTellsItAgain)
{
    LinuxOutputFile full(FileDescriptor(::open("/dev/full", O_WRONLY | O_CLOEXEC)));
    EXPECT_EQ(full.Write("x"), DiskFull);
    EXPECT_EQ(full.Write(""), DiskFull);
    EXPECT_EQ(full.Finish(), DiskFull);
}

// Only a part of the last write fits: the file is cut, and the write fails.
TEST_F(LinuxFileSystemWriteTest, write_beyondTheUsersLimit_isDiskFullAndNotTheEnd)
{
    EXPECT_EQ(RunInChild([this] {
                  const rlimit limit{1000, 1000};
                  ::setrlimit(RLIMIT_FSIZE, &limit);
                  std::signal(SIGXFSZ, SIG_DFL);
                  LinuxFileSystem own;
                  static_cast<void>(own.CreateNew(folder / "a", file));
                  const bool first = file->Write(std::string(600, 'x')).Ok();
                  const FileError second = file->Write(std::string(600, 'y'));
                  return first && second == DiskFull && file->Finish() == DiskFull ? 0 : 1;
              }),
              0);
    EXPECT_EQ(folder.Read("a").size(), 1000U);
}

TEST_F(LinuxFileSystemWriteTest, write_diskThatFillsUp_isDiskFull)
{
    constexpr int CannotMount = 99;
    const std::string disk = folder.MakeFolder("disk");
    const int result = RunInChild([this, &disk] {
        if (::unshare(CLONE_NEWNS) != 0 || ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
            ::mount("none", disk.c_str(), "tmpfs", 0, "size=64k") != 0) {
            return CannotMount;
        }
        static_cast<void>(files.CreateNew(disk + "/a", file));
        const FileError written = file->Write(std::string(200'000, 'x'));
        return written == DiskFull && file->Finish() == DiskFull ? 0 : 1;
    });
    if (result == CannotMount) {
        GTEST_SKIP() << "only root can mount a small disk";
    }
    EXPECT_EQ(result, 0);
}

std::atomic<int> interruptions = 0;

// Whether the thread is waiting in the kernel.
bool Sleeps(pid_t thread)
{
    std::ifstream file("/proc/self/task/" + std::to_string(thread) + "/stat");
    std::string stat;
    std::getline(file, stat);
    const std::size_t name = stat.rfind(") ");
    return name != std::string::npos && stat[name + 2] == 'S';
}

// Lets the writer wait at a full pipe, interrupts it three times, then reads the pipe empty.
std::size_t InterruptAndRead(int pipe, pthread_t writer, pid_t writerId, std::size_t size)
{
    for (int i = 0; i < 3; ++i) {
        while (!Sleeps(writerId)) {
            std::this_thread::yield();
        }
        ::pthread_kill(writer, SIGUSR1);
        while (interruptions <= i) {
            std::this_thread::yield();
        }
    }
    std::string buffer(10'000, '\0');
    std::size_t received = 0;
    for (ssize_t count = 1; count > 0 && received < size;) {
        count = ::read(pipe, buffer.data(), std::min(buffer.size(), size - received));
        received += count > 0 ? static_cast<std::size_t>(count) : 0;
    }
    return received;
}

// A writer waits at a full pipe until it is read. A signal without SA_RESTART interrupts the wait.
TEST_F(LinuxFileSystemWriteTest, write_interruptedAndShortWrites_writesAll)
{
    int ends[2];
    ASSERT_EQ(::pipe2(ends, O_CLOEXEC), 0);
    struct sigaction action = {};
    action.sa_handler = [](int) { ++interruptions; };
    struct sigaction before = {};
    ASSERT_EQ(::sigaction(SIGUSR1, &action, &before), 0);
    const std::string filling(static_cast<std::size_t>(::fcntl(ends[1], F_GETPIPE_SZ)), 'f');
    ASSERT_EQ(::write(ends[1], filling.data(), filling.size()), static_cast<ssize_t>(filling.size()));

    const std::string bytes(300'000, 'x');
    const std::size_t size = filling.size() + bytes.size();
    std::size_t received = 0;
    std::thread reader([&, writer = ::pthread_self(), writerId = ::gettid()] {
        received = InterruptAndRead(ends[0], writer, writerId, size);
    });
    LinuxOutputFile pipe{FileDescriptor(ends[1])};
    EXPECT_EQ(pipe.Write(bytes), FileError{});
    EXPECT_EQ(pipe.Finish(), FileError{}); // a pipe cannot be flushed, which is no failure
    reader.join();
    EXPECT_EQ(received, size);
    ::close(ends[0]);
    ::sigaction(SIGUSR1, &before, nullptr);
}

TEST_F(LinuxFileSystemWriteTest, renameToNew_takenName_isRefused)
{
    folder.Write("a", "mine");
    folder.Write("b", "old");
    std::filesystem::create_symlink("none", folder / "dangling");
    EXPECT_EQ(files.RenameToNew(folder / "a", folder / "b"), NameTaken);
    EXPECT_EQ(files.RenameToNew(folder / "a", folder / "dangling"), NameTaken);
    EXPECT_EQ(folder.Read("a"), "mine");
    EXPECT_EQ(folder.Read("b"), "old");
}

TEST_F(LinuxFileSystemWriteTest, renameToNew_missing_tellsWhat)
{
    folder.Write("a", "mine");
    EXPECT_EQ(files.RenameToNew(folder / "a", folder / "b"), FileError{});
    EXPECT_EQ(folder.Read("b"), "mine");
    EXPECT_EQ(files.RenameToNew(folder / "a", folder / "c"), FileMissing);
    EXPECT_EQ(files.RenameToNew(folder / "none/a", folder / "c"), FolderMissing);
    EXPECT_EQ(files.RenameToNew(folder / "b", folder / "none/c"), FolderMissing);
    EXPECT_EQ(files.RenameToNew(folder / "b", folder / "c" + std::string("\0d", 2)), NotOpen);
    EXPECT_EQ(folder.Read("b"), "mine");
}

// Several writers want one name at the same moment. Exactly one gets it; the others keep their files.
TEST_F(LinuxFileSystemWriteTest, renameToNew_race_hasOneWinner)
{
    constexpr int Writers = 4;
    for (int round = 0; round < 50; ++round) {
        const std::string target = folder / "final" + std::to_string(round);
        std::latch together(Writers);
        std::atomic<int> winners = 0;
        std::vector<std::thread> threads;
        for (int i = 0; i < Writers; ++i) {
            const std::string part = folder.Write("part" + std::to_string(i), std::to_string(i));
            threads.emplace_back([&, part] {
                together.arrive_and_wait();
                winners += files.RenameToNew(part, target).Ok() ? 1 : 0;
            });
        }
        for (std::thread& thread : threads) {
            thread.join();
        }
        ASSERT_EQ(winners, 1) << round;
    }
}

TEST_F(LinuxFileSystemWriteTest, renameOver_takenName_isReplaced)
{
    folder.Write("a", "new");
    folder.Write("b", "old");
    EXPECT_EQ(files.RenameOver(folder / "a", folder / "b"), FileError{});
    EXPECT_EQ(folder.Read("b"), "new");
    EXPECT_FALSE(folder.Has("a"));
}

TEST_F(LinuxFileSystemWriteTest, renameOver_impossible_tellsWhy)
{
    folder.Write("a", "new");
    folder.MakeFolder("books");
    EXPECT_EQ(files.RenameOver(folder / "none", folder / "b"), FileMissing);
    EXPECT_EQ(files.RenameOver(folder / "a", folder / "none/b"), FolderMissing);
    EXPECT_EQ(files.RenameOver(folder / "a", folder / "books"), (FileError{75, "Path/File access error"}));
    EXPECT_EQ(files.RenameOver(std::string("a\0b", 3), folder / "b"), NotOpen);
    EXPECT_EQ(folder.Read("a"), "new");
}

TEST_F(LinuxFileSystemWriteTest, checkWritable_file_asItsRightsSay)
{
    const std::string open = folder.Write("open", "");
    const std::string closed = folder.Write("closed", "");
    ASSERT_EQ(::chmod(open.c_str(), 0666), 0);
    ASSERT_EQ(::chmod(closed.c_str(), 0444), 0);
    ASSERT_EQ(::chmod(folder.Path().c_str(), 0755), 0);
    EXPECT_EQ(RunInChild([&] {
                  if (!test::BecomeOrdinaryUser()) {
                      return 255;
                  }
                  return files.CheckWritable(open).Ok() ? files.CheckWritable(closed).number : 1;
              }),
              70);
    EXPECT_EQ(files.CheckWritable(folder / "none").number, 53);
}

TEST_F(LinuxFileSystemWriteTest, remove_names_takesFilesOnly)
{
    folder.Write("a", "");
    folder.MakeFolder("books");
    EXPECT_EQ(files.Remove(folder / "a"), FileError{});
    EXPECT_FALSE(folder.Has("a"));
    EXPECT_EQ(files.Remove(folder / "a"), FileMissing);
    EXPECT_EQ(files.Remove(folder / "none/a"), FolderMissing);
    EXPECT_EQ(files.Remove(folder / "books"), (FileError{75, "Path/File access error"}));
    EXPECT_EQ(files.Remove(std::string("a\0b", 3)), NotOpen);
}

TEST_F(LinuxFileSystemWriteTest, remove_link_keepsItsTarget)
{
    folder.Write("a", "bytes");
    std::filesystem::create_symlink("a", folder / "link");
    EXPECT_EQ(files.Remove(folder / "link"), FileError{});
    EXPECT_EQ(folder.Read("a"), "bytes");
}

TEST_F(LinuxFileSystemWriteTest, makeFolder_missingOnes_areMadeForThisUserAlone)
{
    EXPECT_EQ(files.MakeFolder(folder / "a/b/c"), FileError{});
    for (const char* name : {"a", "a/b", "a/b/c"}) {
        struct stat status = {};
        ASSERT_EQ(::stat((folder / name).c_str(), &status), 0) << name;
        EXPECT_EQ(status.st_mode, static_cast<mode_t>(S_IFDIR | 0700)) << name;
    }
}

TEST_F(LinuxFileSystemWriteTest, makeFolder_onesThatAreThere_stayAsTheyAre)
{
    folder.MakeFolder("a");
    folder.Write("a/file", "kept");
    std::filesystem::create_symlink("a", folder / "link");
    std::filesystem::permissions(folder / "a", std::filesystem::perms{0755});
    for (const char* name : {"a", "a/", "link"}) {
        EXPECT_EQ(files.MakeFolder(folder / name), FileError{}) << name;
    }
    EXPECT_EQ(folder.Read("a/file"), "kept");
    EXPECT_EQ(std::filesystem::status(folder / "a").permissions(), std::filesystem::perms{0755});
}

TEST_F(LinuxFileSystemWriteTest, makeFolder_fileInItsPlace_isRefused)
{
    folder.Write("a", "kept");
    EXPECT_EQ(files.MakeFolder(folder / "a").number, error::PathFileAccess);
    EXPECT_FALSE(files.MakeFolder(folder / "a/b").Ok());
    EXPECT_EQ(folder.Read("a"), "kept");
    EXPECT_EQ(files.MakeFolder(std::string("/tmp/x\0y", 8)), NotOpen);
}

} // namespace
} // namespace ls
