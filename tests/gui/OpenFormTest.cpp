#include "files/OpenForm.h"

#include "files/FileDialog.h"
#include "gui/Controls.h"
#include "support/TestSeams.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLineEdit>
#include <QListView>
#include <QTest>
#include <QThread>
#include <QTimer>

#include <atomic>

namespace ls {
namespace {

using Strings = std::vector<std::string>;
using test::Find;

struct FixedVolumes : Volumes
{
    std::vector<Volume> List() override { return {{"/", "/"}, {"/home/anna", "/home/anna"}}; }
};

struct OpenFormTest : testing::Test
{
    test::TestSeams world;
    FixedVolumes volumes;
    FileDialog dialog;
    std::unique_ptr<OpenForm> form;

    void SetUp() override
    {
        world.files["/work/Guide.IDA"] = "";
        world.files["/work/Notes.txt"] = "";
        world.files["/work/Sub/Deep.IDA"] = "";
        world.files["/home/anna/Own.IDA"] = "";
    }

    void Open(const std::string& startPath, const std::string& mode = "R")
    {
        dialog.FileMode = mode;
        dialog.ChosenFullPath = startPath;
        form = std::make_unique<OpenForm>(nullptr, dialog, world.Get(), volumes, "");
        test::ShowActive(*form);
    }

    [[nodiscard]] QString Text() const { return Find<QLineEdit>(*form, "TextBox")->text(); }

    [[nodiscard]] QStringList Rows(const char* list) const
    {
        QStringList rows;
        const QAbstractItemModel* model = Find<QListView>(*form, list)->model();
        for (int row = 0; row < model->rowCount(); ++row) {
            rows.append(model->index(row, 0).data().toString().trimmed());
        }
        return rows;
    }

    void ClickRow(const char* list, int row, bool twice = false)
    {
        auto* view = Find<QListView>(*form, list);
        const QPoint at = view->visualRect(view->model()->index(row, 0)).center();
        QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, at);
        if (twice) {
            QTest::mouseDClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, at);
        }
    }
};

TEST_F(OpenFormTest, load_showsPathAndLists)
{
    Open("/work/*.IDA");
    EXPECT_EQ(form->windowTitle(), QStringLiteral("LSAdvisor File Selector"));
    EXPECT_EQ(Text(), QStringLiteral("/work/*.IDA"));
    EXPECT_EQ(Rows("FileListBox"), QStringList{QStringLiteral("Guide.IDA")});
    EXPECT_EQ(Rows("DirsBox"), (QStringList{QStringLiteral("\u25BE /"), QStringLiteral("\u25BE work"),
                                            QStringLiteral("\u25B8 Sub")}));
    EXPECT_EQ(Find<QComboBox>(*form, "DriveDropDown")->currentText(), QStringLiteral("/"));
    test::TakePicture(*form, "OpenForm");
}

TEST_F(OpenFormTest, clickFile_thenOk_acceptsIt)
{
    Open("/work/*.IDA");
    ClickRow("FileListBox", 0);
    EXPECT_EQ(Text(), QStringLiteral("/work/Guide.IDA"));
    test::Press(*form, "OKButton");
    EXPECT_EQ(form->result(), QDialog::Accepted);
    EXPECT_EQ(dialog.ChosenFullPath, "/work/Guide.IDA");
}

TEST_F(OpenFormTest, doubleClickFile_acceptsIt)
{
    Open("/work/*.IDA");
    ClickRow("FileListBox", 0, true);
    EXPECT_EQ(form->result(), QDialog::Accepted);
    EXPECT_EQ(dialog.ChosenFullPath, "/work/Guide.IDA");
}

TEST_F(OpenFormTest, clickFolder_showsIt)
{
    Open("/work/*.IDA");
    ClickRow("DirsBox", 2);
    EXPECT_EQ(Text(), QStringLiteral("/work/Sub/*.IDA"));
    EXPECT_EQ(Rows("FileListBox"), QStringList{QStringLiteral("Deep.IDA")});
}

TEST_F(OpenFormTest, doubleClickFolder_goesDownOneLevelOnly)
{
    world.files["/work/Sub/Below/x.IDA"] = "";
    world.files["/work/Sub/Beside/x.IDA"] = "";
    Open("/work/*.IDA");
    ClickRow("DirsBox", 2, true);
    EXPECT_EQ(Text(), QStringLiteral("/work/Sub/*.IDA"));
}

TEST_F(OpenFormTest, keyboardOnFolder_enterShowsIt)
{
    Open("/work/*.IDA");
    auto* folders = Find<QListView>(*form, "DirsBox");
    folders->setFocus();
    folders->setCurrentIndex(folders->model()->index(2, 0));
    QTest::keyClick(form->windowHandle(), Qt::Key_Return);
    EXPECT_EQ(Text(), QStringLiteral("/work/Sub/*.IDA"));
    EXPECT_TRUE(form->isVisible());
}

TEST_F(OpenFormTest, keyboardOnFile_arrowsWriteItAndEnterAccepts)
{
    Open("/work/*.*");
    auto* files = Find<QListView>(*form, "FileListBox");
    files->setFocus();
    QTest::keyClick(form->windowHandle(), Qt::Key_Down);
    QTest::keyClick(form->windowHandle(), Qt::Key_Down);
    EXPECT_EQ(Text(), QStringLiteral("/work/Notes.txt"));
    QTest::keyClick(form->windowHandle(), Qt::Key_Return);
    EXPECT_EQ(dialog.ChosenFullPath, "/work/Notes.txt");
    EXPECT_FALSE(form->isVisible());
}

TEST_F(OpenFormTest, chooseDrive_goesToItsRoot)
{
    Open("/work/*.IDA");
    auto* drives = Find<QComboBox>(*form, "DriveDropDown");
    drives->setFocus();
    QTest::keyClick(form->windowHandle(), Qt::Key_Down);
    EXPECT_EQ(Text(), QStringLiteral("/home/anna/*.IDA"));
    EXPECT_EQ(Rows("FileListBox"), QStringList{QStringLiteral("Own.IDA")});
    EXPECT_EQ(drives->currentIndex(), 1);
}

TEST_F(OpenFormTest, typePattern_enterListsAndStays)
{
    Open("/work/*.IDA");
    test::Type(*form, "TextBox", QStringLiteral("*.txt"));
    QTest::keyClick(form->windowHandle(), Qt::Key_Return);
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(Rows("FileListBox"), QStringList{QStringLiteral("Notes.txt")});
    EXPECT_EQ(Text(), QStringLiteral("/work/*.txt"));
}

TEST_F(OpenFormTest, cancelAndEscape_emptyTheChosenPath)
{
    Open("/work/*.IDA");
    test::Press(*form, "CancelButton");
    EXPECT_EQ(dialog.ChosenFullPath, "");
    Open("/work/*.IDA");
    QTest::keyClick(form->windowHandle(), Qt::Key_Escape);
    EXPECT_EQ(dialog.ChosenFullPath, "");
    EXPECT_FALSE(form->isVisible());
}

TEST_F(OpenFormTest, fileNameThatIsNoText_keepsItsBytes)
{
    world.files["/work/\xE9t\xE9.IDA"] = "";
    Open("/work/*.IDA");
    ClickRow("FileListBox", 1);
    test::Press(*form, "OKButton");
    EXPECT_EQ(dialog.ChosenFullPath, "/work/\xE9t\xE9.IDA");
}

TEST_F(OpenFormTest, load_slowFolder_eventsGoOnMeanwhile)
{
    std::atomic<int> beats = 0;
    QTimer heart;
    QObject::connect(&heart, &QTimer::timeout, &heart, [&beats] { ++beats; });
    heart.start(1);
    int beatsSeen = 0;
    world.files.fail = [&](const std::string& operation) { // called while the folder is read
        const int before = beats;
        for (int i = 0; i < 5000 && operation == "list /work" && beats < before + 3; ++i) {
            QThread::msleep(1);
        }
        beatsSeen = beats - before;
        return 0;
    };
    Open("/work/*.IDA");
    world.files.fail = nullptr;
    EXPECT_GE(beatsSeen, 3);
    EXPECT_EQ(Rows("FileListBox"), QStringList{QStringLiteral("Guide.IDA")});
}

} // namespace
} // namespace ls
