#pragma once

#include "base/FormSeams.h"
#include "base/Seams.h"
#include "reader/window/BookCommands.h"
#include "reader/window/EditCommands.h"
#include "reader/window/MainFormLayout.h"
#include "reader/window/Navigation.h"
#include "reader/window/PaneCommands.h"
#include "reader/window/SaveCommand.h"
#include "reader/window/TopicCommands.h"

#include <QMainWindow>
#include <QTimer>

#include <functional>
#include <memory>

class QAbstractButton;

namespace Ui {
class MainForm;
}

namespace ls {

struct CommandLine;
struct Global;
class MainFormView;

/// The main window: the reading pane, the topic list, and the commands on books and topics.
class MainForm : public QMainWindow
{
    Q_OBJECT

public:
    MainForm(Global& global, const Seams& seams, const FormSeams& forms);
    ~MainForm() override;

    /// Starts up, before the window is first shown. The program may have ended when this returns.
    ///
    /// `recover` is passed to `StartUp`.
    void Form_Load(
        const CommandLine& commandLine, const std::function<bool()>& recover = [] { return false; });

    /// Whether a command is running, including the boxes and forms that it shows.
    [[nodiscard]] bool Busy() const { return m_running; }

Q_SIGNALS:
    /// A command has finished.
    void CommandDone();

protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void ConnectButtons();
    void ConnectItems();
    void OnClick(QAbstractButton* button, const std::function<void()>& command);
    void OnClick(QAction* item, const std::function<void()>& command);
    QSize SetUpUi();

    void Form_Activate();
    void Form_Resize();
    void ShowAgain();
    void TypeSize_Change();
    void FindBar_Change();

    void DoneButton_Click() { close(); }
    void TopicList_Change();
    void TopicList_DblClick();
    void PrintItem_Click();
    void ExplainButton_Click();
    void HelpItem_Click();

    void Run(const std::function<void()>& command);
    void EnableHistory();
    bool FilterList(QObject* watched, QEvent* event);

    std::unique_ptr<Ui::MainForm> m_ui;
    Global& m_global;
    Seams m_seams;
    FormSeams m_forms;
    MainFormLayout m_layout;
    std::unique_ptr<MainFormView> m_view;
    Navigation m_navigation;
    BookCommands m_commands;
    SaveCommand m_save;
    TopicCommands m_topicCommands;
    EditCommands m_editCommands;
    PaneCommands m_paneCommands;
    QTimer m_afterResize;
    bool m_activated = false;
    bool m_resizedMeanwhile = false;
    bool m_running = false; // while a command runs, including its boxes and forms
};

} // namespace ls
