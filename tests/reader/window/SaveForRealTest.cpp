// Saves to the real file system: to a full disk, and in a process that is killed while it saves.

#include "RealDesk.h"
#include "platform/ChildProcess.h"
#include "support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <thread>

#include <sched.h>
#include <sys/mount.h>

namespace ls {
namespace {

using Strings = std::vector<std::string>;
using Clock = std::chrono::steady_clock;

constexpr int Topics = 300;
constexpr const char* Saved = "information|Lodestar Advisor|File saved";
constexpr const char* IniBefore = "LSADVISOR V5.3 INI\r\n[TOP10FILES]\r\n*1; NAME=/elsewhere/Old.IDA\r\n";

std::string Read(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void Write(const std::string& path, const std::string& bytes)
{
    std::ofstream(path, std::ios::binary) << bytes;
}

// A book whose topics have that many bytes each; topic 2 reads "edited" if it was edited.
std::string BookText(std::size_t bytesOfTopic, bool edited)
{
    std::string bytes = "LODESTAR BOOK V5.3\r\n";
    for (int i = 1; i <= Topics; ++i) {
        bytes += "[Topic " + std::to_string(i) + "]\r\n";
        bytes += edited && i == 2 ? "edited\r\n\r\n" : std::string(bytesOfTopic, 'x') + "\r\n";
    }
    return bytes;
}

// A `RealDesk` whose settings already list a recent file.
struct RealWorld : test::RealDesk
{
    explicit RealWorld(const std::string& iniDir) : RealDesk(iniDir)
    {
        AddRecentFile(settings, "/elsewhere/Old.IDA");
    }
};

struct SaveForReal : testing::Test
{
    test::ScratchFolder folder;
};

// Saves to a disk with more room in each round: first too little for a book of about 300 KiB, later only too
// little for the settings. Returns the fault that it finds, or "".
std::string FillDisk(const std::string& input, const std::string& disk)
{
    constexpr std::size_t Page = 4096;
    int full = 0;
    int settingsFull = 0;
    for (std::size_t room = 0;; room += Page) {
        if (room > 200 * Page) {
            return "the disk never had enough room";
        }
        Write(disk + "/LSAdvisor.INI", IniBefore);
        Write(disk + "/filler", std::string((std::filesystem::space(disk).available / Page) * Page, 'f'));
        std::filesystem::resize_file(disk + "/filler", std::filesystem::file_size(disk + "/filler") - room);
        RealWorld world(disk);
        if (!world.OpenEdited(input)) {
            return "the book could not be opened";
        }
        const Strings boxes = world.SaveAs(disk + "/Out.IDA");
        const bool saved = !boxes.empty() && boxes.front() == Saved;
        if (saved != std::filesystem::exists(disk + "/Out.IDA")) {
            return "the message does not match the disk, with room for " + std::to_string(room);
        }
        if (saved && Read(disk + "/Out.IDA") != BookText(1000, true)) {
            return "the saved book is incomplete";
        }
        const std::string ini = Read(disk + "/LSAdvisor.INI");
        if (saved && boxes.size() == 1) {
            return full > 10 && settingsFull > 0 ? "" : "the disk was not full often enough";
        }
        if (ini != IniBefore) {
            return "the settings were lost: " + ini;
        }
        if (saved) {
            ++settingsFull;
        } else {
            ++full;
            if (boxes != Strings{"warning|Lodestar Advisor|Failed to write due to error #61: Disk full"} ||
                world.book.BookPath != input || !world.book.BookChanged ||
                world.book.TopicRecs(2).Text != "edited\r\n") {
                return "something was lost: " + (boxes.empty() ? "no box" : boxes.front());
            }
            std::filesystem::remove(disk + "/filler");
            std::filesystem::remove(disk + "/Out.IDA.part");
            if (world.SaveAs(disk + "/Again.IDA").front() != Saved ||
                Read(disk + "/Again.IDA") != BookText(1000, true)) {
                return "the book could not be saved after room was made";
            }
        }
        for (const char* name : {"/filler", "/Out.IDA", "/Again.IDA"}) {
            std::filesystem::remove(disk + name);
        }
    }
}

TEST_F(SaveForReal, save_diskFullAtAnyPoint_losesNothing)
{
    constexpr int CannotMount = 99;
    const std::string disk = folder.MakeFolder("disk");
    const std::string input = folder.Write("In.IDA", BookText(1000, false));
    folder.Write("fault", "not reached");
    const int result = test::RunInChild([&] {
        if (::unshare(CLONE_NEWNS) != 0 || ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
            ::mount("none", disk.c_str(), "tmpfs", 0, "size=1m") != 0) {
            return CannotMount;
        }
        Write(folder / "fault", FillDisk(input, disk));
        return 0;
    });
    if (result == CannotMount) {
        GTEST_SKIP() << "only root can mount a small disk";
    }
    EXPECT_EQ(result, 0);
    EXPECT_EQ(folder.Read("fault"), "");
    EXPECT_EQ(folder.Read("In.IDA"), BookText(1000, false));
}

/// A process that opens "In.IDA", edits it, saves it as "Out.IDA", and is killed at some moment.
struct KilledWhileSaving : SaveForReal
{
    static constexpr std::size_t BytesOfTopic = 40000; ///< the book has 12 MB

    void SetUp() override
    {
        input = BookText(BytesOfTopic, false);
        output = BookText(BytesOfTopic, true);
        folder.Write("In.IDA", input);
    }

    // Starts the process and kills it when `now` returns true, or waits for its end.
    void Round(const std::function<bool()>& now)
    {
        for (const char* name : {"Out.IDA", "Out.IDA.part", "LSAdvisor.INI.new"}) {
            std::filesystem::remove(folder / name);
        }
        folder.Write("LSAdvisor.INI", IniBefore);
        const pid_t child = ::fork();
        if (child == 0) {
            RealWorld world(folder.Path());
            const bool opened = world.OpenEdited(folder / "In.IDA");
            ::_exit(opened && world.SaveAs(folder / "Out.IDA") == Strings{Saved} ? 0 : 1);
        }
        int status = 0;
        while (!now() && ::waitpid(child, &status, WNOHANG) == 0) {
            std::this_thread::sleep_for(std::chrono::microseconds(50));
        }
        ::kill(child, SIGKILL);
        ::waitpid(child, &status, 0);
    }

    void ExpectAllWhole()
    {
        EXPECT_TRUE(folder.Read("In.IDA") == input) << "the open book was damaged";
        if (folder.Has("Out.IDA")) {
            EXPECT_TRUE(folder.Read("Out.IDA") == output) << "Out.IDA is incomplete";
            EXPECT_FALSE(folder.Has("Out.IDA.part"));
        }
        const std::string ini = folder.Read("LSAdvisor.INI");
        const std::string iniAfter = "LSADVISOR V5.3 INI\r\n[TOP10FILES]\r\n*1; NAME=" + folder / "Out.IDA" +
                                     "\r\n*2; NAME=/elsewhere/Old.IDA\r\n";
        EXPECT_TRUE(ini == IniBefore || ini == iniAfter) << ini;
        EXPECT_TRUE(ini == IniBefore || folder.Has("Out.IDA"));
    }

    std::string input;
    std::string output;
};

TEST_F(KilledWhileSaving, save_killedAtRandomPoints_everyFileIsWhole)
{
    const auto start = Clock::now();
    Round([] { return false; });
    const auto whole = std::chrono::duration_cast<std::chrono::microseconds>(Clock::now() - start);
    ExpectAllWhole();
    ASSERT_TRUE(folder.Has("Out.IDA")) << "the process saved nothing, although it was not killed";
    std::minstd_rand random(20260101);
    std::uniform_int_distribution<std::int64_t> points(0, whole.count());
    for (int i = 0; i < 40 && !HasFailure(); ++i) {
        const auto until = Clock::now() + std::chrono::microseconds(points(random));
        Round([until] { return Clock::now() >= until; });
        ExpectAllWhole();
    }
}

TEST_F(KilledWhileSaving, save_killedInTheMiddleOfWriting_leavesAPartOnly)
{
    for (const std::uintmax_t size : {1U, 1000000U, 6000000U, 11000000U}) {
        Round([this, size] {
            std::error_code missing;
            const std::uintmax_t written = std::filesystem::file_size(folder / "Out.IDA.part", missing);
            return !missing && written >= size;
        });
        ExpectAllWhole();
        EXPECT_NE(folder.Has("Out.IDA"), folder.Has("Out.IDA.part")) << size;
    }
}

} // namespace
} // namespace ls
