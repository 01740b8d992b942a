#include "files/FileForm.h"

#include "base/DdeServer.h"
#include "base/Volumes.h"
#include "gui/Controls.h"
#include "gui/ModalScript.h"
#include "reader/window/Global.h"
#include "support/RecordingDde.h"
#include "support/RecordingPrinter.h"
#include "support/RecordingRegistry.h"
#include "support/RowName.h"
#include "support/TestSeams.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
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
    std::vector<Volume> List() override { return {{"/", "/"}}; }
};

struct FileFormTest : testing::Test
{
    test::TestSeams world;
    FixedVolumes volumes;
    test::RecordingDde dde;
    test::RecordingRegistry registry;
    test::RecordingPrinter printer;
    Global global;
    std::unique_ptr<FileForm> form;

    FileFormTest()
    {
        global.settings.RecentFiles[0] = "/books/A.IDA";
        global.settings.RecentFiles[1] = "/books/B.IDA";
        global.settings.RecentFileCount = 2;
        global.fileDialog.FileMode = "R";
        global.fileDialog.FileFormTitle = "Which book shall be opened?";
        global.fileDialog.DefaultFolder = "/books";
        global.fileDialog.FilePattern = "*.IDA";
        global.fileDialog.InitialFileName = "/books/A.IDA";
        global.fileDialog.ShowSharing = true;
        world.files["/books/A.IDA"] = "";
        world.files["/books/sub/Y.IDA"] = "";
    }

    void Load()
    {
        form = std::make_unique<FileForm>(nullptr, global.fileDialog, global.book, global.settings,
                                          world.Get(), FormSeams{volumes, dde, registry, printer});
        test::ShowActive(*form);
    }

    [[nodiscard]] QString Name() const { return Find<QComboBox>(*form, "FilenameBox")->currentText(); }

    [[nodiscard]] std::string Left(const char* control) const
    {
        return std::to_string(Find<QWidget>(*form, control)->x());
    }
};

TEST_F(FileFormTest, openMode_showsTitlesAndRecentFiles)
{
    Load();
    EXPECT_EQ(form->windowTitle(), QStringLiteral("Lodestar Advisor Open"));
    EXPECT_EQ(Find<QLabel>(*form, "TitleLabel")->text().remove(u'&'),
              QStringLiteral("Which book shall be opened?"));
    EXPECT_EQ(Find<QLabel>(*form, "DefaultLabel")->text(), QStringLiteral("Default folder: /books"));
    auto* names = Find<QComboBox>(*form, "FilenameBox");
    EXPECT_EQ(names->count(), 2);
    EXPECT_EQ(names->itemText(1), QStringLiteral("/books/B.IDA"));
    EXPECT_EQ(Name(), QStringLiteral("/books/A.IDA"));
    EXPECT_TRUE(Find<QRadioButton>(*form, "SharedOption")->isChecked());
    EXPECT_FALSE(Find<QPushButton>(*form, "InfoButton")->isVisible());
    test::TakePicture(*form, "FileFormOpen");
}

TEST_F(FileFormTest, saveMode_showsInfoAndTheNameAlone)
{
    global.fileDialog.FileMode = "W";
    global.fileDialog.ShowSharing = false;
    global.fileDialog.InitialFileName = "Guide (001).IDA";
    Load();
    EXPECT_EQ(form->windowTitle(), QStringLiteral("Lodestar Advisor Save"));
    EXPECT_TRUE(Find<QPushButton>(*form, "InfoButton")->isVisible());
    EXPECT_EQ(Find<QComboBox>(*form, "FilenameBox")->count(), 0);
    EXPECT_EQ(Name(), QStringLiteral("Guide (001).IDA"));
    EXPECT_FALSE(Find<QGroupBox>(*form, "SharingFrame")->isVisible());
    test::TakePicture(*form, "FileFormSave");
}

TEST_F(FileFormTest, saveInfo_editsThePropertiesOverTheForm)
{
    global.fileDialog.FileMode = "W";
    global.fileDialog.ShowSharing = false;
    Load();
    test::ModalScript script;
    script.Do([](QWidget& info) {
        test::Type(info, "AuthorBox", QStringLiteral("A"));
        test::Press(info, "OKBox");
    });
    test::Press(*form, "InfoButton");
    EXPECT_EQ(script.Seen(), Strings{"form|InfoForm|LSAdvisor File Information"});
    EXPECT_EQ(global.book.BookAuthor, "A");
    EXPECT_TRUE(form->isVisible());
}

TEST_F(FileFormTest, sharingHidden_shiftsOkAndCancelByOneButtonAndGap)
{
    Load();
    const int ok = Find<QWidget>(*form, "OKButton")->x();
    const int cancel = Find<QWidget>(*form, "CancelButton")->x();
    global.fileDialog.ShowSharing = false;
    Load();
    EXPECT_EQ(Find<QWidget>(*form, "OKButton")->x(), ok - (cancel - ok));
    EXPECT_EQ(Find<QWidget>(*form, "CancelButton")->x(), ok);
}

TEST_F(FileFormTest, ok_typedName_isTakenAndClosesTheForm)
{
    Load();
    test::Type(*form, "FilenameBox", QStringLiteral("X.IDA"));
    Find<QRadioButton>(*form, "ExclusiveOption")->click();
    test::Press(*form, "OKButton");
    EXPECT_FALSE(form->isVisible());
    EXPECT_TRUE(global.fileDialog.FileFormOK);
    EXPECT_EQ(global.fileDialog.ChosenFile, "X.IDA");
    EXPECT_EQ(global.fileDialog.ChosenFullPath, "/books/X.IDA");
    EXPECT_TRUE(global.book.LockBook);
}

TEST_F(FileFormTest, enter_isOkAndEscapeIsCancel)
{
    Load();
    QTest::keyClick(form->windowHandle(), Qt::Key_Return);
    EXPECT_TRUE(global.fileDialog.FileFormOK);
    EXPECT_EQ(global.fileDialog.ChosenFile, "/books/A.IDA");
    Load();
    QTest::keyClick(form->windowHandle(), Qt::Key_Escape);
    EXPECT_FALSE(form->isVisible());
    EXPECT_FALSE(global.fileDialog.FileFormOK);
    EXPECT_EQ(global.fileDialog.ChosenFile, "");
}

TEST_F(FileFormTest, recentName_canBePicked)
{
    Load();
    auto* names = Find<QComboBox>(*form, "FilenameBox");
    names->setFocus();
    QTest::keyClick(form->windowHandle(), Qt::Key_Down);
    QTest::keyClick(form->windowHandle(), Qt::Key_Down);
    EXPECT_EQ(Name(), QStringLiteral("/books/B.IDA"));
}

TEST_F(FileFormTest, recentNameThatIsNoText_keepsItsBytes)
{
    global.fileDialog.InitialFileName = "/books/\xE9.IDA";
    Load();
    test::Press(*form, "OKButton");
    EXPECT_EQ(global.fileDialog.ChosenFile, "/books/\xE9.IDA");
}

TEST_F(FileFormTest, resize_widerMovesAndStretches_narrowerRestores)
{
    Load();
    const QString design = QStringLiteral("%1 %2 %3");
    const auto state = [&] {
        return design.arg(Find<QWidget>(*form, "BrowseButton")->x())
            .arg(Find<QWidget>(*form, "FilenameBox")->width())
            .arg(Find<QWidget>(*form, "HelpButton")->x());
    };
    const QString before = state();
    const int browse = Find<QWidget>(*form, "BrowseButton")->x();
    const int name = Find<QWidget>(*form, "FilenameBox")->width();
    const int help = Find<QWidget>(*form, "HelpButton")->x();
    const QSize size = form->size();
    form->resize(size + QSize(100, 0));
    EXPECT_EQ(state(), design.arg(browse + 100).arg(name + 100).arg(help + 100));
    form->resize(size - QSize(100, 0));
    EXPECT_EQ(state(), before);
    form->resize(size);
    EXPECT_EQ(state(), before);
}

struct RemoteCase
{
    const char* name;
    const char* command;
    bool closes;
    bool ok;
};

struct FileFormRemote : FileFormTest, testing::WithParamInterface<RemoteCase>
{
};

TEST_P(FileFormRemote, push_pressesTheButtonAfterTheCallReturned)
{
    Load();
    ASSERT_TRUE(dde.handler);
    EXPECT_TRUE(dde.handler(GetParam().command));
    EXPECT_TRUE(form->isVisible()) << "the call returns before the button acts";
    EXPECT_EQ(test::WaitFor([this] { return !form->isVisible(); }), GetParam().closes);
    EXPECT_EQ(global.fileDialog.FileFormOK, GetParam().ok);
}

const RemoteCase RemoteCases[] = {
    {"ok", "PUSH OKButton", true, true},
    {"cancel", "PUSH CancelButton", true, false},
};

INSTANTIATE_TEST_SUITE_P(Commands, FileFormRemote, testing::ValuesIn(RemoteCases), test::RowName());

TEST_F(FileFormTest, pushBrowse_opensTheSelectorAfterTheCallReturned)
{
    Load();
    test::ModalScript script;
    script.Do([](QWidget&) {}).Escape(); // for the form, which is modal too
    EXPECT_TRUE(dde.handler("push BROWSEBUTTON"));
    EXPECT_EQ(QApplication::activeModalWidget(), form.get()) << "the call returns before the button acts";
    EXPECT_TRUE(test::WaitFor([this, &script] {
        return script.Seen().size() > 1 && QApplication::activeModalWidget() == form.get();
    }));
    EXPECT_EQ(script.Seen(),
              (Strings{"form|FileForm|Lodestar Advisor Open", "form|OpenForm|LSAdvisor File Selector"}));
    EXPECT_TRUE(form->isVisible());
}

TEST_F(FileFormTest, push_whileDisabled_beepsAndBlocks)
{
    Load();
    form->setEnabled(false);
    EXPECT_TRUE(dde.handler("PUSH OKButton"));
    QTest::qWait(50);
    EXPECT_TRUE(form->isVisible());
    EXPECT_FALSE(dde.handler("PUSH OKButton")) << "the command is still pending";
}

TEST_F(FileFormTest, closed_takesNoMoreCommands)
{
    Load();
    form.reset();
    EXPECT_FALSE(dde.handler);
}

TEST_F(FileFormTest, help_noPage_isDisabled)
{
    Load();
    EXPECT_FALSE(Find<QPushButton>(*form, "HelpButton")->isEnabled());
}

TEST_F(FileFormTest, help_page_opensInTheBrowser)
{
    world.files["/program/Lodestar_Open.htm"] = "";
    registry.RegisterForUser(".HTM", "page", "/usr/bin/web");
    Load();
    test::Press(*form, "HelpButton");
    EXPECT_EQ(world.processes.started, Strings{"/usr/bin/web /program/Lodestar_Open.htm"});
    EXPECT_TRUE(form->isVisible());
}

TEST_F(FileFormTest, help_noBrowser_selectorFindsOneAndTheNameStays)
{
    world.files["/program/Lodestar_Open.htm"] = "";
    world.files["/usr/bin/web"] = "";
    Load();
    world.messages.replies = {Reply::Yes};
    test::ModalScript script;
    script.Do([](QWidget& selector) {
        test::Type(selector, "TextBox", QStringLiteral("/usr/bin/web"));
        test::Press(selector, "OKButton");
    });
    test::Press(*form, "HelpButton");
    EXPECT_EQ(script.Seen(), Strings{"form|OpenForm|LSAdvisor File Selector"});
    EXPECT_EQ(world.processes.started, Strings{"/usr/bin/web /program/Lodestar_Open.htm"});
    EXPECT_EQ(Name(), QStringLiteral("/books/A.IDA"));
    EXPECT_EQ(global.fileDialog.ChosenFullPath, "");
}

TEST_F(FileFormTest, help_registryFault_closesTheForm)
{
    world.files["/program/Lodestar_Open.htm"] = "";
    registry.keys["HKCU\\SOFTWARE\\Classes\\.HTM"] = std::nullopt;
    Load();
    test::Press(*form, "HelpButton");
    EXPECT_TRUE(world.end.Ended());
    EXPECT_FALSE(form->isVisible());
}

TEST_F(FileFormTest, push_commandsThatAreRefused_doNotPutOffTheFirst)
{
    Load();
    EXPECT_TRUE(dde.handler("PUSH CancelButton"));
    QTimer hammer;
    QObject::connect(&hammer, &QTimer::timeout, &hammer, [this] {
        if (dde.handler) {
            EXPECT_FALSE(dde.handler("PUSH CancelButton") && form->isVisible());
        }
    });
    hammer.start(0);
    EXPECT_TRUE(test::WaitFor([this] { return !form->isVisible(); }));
}

TEST_F(FileFormTest, push_whileTheSelectorReadsItsFolder_beepsAndBlocks)
{
    Load();
    std::atomic<bool> pushed = false;
    QTimer::singleShot(0, form.get(), [this, &pushed] {
        EXPECT_TRUE(dde.handler("PUSH CancelButton"));
        QTimer::singleShot(50, form.get(), [&pushed] { pushed = true; });
    });
    world.files.fail = [&pushed](const std::string& operation) {
        for (int i = 0; i < 5000 && operation == "list /books" && !pushed; ++i) {
            QThread::msleep(1);
        }
        return 0;
    };
    test::ModalScript script;
    script.Escape().Escape(); // the first does nothing, as the selector is opening
    test::Press(*form, "BrowseButton");
    world.files.fail = nullptr;
    EXPECT_EQ(script.Seen(),
              (Strings{"form|FileForm|Lodestar Advisor Open", "form|OpenForm|LSAdvisor File Selector"}));
    EXPECT_TRUE(form->isVisible());
    EXPECT_FALSE(dde.handler("PUSH CancelButton")) << "the first is still pending";
}

} // namespace
} // namespace ls
