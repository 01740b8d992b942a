// The time from the start of a program until the first topic is painted, and its memory. Compares this
// program with Debian's viewers of help documents; all show the same text.
//
//   bench_start FOLDER PROGRAM      (makes the documents in FOLDER)

#include "bench/Measure.h"
#include "bench/StartDocuments.h"
#include "bench/StartedProgram.h"
#include "bench/VirtualScreen.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>

#include <unistd.h>

namespace ls::bench {
namespace {

constexpr int Rounds = 7;
constexpr int HeadingPixels = 50; // in the heading's colour; the edges of letters have other shades
constexpr auto Patience = std::chrono::seconds(30);
constexpr auto Settling = std::chrono::milliseconds(700);

using Clock = std::chrono::steady_clock;

struct Viewer
{
    std::string name;
    std::vector<std::string> words;
    std::string home;
    std::vector<double> starts = {}; ///< milliseconds
    GroupMemory memory = {};         ///< the most of all runs
    bool error = false;
};

std::vector<std::string> EnvironmentOf(const Viewer& viewer, const VirtualScreen& screen)
{
    return {"DISPLAY=" + screen.Display(),
            "HOME=" + viewer.home,
            "XDG_CONFIG_HOME=" + viewer.home + "/.config",
            "XDG_DATA_HOME=" + viewer.home + "/.local/share",
            "XDG_CACHE_HOME=" + viewer.home + "/.cache",
            "XDG_RUNTIME_DIR=" + viewer.home,
            "QT_QPA_PLATFORM=xcb",
            "LANG=C.UTF-8",
            "NO_AT_BRIDGE=1",
            "DBUS_SESSION_BUS_ADDRESS=unix:path=/nonexistent", // otherwise a bus would start too
            "QTWEBENGINE_DISABLE_SANDBOX=1"};                  // the sandbox refuses to run as root
}

// Wall time, because a start includes its waits for the display's server and for other processes. Negative if
// no topic appears.
double MillisecondsToTopic(const VirtualScreen& screen, pid_t program, Clock::time_point start)
{
    while (Clock::now() - start < Patience && Runs(program)) {
        if (screen.CountOf(HeadingColour) >= HeadingPixels) {
            return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
        }
        usleep(1000);
    }
    return -1;
}

void WaitUntilGone(const VirtualScreen& screen)
{
    for (int i = 0; i < 500 && screen.CountOf(HeadingColour) > 0; ++i) {
        usleep(10000);
    }
    Require(screen.CountOf(HeadingColour) == 0, "a viewer's window goes with it");
}

void RunOnce(Viewer& viewer, const VirtualScreen& screen, bool counts)
{
    const auto start = Clock::now();
    const pid_t program = StartProgram(viewer.words, EnvironmentOf(viewer, screen));
    const double took = MillisecondsToTopic(screen, program, start);
    viewer.error = viewer.error || took < 0;
    usleep(static_cast<useconds_t>(std::chrono::microseconds(Settling).count()));
    const GroupMemory memory = PeakMemoryOf(program);
    EndProgram(program);
    WaitUntilGone(screen);
    if (counts) {
        viewer.starts.push_back(took);
        viewer.memory = memory.all > viewer.memory.all ? memory : viewer.memory;
    }
}

std::vector<Viewer> ViewersOf(const StartDocuments& documents, const std::string& program,
                              const std::string& folder)
{
    std::vector<Viewer> viewers{{"LSAdvisor", {program, documents.book}, folder + "/home"}};
    for (const char* name : {"xchm", "kchmviewer"}) {
        if (Installed(name) && !documents.chm.empty()) {
            viewers.push_back({name, {name, documents.chm}, folder + "/home-" + name});
        }
    }
    if (Installed("zeal") && !documents.zealHome.empty()) {
        viewers.push_back({"zeal", {"zeal", "bench:Topic 1"}, documents.zealHome});
    }
    for (const Viewer& viewer : viewers) {
        std::filesystem::create_directories(viewer.home);
        std::filesystem::permissions(viewer.home, std::filesystem::perms::owner_all);
    }
    return viewers;
}

std::string MemoryText(const GroupMemory& memory)
{
    return std::to_string(memory.all / 1024) + " MiB";
}

void PrintViewer(const Viewer& viewer, const Viewer& own)
{
    const bool peer = &viewer != &own;
    if (viewer.error) {
        PrintRow("start, " + viewer.name, "shows no topic");
        return;
    }
    const double median = MedianOf(viewer.starts);
    const double ownMedian = MedianOf(own.starts);
    const double ownMemory = static_cast<double>(own.memory.all);
    if (!peer) {
        PrintRow("start to the first topic, " + viewer.name, Milliseconds(median));
        PrintRow("peak memory then, " + viewer.name, MemoryText(viewer.memory));
        return;
    }
    PrintFaster("start to the first topic, " + viewer.name, Milliseconds(median), median / ownMedian, 1);
    const std::string count = viewer.memory.processes == 1
                                  ? std::string()
                                  : " (" + std::to_string(viewer.memory.processes) + " processes)";
    PrintFaster("peak memory then, " + viewer.name + count, MemoryText(viewer.memory),
                static_cast<double>(viewer.memory.all) / ownMemory, 0);
}

void Run(const std::string& folder, const std::string& program)
{
    const StartDocuments documents = MakeStartDocuments(folder);
    const VirtualScreen screen(folder + "/screen");
    std::vector<Viewer> viewers = ViewersOf(documents, program, folder);
    for (int round = 0; round <= Rounds; ++round) {
        for (Viewer& viewer : viewers) {
            if (!viewer.error) {
                RunOnce(viewer, screen, round > 0); // the first runs bring the files into the page cache
            }
        }
    }
    Require(!viewers.front().error, "the program shows a topic");
    for (const Viewer& viewer : viewers) {
        PrintViewer(viewer, viewers.front());
    }
}

} // namespace
} // namespace ls::bench

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fputs("usage: bench_start FOLDER PROGRAM\n", stderr);
        return 2;
    }
    ls::bench::PrintHead(
        "Starting a window",
        "The time from the start of the process until the heading of the first topic is on the screen, by "
        "the clock on the wall. The viewers run in turns on one virtual display and show the same 200 "
        "topics. Memory is the most that was resident, added up over a viewer's processes. Pages that the "
        "processes share count more than once.");
    const std::string folder = std::filesystem::absolute(argv[1]).string() + "/start";
    std::filesystem::create_directories(folder);
    ls::bench::Run(folder, std::filesystem::absolute(argv[2]));
    return 0;
}
