#pragma once

#include "authoring/EditSource.h"
#include "authoring/LogicEditor.h"
#include "authoring/LogicView.h"
#include "base/Seams.h"

#include <QDialog>

#include <functional>
#include <memory>
#include <string>
#include <vector>

class QPlainTextEdit;

namespace Ui {
class LgEdForm;
}

namespace ls {

class TextBoxCommands;
struct Book;

/// The editor for the logic block of the topic on show, which must be in memory: its logic lines as free
/// text, its variables and their choices in lists. Done stores the block in memory.
class LgEdForm : public QDialog, public EditSource, private LogicView
{
    Q_OBJECT

public:
    LgEdForm(QWidget* parent, Book& book, const Seams& seams);
    ~LgEdForm() override;

    /// Parses the block and shows it. False, after a message, if the editor cannot hold the block; the window
    /// must not be shown then.
    [[nodiscard]] bool Form_Load();

    void AddRunningEdits(RunningEdits& edits) override;

public Q_SLOTS:
    /// For Escape and the close button: asks before it drops changes.
    void reject() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void ConnectButtons();
    void ConnectItems();
    void SetUpLists();
    void SetUpBoxes();

    void KeywordInsertButton_Click();
    void VarCombo_Click();
    void AnswerCombo_Click();
    void InsertButton_Click();
    void InsAdvButton_Click();
    void SaveButton_Click();
    void CancelButton_Click();
    bool PressEnter(const QObject* list);

    [[nodiscard]] std::string Text(LogicBox box) const override;
    void SetText(LogicBox box, const std::string& text) override;
    void Enable(LogicBox box, bool enabled) override;
    void InsertIntoLogic(const std::string& text) override;
    void SetVariables(const std::vector<std::string>& names) override;
    void SetChoices(const std::vector<std::string>& choices) override;
    void AppendVariable(const std::string& name) override;
    void AppendChoice(const std::string& choice) override;
    void RemoveVariable(int index) override;
    void RemoveChoice(int index) override;
    void SelectVariable(int index) override;
    void SelectChoice(int index) override;
    void GoTo(LogicBox box, int line) override;
    void ShowSpecification(const std::string& text) override;

    using Command = void (LogicEditor::*)();
    void Do(Command command);
    void RunCommand(const std::function<void()>& command);
    [[nodiscard]] QPlainTextEdit& Box(LogicBox box) const;

    std::unique_ptr<Ui::LgEdForm> m_ui;
    Book& m_book;
    Seams m_seams;
    LogicEditor m_editor;
    std::unique_ptr<TextBoxCommands> m_boxCommands;
    bool m_running = false; // while a command runs, including its boxes
};

} // namespace ls
