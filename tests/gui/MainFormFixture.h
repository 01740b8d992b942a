#pragma once

#include "forms/FormMessages.h"
#include "gui/Controls.h"
#include "gui/ModalScript.h"
#include "gui/WatchedFiles.h"
#include "platform/SystemSeams.h"
#include "reader/settings/CommandLine.h"
#include "reader/window/Global.h"
#include "reader/window/MainForm.h"
#include "render/pane/ReadingPane.h"
#include "support/RecordingDde.h"
#include "support/RecordingPrinter.h"
#include "support/RecordingProcesses.h"
#include "support/RecordingRegistry.h"
#include "support/TestSeams.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <string>
#include <vector>

namespace ls {

using Strings = std::vector<std::string>;

/// The real main window on real files in a scratch folder. The folder is also the working folder and the one
/// for settings.
class MainFormFixture : public testing::Test
{
protected:
    MainFormFixture()
    {
        messages.SetParent(&form);
        processes.environment["LSADVISOR_WORKDIR"] = Path("");
    }

    [[nodiscard]] std::string Path(const std::string& name) const
    {
        return folder.path().toStdString() + (name.empty() ? "" : "/" + name);
    }

    /// Writes a file into the scratch folder and returns its path.
    std::string Write(const std::string& name, const std::string& bytes)
    {
        QFile file(QString::fromStdString(Path(name)));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes.data(), static_cast<qint64>(bytes.size()));
        return Path(name);
    }

    /// The bytes of a file in the scratch folder; "(none)" if there is none.
    std::string Read(const std::string& name)
    {
        QFile file(QString::fromStdString(Path(name)));
        return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "(none)";
    }

    /// Writes a book with the topics "A", "B" and "C" with the bodies "a", "b" and "c".
    std::string WriteThree()
    {
        return Write("Three.IDA", test::CrLf({"LODESTAR BOOK V5.3", "[A]", "a", "[B]", "b", "[C]", "c"}));
    }

    /// Starts with that book ("" for none) and shows the window, which also ends the first resize.
    void Start(const std::string& path, const std::string& topic = {})
    {
        CommandLine commandLine;
        commandLine.bookPath = path;
        commandLine.startTopic = topic;
        commandLine.iniDir = Path("");
        form.Form_Load(commandLine);
        if (global.end.Ended()) {
            return;
        }
        form.show();
        Settle(); // if a form or box comes first, it is open during this
        form.activateWindow();
        EXPECT_TRUE(test::WaitFor([this] { return form.isActiveWindow(); }));
    }

    /// Runs the event loop until the delayed work of a resize is done.
    static void Settle() { QTest::qWait(150); }

    /// Opens a file with the Open item and the file form.
    void Open(test::ModalScript& script, const std::string& path)
    {
        script.Do([path](QWidget& chooser) { ChooseFile(chooser, path); });
        test::Press(form, "OpenItem");
    }

    static void ChooseFile(QWidget& chooser, const std::string& path)
    {
        ASSERT_EQ(chooser.objectName(), QStringLiteral("FileForm"));
        test::Type(chooser, "FilenameBox", QString::fromStdString(path));
        test::Press(chooser, "OKButton");
    }

    /// Checks that the window still opens a book and goes through it.
    void ExpectUsable(test::ModalScript& script)
    {
        Open(script, WriteThree());
        EXPECT_EQ(PaneText(), "a");
        test::Press(form, "NextButton");
        EXPECT_EQ(PaneText(), "b");
    }

    template <typename Control>
    Control& Get(const char* name)
    {
        return *test::Find<Control>(form, name);
    }

    [[nodiscard]] bool Visible(const char* name)
    {
        if (const auto* entry = form.findChild<QAction*>(QString::fromLatin1(name)); entry != nullptr) {
            return entry->isVisible();
        }
        return Get<QWidget>(name).isVisible();
    }

    /// The rows on the pane, joined by "|".
    std::string PaneText()
    {
        std::string text;
        int row = 1;
        for (const auto& run : Get<ReadingPane>("MsgPic").Runs()) {
            for (; row < run.row; ++row) {
                text += "|";
            }
            text += run.text;
        }
        return text;
    }

    Strings ItemTexts()
    {
        Strings texts;
        const auto& list = Get<QComboBox>("TopicList");
        for (int i = 0; i < list.count(); ++i) {
            texts.push_back(list.itemText(i).toStdString());
        }
        return texts;
    }

    /// Selects an entry of the list with the keys, as a user does.
    void Select(int index)
    {
        auto& list = Get<QComboBox>("TopicList");
        list.setFocus();
        while (list.currentIndex() < index) {
            QTest::keyClick(&list, Qt::Key_Down);
        }
        while (list.currentIndex() > index) {
            QTest::keyClick(&list, Qt::Key_Up);
        }
    }

    QTemporaryDir folder;
    test::WatchedFiles files{MakeFileSystem()};
    test::RecordingProcesses processes;
    Global global;
    FormMessages messages{global.end};
    Seams seams{files, messages, processes, global.end, NativePaths()};
    std::unique_ptr<Volumes> volumes = MakeVolumes();
    test::RecordingDde dde;
    test::RecordingRegistry registry;
    test::RecordingPrinter printer;
    MainForm form{global, seams, {*volumes, dde, registry, printer}};
};

} // namespace ls
