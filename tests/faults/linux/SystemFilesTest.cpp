// System files that the program reads directly: desktop entries and the table of mounts. Each system call
// fails in turn; the table "faults/system.txt" gives the results.

#include "../FailingCalls.h"
#include "../FaultRow.h"
#include "TwoBrowsers.h"
#include "browser/APISubs.h"
#include "platform/linux/LinuxFileSystem.h"
#include "platform/linux/LinuxRegistry.h"
#include "platform/linux/LinuxVolumes.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <functional>

namespace ls {
namespace {

using test::FailingCalls;
using test::Outcome;

constexpr int MostCalls = 200;

struct SystemFiles : testing::Test
{
    // The results for each call failing, and for none, in the form of the table.
    [[nodiscard]] std::string TableOf(const std::function<Outcome()>& act, int errnoValue) const
    {
        std::vector<Outcome> outcomes;
        std::string error;
        do {
            const FailingCalls failing(static_cast<int>(outcomes.size()) + 1, {"", errnoValue, false});
            outcomes.push_back(act());
            error = failing.Error();
            outcomes.back().call = error.empty() ? "" : error + " " + Short(failing.Path());
        } while (!error.empty() && outcomes.size() < MostCalls);
        return test::TableText(outcomes);
    }

    // The result is the same for every error code.
    void ExpectTable(const std::string& row, const std::function<Outcome()>& act) const
    {
        for (const int errnoValue : {EIO, EMFILE, ENOMEM}) {
            EXPECT_EQ(TableOf(act, errnoValue), test::ReadTable("system.txt", row)) << errnoValue;
        }
    }

    [[nodiscard]] std::string Short(const std::string& path) const
    {
        return path.starts_with(scratch.Path()) ? path.substr(scratch.Path().size() + 1) : path;
    }

    test::ScratchFolder scratch;
};

TEST_F(SystemFiles, browser_eachCallFailing_isAsIfTheFileWereNotThere)
{
    test::WriteTwoBrowsers(scratch);
    ExpectTable("browser", [this] {
        test::RecordingProcesses processes = test::ProcessesOn(scratch);
        LinuxRegistry registry(processes);
        LinuxFileSystem files;
        ProgramEnd end;
        test::AgreeingMessages messages{end};
        std::string program = ".HTM";
        std::string page = "/page.htm";
        const std::int16_t result =
            LaunchProgram({files, messages, processes, end, UnixPaths}, registry, program, page);
        Outcome outcome;
        outcome.told = messages.Take();
        outcome.left = result == launch::Started ? Short(processes.started.front()) : "no browser";
        return outcome;
    });
}

// A table of mounts in two blocks. One disk is at its beginning, and one where the blocks meet:
// "/media/la|st".
std::string Mounts()
{
    constexpr std::size_t block = 16 * 1024;
    const std::string before = "/dev/sdc1 /media/la";
    std::string table = "/dev/sdb1 /media/first vfat rw 0 0\n";
    table.resize(block - before.size() - 1, '#');
    return table + "\n" + before + "st vfat rw 0 0\n";
}

TEST_F(SystemFiles, disks_eachCallFailing_listsThoseThatWereRead)
{
    LinuxVolumes volumes(scratch.Write("mounts", Mounts()));
    ExpectTable("disks", [&volumes] {
        Outcome outcome;
        for (const Volume& volume : volumes.List()) {
            if (volume.folder == "/" || volume.folder.starts_with("/media/")) { // not the home folder
                outcome.left += (outcome.left.empty() ? "" : " ") + volume.folder;
            }
        }
        return outcome;
    });
}

} // namespace
} // namespace ls
