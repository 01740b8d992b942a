// File descriptors and memory over a long day's work: they must not grow after the first minutes.

#include "Held.h"
#include "advisor/AdvisorRunner.h"
#include "book/BookLoader.h"
#include "check/CheckBook.h"
#include "platform/linux/LinuxFileSystem.h"
#include "reader/window/BookCommands.h"
#include "reader/window/Global.h"
#include "reader/window/Navigation.h"
#include "reader/window/RecordingView.h"
#include "support/RecordingMessages.h"
#include "support/RecordingProcesses.h"
#include "support/ScratchFolder.h"
#include "support/TestSeams.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <unistd.h>

#include <functional>

namespace ls {
namespace {

using test::Growth;
using test::Held;

// Answers yes and records nothing.
class NoMessages : public Messages
{
public:
    using Messages::Messages;

protected:
    Reply ShowBox(const std::string&, Icon, Buttons buttons, const std::string&) override
    {
        return buttons == Buttons::Ok || buttons == Buttons::OkCancel ? Reply::Ok : Reply::Yes;
    }
    std::optional<std::string> ShowInputBox(const std::string&, const std::string&,
                                            const std::string&) override
    {
        return std::nullopt;
    }
};

// The main window's rules on real files.
struct Flat : testing::Test
{
    Flat() { global.settings.IniDir = folder.Path(); }

    void Open(const std::string& path)
    {
        view.onFileForm = [this, path] {
            global.fileDialog.ChosenFile = path;
            global.fileDialog.FileFormOK = true;
        };
        commands.OpenItem_Click();
    }

    // Runs `work` `times` times, after a tenth of that to warm up. Returns what has grown.
    static std::string GrowthOver(int times, const std::function<void(int)>& work)
    {
        for (int i = 0; i < times / 10; ++i) {
            work(i);
        }
        const Held before = Held::Now();
        for (int i = 0; i < times; ++i) {
            work(i);
        }
        const Held after = Held::Now();
        RecordProperty("descriptors", std::to_string(after.descriptors));
        RecordProperty("allocated", std::to_string(before.allocated) + " " + std::to_string(after.allocated));
        RecordProperty("resident", std::to_string(before.resident) + " " + std::to_string(after.resident));
        return Growth(before, after);
    }

    const std::string guide = LS_SAMPLES "/Guide.IDA";
    const std::string advice = LS_SAMPLES "/Advice.IDA";
    const std::string tides = LS_SAMPLES "/Tides.TXT";
    test::ScratchFolder folder;
    ProgramEnd end;
    LinuxFileSystem files;
    NoMessages messages{end};
    test::RecordingProcesses processes;
    Seams seams{files, messages, processes, end, UnixPaths};
    Global global;
    Book& book = global.book;
    test::RecordingView view;
    Navigation navigation{book, seams, view};
    BookCommands commands{book, global.settings, global.fileDialog, seams, view, navigation};
};

TEST_F(Flat, opens_tenThousand_holdNoMore)
{
    const std::string missing = folder / "none.IDA";
    EXPECT_EQ(GrowthOver(10'000,
                         [&](int i) {
                             const std::string* const paths[] = {&guide, &advice, &missing, &tides};
                             CloseBook(book);
                             ResetBook(book);
                             book.BookPath = *paths[i % 4];
                             book.LockBook = i % 3 == 0;
                             if (OpenBook(book, seams) && !book.IsPlainText()) {
                                 ASSERT_TRUE(ScanBook(book, seams));
                             }
                         }),
              "");
}

TEST_F(Flat, openCommand_fiveHundred_holdsNoMore)
{
    EXPECT_EQ(GrowthOver(500,
                         [&](int i) {
                             Open(i % 2 == 0 ? guide : advice);
                             ASSERT_FALSE(view.lines.empty());
                         }),
              "");
}

TEST_F(Flat, topicChanges_tenThousand_holdNoMore)
{
    Open(guide);
    ASSERT_GT(view.ItemCount(), 10);
    EXPECT_EQ(GrowthOver(10'000,
                         [&](int i) {
                             view.SelectItem(i % view.ItemCount());
                             view.width = 40 + i % 50;
                             navigation.TopicList_Change();
                             navigation.GoToButton_Click();
                             ASSERT_FALSE(view.lines.empty());
                         }),
              "");
}

TEST_F(Flat, dialogues_thousand_holdNoMore)
{
    book.BookPath = advice;
    ASSERT_TRUE(OpenBook(book, seams) && ScanBook(book, seams));
    int questions = 0;
    AdvisorPlayer player;
    player.answer = [&questions](const AdvisorEvent& question) {
        ++questions;
        return question.choices[static_cast<std::size_t>(questions) % question.choices.size()];
    };
    player.event = [](const AdvisorEvent&) {};
    int runs = 0;
    player.reply = [&runs](const std::string&, Buttons) { return runs % 3 == 0 ? Reply::No : Reply::Yes; };
    EXPECT_EQ(GrowthOver(1'000,
                         [&](int i) {
                             runs = i;
                             const char* topic = i % 2 == 0 ? "A Day in the Hills" : "What to Pack";
                             RunAdvisor(book, global.advisor, seams, player, i, topic);
                         }),
              "");
    EXPECT_FALSE(end.Ended());
    EXPECT_GT(questions, 1'000);
}

TEST_F(Flat, checks_fifty_holdNoMore)
{
    book.BookPath = advice;
    ASSERT_TRUE(OpenBook(book, seams) && ScanBook(book, seams));
    EXPECT_EQ(GrowthOver(50,
                         [&](int) {
                             FileError error;
                             (void)CheckBook(book, seams, nullptr, error);
                             ASSERT_TRUE(error.Ok());
                         }),
              "");
}

// Tests the measure itself: it must find planted leaks.
TEST_F(Flat, plantedLeaks_areSeen)
{
    std::vector<std::unique_ptr<char[]>> kept;
    kept.reserve(3'000);
    const std::string bytes =
        GrowthOver(2'000, [&kept](int) { kept.push_back(std::make_unique<char[]>(24)); });
    if (Held::Now().allocated > 0) {
        EXPECT_NE(bytes.find("allocated bytes"), std::string::npos) << bytes;
    }
    std::vector<std::unique_ptr<BookFile>> open;
    const std::string descriptors = GrowthOver(10, [&](int) {
        std::unique_ptr<BookFile> file;
        ASSERT_TRUE(files.OpenForReading(guide, Sharing::Shared, file).Ok());
        open.push_back(std::move(file));
    });
    EXPECT_NE(descriptors.find("descriptors"), std::string::npos) << descriptors;
    std::vector<std::string> pages;
    const std::string resident =
        GrowthOver(20, [&pages](int) { pages.emplace_back(std::size_t(1024) * 1024, 'x'); });
    if (Held::Now().resident > 0) {
        EXPECT_NE(resident.find("resident bytes"), std::string::npos) << resident;
    }
}

} // namespace
} // namespace ls
