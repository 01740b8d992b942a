// The same on real files, one floor below: every system call that the program's own code makes fails, each
// one in turn, once and for good.

#include "FailingCalls.h"
#include "app/Global.h"
#include "base/ReplaceFile.h"
#include "book/BookLoader.h"
#include "browser/APISubs.h"
#include "files/FileFormRules.h"
#include "platform/linux/LinuxFileSystem.h"
#include "platform/linux/LinuxRegistry.h"
#include "reader/BookCommands.h"
#include "reader/Navigation.h"
#include "reader/RecordingView.h"
#include "reader/SaveItem.h"
#include "support/RecordingMessages.h"
#include "support/RecordingProcesses.h"
#include "support/ScratchFolder.h"
#include "support/TestSeams.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <functional>

namespace ls {
namespace {

using test::FailingCalls;
using Strings = std::vector<std::string>;

const std::string Unedited = test::CrLf({"LODESTAR BOOK V5.3", "[A]", "a", "[B]", "b"});
const std::string Edited = test::CrLf({"LODESTAR BOOK V5.3", "[A]", "a", "[B]", "edited", ""});
constexpr const char* Saved = "information|Lodestar Advisor|File saved";

// The main window's rules on real files, with an edited book.
struct Desk
{
    explicit Desk(const test::ScratchFolder& folder)
    {
        settings.IniDir = folder.Path();
        book.BookPath = folder / "In.IDA";
        book.LockBook = true;
        EXPECT_TRUE(OpenBook(book, seams) && ScanBook(book, seams));
        book.TopicRecs(2).Text = "edited\r\n";
        book.BookChanged = true;
    }

    Strings SaveAs(const std::string& path)
    {
        view.onFileForm = [this, path] { AcceptFileName(dialog, path, false, book.LockBook, seams); };
        save.SaveItem_Click();
        return messages.Take();
    }

    ProgramEnd end;
    LinuxFileSystem files;
    test::RecordingMessages messages{end};
    test::RecordingProcesses processes;
    Seams seams{files, messages, processes, end, UnixPaths};
    Book book;
    Settings settings;
    FileDialog dialog;
    test::RecordingView view;
    Navigation navigation{book, seams, view};
    BookCommands commands{book, settings, dialog, seams, view, navigation};
    SaveItem save{book, settings, dialog, seams, view, commands};
};

struct Fault
{
    const char* name;
    int errnoValue;
    bool forGood;
};

class SystemCalls : public testing::TestWithParam<Fault>
{
protected:
    // Does something with every call failing in turn; `act` gives whether it found out what went wrong.
    void ForEachCall(const std::function<void(const std::string& failed)>& check,
                     const std::function<void()>& act, const std::function<void()>& prepare)
    {
        std::vector<std::string> failed;
        for (int failAt = 1; failAt < 500; ++failAt) {
            prepare();
            {
                const FailingCalls failing(failAt, GetParam().errnoValue, GetParam().forGood);
                act();
                failed.push_back(failing.Failed());
            }
            if (failed.back().empty()) {
                break;
            }
            SCOPED_TRACE(std::to_string(failAt) + " " + failed.back());
            check(failed.back());
            if (HasFailure()) {
                break;
            }
        }
        EXPECT_TRUE(failed.back().empty()) << "it never came to its end";
        calls = failed;
    }

    test::ScratchFolder folder;
    std::vector<std::string> calls; ///< the names of those that failed, in their order
};

TEST_P(SystemCalls, save_eachCallFailing_losesNothing)
{
    std::unique_ptr<Desk> desk;
    Strings boxes;
    folder.Write("In.IDA", Unedited);
    ForEachCall(
        [&](const std::string&) {
            EXPECT_EQ(folder.Read("In.IDA"), Unedited);
            ASSERT_FALSE(boxes.empty()) << "nobody is told";
            const bool saved = boxes.front() == Saved;
            EXPECT_EQ(folder.Has("Out.IDA"), saved);
            if (saved) {
                EXPECT_EQ(folder.Read("Out.IDA"), Edited);
                return;
            }
            EXPECT_EQ(desk->book.BookPath, folder / "In.IDA");
            EXPECT_TRUE(desk->book.BookChanged);
            EXPECT_EQ(desk->book.TopicRecs(2).Text, "edited\r\n");
            EXPECT_EQ(desk->SaveAs(folder / "Out.IDA").front(), Saved)
                << "the same name, when the disk is well";
            EXPECT_EQ(folder.Read("Out.IDA"), Edited);
        },
        [&] { boxes = desk->SaveAs(folder / "Out.IDA"); },
        [&] {
            for (const auto& entry : std::filesystem::directory_iterator(folder.Path())) {
                if (entry.path().filename() != "In.IDA") {
                    std::filesystem::remove(entry.path());
                }
            }
            desk = std::make_unique<Desk>(folder);
        });
    for (const char* name : {"open", "pread", "write", "fsync", "close", "renameat2"}) {
        EXPECT_NE(std::find(calls.begin(), calls.end(), name), calls.end()) << name << " never failed";
    }
}

TEST_P(SystemCalls, replaceFile_eachCallFailing_leavesTheOldFileOrTheWholeNewOne)
{
    LinuxFileSystem files;
    FileError failed;
    ForEachCall(
        [&](const std::string& call) {
            const std::string bytes = folder.Read("Export.htm");
            EXPECT_EQ(bytes, failed.Ok() ? "newer" : "older");
            const bool left = folder.Has("Export.htm.new");
            EXPECT_TRUE(!left || GetParam().forGood || call == "unlink");
        },
        [&] {
            std::unique_ptr<OutputFile> file;
            failed = OpenToReplace(files, folder / "Export.htm", file);
            failed = failed.Ok() ? file->Write("newer") : failed;
            failed = failed.Ok() ? file->Finish() : failed;
        },
        [&] {
            folder.Write("Export.htm", "older");
            std::filesystem::remove(folder / "Export.htm.new");
        });
}

TEST_P(SystemCalls, desktopEntries_eachCallFailing_giveTheBrowserOrNone)
{
    folder.WriteProgram("bin/web", "");
    folder.WriteProgram("bin/other", "");
    folder.Write("config/mimeapps.list", "[Default Applications]\ntext/html=web.desktop\n");
    folder.Write("share/applications/web.desktop", "[Desktop Entry]\nType=Application\nExec=web %u\n");
    folder.Write("share/applications/other.desktop", "[Desktop Entry]\nType=Application\nExec=other %u\n");
    folder.Write("share/applications/mimeinfo.cache", "[MIME Cache]\ntext/html=other.desktop\n");
    test::RecordingProcesses processes;
    processes.environment = {{"XDG_CONFIG_HOME", folder / "config"},
                             {"XDG_CONFIG_DIRS", folder / "etc"},
                             {"XDG_DATA_HOME", folder / "data"},
                             {"XDG_DATA_DIRS", folder / "share"},
                             {"PATH", folder / "bin"}};
    LinuxRegistry registry(processes);
    ProgramEnd end;
    LinuxFileSystem files;
    test::RecordingMessages messages{end};
    const Seams seams{files, messages, processes, end, UnixPaths};
    std::string id;
    ForEachCall(
        [&](const std::string&) {
            EXPECT_TRUE(id == "web.desktop" || id == "other.desktop" || id.empty()) << id;
            EXPECT_EQ(id.empty(), !messages.Take().empty()) << "no browser is told of";
            EXPECT_FALSE(end.Ended());
        },
        [&] { id = RegGetString(seams, registry, "SOFTWARE\\Classes\\.HTM", ""); }, [] {});
    EXPECT_EQ(id, "web.desktop");
}

INSTANTIATE_TEST_SUITE_P(Faults, SystemCalls,
                         testing::Values(Fault{"ioOnce", EIO, false}, Fault{"ioForGood", EIO, true},
                                         Fault{"fullOnce", ENOSPC, false}, Fault{"fullForGood", ENOSPC, true},
                                         Fault{"deniedOnce", EACCES, false},
                                         Fault{"tooManyForGood", EMFILE, true}),
                         [](const auto& row) { return row.param.name; });

} // namespace
} // namespace ls
