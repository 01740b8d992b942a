// Exports to real files: into a folder without write permission, to a full disk, and to names that cannot be
// files.

#include "book/BookLoader.h"
#include "platform/ChildProcess.h"
#include "platform/linux/LinuxFileSystem.h"
#include "render/html/ExportItem.h"
#include "render/html/ExportTopic.h"
#include "support/RecordingMessages.h"
#include "support/RecordingProcesses.h"
#include "support/ScratchFolder.h"

#include <filesystem>

#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>

namespace ls {
namespace {

using Strings = std::vector<std::string>;

struct ExportForReal : testing::Test
{
    test::ScratchFolder folder;
    ProgramEnd end;
    LinuxFileSystem files;
    test::RecordingMessages messages{end};
    test::RecordingProcesses processes;
    Seams seams{files, messages, processes, end, UnixPaths};
    Book book;

    void SetUp() override
    {
        book.BookPath =
            folder.Write("In.IDA", "LODESTAR BOOK V5.3\r\n[A]\r\n" + std::string(300'000, 'x') + "\r\n");
        ASSERT_TRUE(OpenBook(book, seams));
        ASSERT_TRUE(ScanBook(book, seams));
        book.CurrentTopicName = "[A]";
        book.CurrentTopicNo = 1;
    }

    // The message of an export to that path.
    std::string Said(const std::string& path)
    {
        messages.inputs = {path};
        ExportItem_Click(book, seams);
        const Strings boxes = messages.Take();
        return boxes.size() == 2 ? boxes[1] : std::to_string(boxes.size()) + " boxes";
    }

    static std::string NotOpened(const std::string& path, const std::string& error)
    {
        return "warning|Lodestar Advisor|Failed to open <<" + path + ">> due to error #" + error + ".";
    }
};

TEST_F(ExportForReal, newFile_isWhole)
{
    EXPECT_EQ(Said(folder / "x.htm"), "information|Lodestar Advisor|The export is complete.");
    EXPECT_EQ(folder.Read("x.htm").size(), 69U + 7U + 300'000U + 2U * 4286U);
    EXPECT_FALSE(folder.Has("x.htm.new"));
}

TEST_F(ExportForReal, folderThatMayNotBeWritten_isError70)
{
    const std::string closed = folder.MakeFolder("closed");
    ASSERT_EQ(::chmod(closed.c_str(), 0555), 0);
    ASSERT_EQ(::chmod(folder.Path().c_str(), 0755), 0);
    EXPECT_EQ(test::RunInChild([&] {
                  const bool ordinary = test::BecomeOrdinaryUser();
                  return ordinary && Said(closed + "/x.htm") ==
                                         NotOpened(closed + "/x.htm", "70: Permission denied")
                             ? 0
                             : 1;
              }),
              0);
}

TEST_F(ExportForReal, readOnlyFileInAnOpenFolder_isError70AndStays)
{
    const std::string path = folder.Write("open/x.htm", "mine");
    ASSERT_EQ(::chmod(path.c_str(), 0444), 0);
    ASSERT_EQ(::chmod((folder / "open").c_str(), 0777), 0);
    ASSERT_EQ(::chmod(folder.Path().c_str(), 0755), 0);
    EXPECT_EQ(test::RunInChild([&] {
                  const bool ordinary = test::BecomeOrdinaryUser();
                  return ordinary && Said(path) == NotOpened(path, "70: Permission denied") ? 0 : 1;
              }),
              0);
    EXPECT_EQ(folder.Read("open/x.htm"), "mine");
}

TEST_F(ExportForReal, namesThatAreNoFiles_areRefused)
{
    EXPECT_EQ(Said(folder.Path()), NotOpened(folder.Path(), "75: Path/File access error"));
    EXPECT_EQ(Said(folder / "none/x.htm"), NotOpened(folder / "none/x.htm", "76: Path not found"));
    EXPECT_EQ(Said("/dev/full"), NotOpened("/dev/full", "68: Device unavailable"));
    EXPECT_FALSE(std::filesystem::exists("/dev/full.new"));
}

TEST_F(ExportForReal, openBookByALink_isError55)
{
    std::filesystem::create_symlink(folder / "In.IDA", folder / "link.htm");
    std::filesystem::create_hard_link(folder / "In.IDA", folder / "hard.htm");
    for (const std::string name : {"link.htm", "hard.htm", "./In.IDA"}) {
        EXPECT_EQ(Said(folder / name), NotOpened(folder / name, "55: File already open"));
    }
    EXPECT_EQ(folder.Read("In.IDA").size(), 300'027U);
}

TEST_F(ExportForReal, fileThatSomebodyElseHasLocked_isError70)
{
    folder.Write("other.IDA", "somebody's book");
    std::unique_ptr<BookFile> lock;
    ASSERT_TRUE(files.OpenForReading(folder / "other.IDA", Sharing::Locked, lock).Ok());
    EXPECT_EQ(Said(folder / "other.IDA"), NotOpened(folder / "other.IDA", "70: Permission denied"));
    EXPECT_EQ(folder.Read("other.IDA"), "somebody's book");
}

TEST_F(ExportForReal, nameWithQuotesAndAngleBrackets_isMadeAsItIs)
{
    const std::string name = "\"a\" <b> & 'c' é.htm";
    EXPECT_EQ(Said(folder / name), "information|Lodestar Advisor|The export is complete.");
    EXPECT_TRUE(folder.Has(name));
}

TEST_F(ExportForReal, fullDisk_isToldAndTheOldFileStays)
{
    constexpr int CannotMount = 99;
    const std::string disk = folder.MakeFolder("disk");
    const int result = test::RunInChild([&] {
        if (::unshare(CLONE_NEWNS) != 0 || ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
            ::mount("none", disk.c_str(), "tmpfs", 0, "size=64k") != 0) {
            return CannotMount;
        }
        folder.Write("disk/x.htm", "old");
        const bool told =
            Said(disk + "/x.htm") == "warning|Lodestar Advisor|Failed to write due to error #61: Disk full";
        return told && folder.Read("disk/x.htm") == "old" && !folder.Has("disk/x.htm.new") ? 0 : 1;
    });
    if (result == CannotMount) {
        GTEST_SKIP() << "only root can mount a small disk";
    }
    EXPECT_EQ(result, 0);
}

} // namespace
} // namespace ls
