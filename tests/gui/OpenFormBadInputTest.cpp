// The file selector on real folders that cannot be read, disappear, or have files with unusual names.

#include "base/Volumes.h"
#include "files/FileDialog.h"
#include "files/OpenForm.h"
#include "gui/Controls.h"
#include "platform/SystemSeams.h"
#include "support/RecordingMessages.h"
#include "support/RecordingProcesses.h"
#include "support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QListView>
#include <QTest>

#include <filesystem>

#include <unistd.h>

namespace ls {
namespace {

using Strings = std::vector<std::string>;
using test::Find;

struct RootVolume : Volumes
{
    std::vector<Volume> List() override { return {{"/", "/"}}; }
};

struct OpenFormBadInputTest : testing::Test
{
    test::ScratchFolder folder;
    std::unique_ptr<FileSystem> files = MakeFileSystem();
    test::RecordingProcesses processes;
    ProgramEnd end;
    test::RecordingMessages messages{end};
    RootVolume volumes;
    FileDialog dialog;
    std::unique_ptr<OpenForm> form;

    void Open(const std::string& startPath)
    {
        dialog.FileMode = "R";
        dialog.ChosenFullPath = startPath;
        form = std::make_unique<OpenForm>(
            nullptr, dialog, Seams{*files, messages, processes, end, NativePaths()}, volumes, "");
        test::ShowActive(*form);
    }

    [[nodiscard]] QString Text() const { return Find<QLineEdit>(*form, "TextBox")->text(); }
    [[nodiscard]] int FileCount() const { return Find<QListView>(*form, "FileListBox")->model()->rowCount(); }

    void ClickFile(int row)
    {
        auto* view = Find<QListView>(*form, "FileListBox");
        QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier,
                          view->visualRect(view->model()->index(row, 0)).center());
    }

    void Enter(const std::string& text)
    {
        Find<QLineEdit>(*form, "TextBox")->setText(QString::fromStdString(text));
        test::Press(*form, "OKButton");
    }

    [[nodiscard]] std::string Refusal(const std::string& path, const std::string& error) const
    {
        return "exclamation|Lodestar Advisor|Sorry, you cannot choose " + path + " due to error " + error;
    }
};

TEST_F(OpenFormBadInputTest, currentFolderRemoved_namesWithAWholePathStillWork)
{
    const std::filesystem::path before = std::filesystem::current_path();
    const std::string gone = folder.MakeFolder("gone");
    folder.Write("B.IDA", "");
    ASSERT_EQ(::chdir(gone.c_str()), 0);
    std::filesystem::remove(gone);
    Open(folder / "*.IDA");
    std::filesystem::current_path(before);
    EXPECT_EQ(messages.Take(), Strings{});
    ClickFile(0);
    test::Press(*form, "OKButton");
    EXPECT_EQ(dialog.ChosenFullPath, folder / "B.IDA");
}

TEST_F(OpenFormBadInputTest, oddNames_arePickedAsTheyAre)
{
    const Strings names = {"two  blanks.IDA", " blank in front.IDA", "\"quoted\".IDA", "it's.IDA", "50%.IDA",
                           "%HOME%.IDA",      "bytes \xE9\xFF.IDA",  "line\nend.IDA",  "tab\t.IDA"};
    for (const std::string& name : names) {
        SCOPED_TRACE(name);
        folder.Write("odd/" + name, "");
        Open(folder / "odd/*.IDA");
        ASSERT_EQ(FileCount(), 1);
        ClickFile(0);
        test::Press(*form, "OKButton");
        EXPECT_EQ(dialog.ChosenFullPath, folder / ("odd/" + name));
        std::filesystem::remove(folder / ("odd/" + name));
    }
}

TEST_F(OpenFormBadInputTest, longPath_isListedAndTooLongOneIsTold)
{
    std::string deep;
    for (int i = 0; i < 15; ++i) {
        deep += std::string(250, 'd') + "/";
    }
    const std::string file = folder.Write(deep + "Guide.IDA", "");
    ASSERT_GT(file.size(), 3700U);
    Open(folder / (deep + "*.IDA"));
    ClickFile(0);
    test::Press(*form, "OKButton");
    EXPECT_EQ(dialog.ChosenFullPath, file);

    Open(folder / "*.IDA");
    const std::string tooLong = "/" + std::string(10000, 'x');
    Enter(tooLong + "/*.IDA");
    const Strings said = messages.Take();
    ASSERT_EQ(said.size(), 1U);
    EXPECT_TRUE(said[0].starts_with(Refusal(tooLong + "/", ""))) << said[0];
    EXPECT_TRUE(form->isVisible());
}

} // namespace
} // namespace ls
