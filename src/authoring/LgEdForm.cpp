#include "authoring/LgEdForm.h"

#include "advisor/TempForm.h"
#include "authoring/RunningEdits.h"
#include "authoring/TextBoxCommands.h"
#include "authoring/TextEditing.h"
#include "base/CodePage.h"
#include "base/ProgramEnd.h"
#include "base/RunGuarded.h"
#include "book/Book.h"
#include "check/CheckBook.h"
#include "forms/FormFont.h"
#include "forms/Shown.h"
#include "forms/TextBox.h"
#include "ui_LgEdForm.h"

#include <QKeyEvent>
#include <QListView>
#include <QScopedValueRollback>
#include <QSignalBlocker>

#include <algorithm>

namespace ls {

namespace {

// Fills the list without selecting an entry and without an event.
void Fill(QComboBox& list, const std::vector<std::string>& entries)
{
    const QSignalBlocker silent(list);
    QStringList items;
    items.reserve(static_cast<qsizetype>(entries.size()));
    for (const std::string& entry : entries) {
        items.append(Shown(entry));
    }
    list.clear();
    list.addItems(items);
    list.setCurrentIndex(-1);
}

void Append(QComboBox& list, const std::string& entry)
{
    const QSignalBlocker silent(list);
    const int selected = list.currentIndex();
    list.addItem(Shown(entry));
    // Otherwise an empty list would select its first entry.
    list.setCurrentIndex(selected);
}

void Remove(QComboBox& list, int index)
{
    const QSignalBlocker silent(list);
    list.removeItem(index);
}

void Select(QComboBox& list, int index)
{
    const QSignalBlocker silent(list);
    list.setCurrentIndex(index);
}

} // namespace

LgEdForm::LgEdForm(QWidget* parent, Book& book, const Seams& seams)
    : QDialog(parent), m_ui(std::make_unique<Ui::LgEdForm>()), m_book(book), m_seams(seams),
      m_editor(book, seams, *this)
{
    setFont(FormFont());
    m_ui->setupUi(this);
    SetUpLists();
    SetUpBoxes();
    ConnectButtons();
    ConnectItems();
}

LgEdForm::~LgEdForm() = default;

void LgEdForm::SetUpLists()
{
    Fill(*m_ui->KeywordCombo, {LogicKeywords.begin(), LogicKeywords.end()});
    for (QComboBox* list : {m_ui->KeywordCombo, m_ui->VarCombo, m_ui->AnswerCombo}) {
        auto* view = new QListView(list);
        // Otherwise a popup of a thousand entries measures each of them.
        view->setUniformItemSizes(true);
        list->setView(view);
        list->installEventFilter(this);
    }
    connect(m_ui->VarCombo, &QComboBox::currentIndexChanged, this, &LgEdForm::VarCombo_Click);
    connect(m_ui->AnswerCombo, &QComboBox::currentIndexChanged, this, &LgEdForm::AnswerCombo_Click);
}

void LgEdForm::SetUpBoxes()
{
    SetFixedPitch(*m_ui->LogicTextbox);
    for (QPlainTextEdit* box : {m_ui->VQuestionBox, m_ui->VCAnswerBox}) {
        constexpr int shownLines = 6; // slightly fewer fit, because of the frame
        box->setFixedHeight(std::max(box->minimumHeight(), shownLines * box->fontMetrics().lineSpacing()));
    }
    m_ui->VQuestionBox->installEventFilter(this);
    m_ui->VCAnswerBox->installEventFilter(this);
    const TextBoxCommands::Items items{m_ui->UndoItem, m_ui->RedoItem, m_ui->SelectAllItem, m_ui->FindItem,
                                       m_ui->FindNextItem};
    const auto boxes = {m_ui->LogicTextbox, m_ui->VQuestionBox, m_ui->VCAnswerBox};
    m_boxCommands = std::make_unique<TextBoxCommands>(items, boxes, m_seams);
    for (const QPlainTextEdit* box : boxes) {
        connect(box, &QPlainTextEdit::textChanged, this, [this] { Edited(); });
    }
}

void LgEdForm::ConnectButtons()
{
    const auto doAtClick = [this](QPushButton* button, Command command) {
        connect(button, &QPushButton::clicked, this, [this, command] { Do(command); });
    };
    doAtClick(m_ui->VarAddButton, &LogicEditor::VarAddButton_Click);
    doAtClick(m_ui->VarDelButton, &LogicEditor::VarDelButton_Click);
    doAtClick(m_ui->AddAnsButton, &LogicEditor::AddAnsButton_Click);
    doAtClick(m_ui->DelAnsButton, &LogicEditor::DelAnsButton_Click);
    connect(m_ui->KeywordInsertButton, &QPushButton::clicked, this, &LgEdForm::KeywordInsertButton_Click);
    connect(m_ui->InsertButton, &QPushButton::clicked, this, &LgEdForm::InsertButton_Click);
    connect(m_ui->InsAdvButton, &QPushButton::clicked, this, &LgEdForm::InsAdvButton_Click);
    connect(m_ui->SaveButton, &QPushButton::clicked, this, &LgEdForm::SaveButton_Click);
    connect(m_ui->CancelButton, &QPushButton::clicked, this, &LgEdForm::CancelButton_Click);
}

void LgEdForm::ConnectItems()
{
    connect(m_ui->KeywordItem, &QAction::triggered, this, &LgEdForm::KeywordInsertButton_Click);
    connect(m_ui->InsVarItem, &QAction::triggered, this, &LgEdForm::InsertButton_Click);
    connect(m_ui->InsAdvItem, &QAction::triggered, this, &LgEdForm::InsAdvButton_Click);
    connect(m_ui->ShowSpecItem, &QAction::triggered, this, [this] { Do(&LogicEditor::ShowSpecItem_Click); });
}

bool LgEdForm::Form_Load()
{
    m_ui->LogicTextbox->setFocus();
    return m_editor.Form_Load() && !m_seams.end.Ended();
}

void LgEdForm::Do(Command command)
{
    RunCommand([this, command] { (m_editor.*command)(); });
}

// Runs a command; every command goes through here, because the window's event loop cannot pass an exception
// on. A command does nothing while another one is running, for example when a box takes the focus.
void LgEdForm::RunCommand(const std::function<void()>& command)
{
    if (m_running) {
        return;
    }
    {
        const QScopedValueRollback<bool> running(m_running, true);
        RunGuarded(command, m_seams);
    }
    Edited();
    if (m_seams.end.Ended()) {
        QDialog::reject();
    }
}

void LgEdForm::VarCombo_Click()
{
    RunCommand([this] { m_editor.VarCombo_Click(m_ui->VarCombo->currentIndex()); });
}

void LgEdForm::AnswerCombo_Click()
{
    RunCommand([this] { m_editor.AnswerCombo_Click(m_ui->AnswerCombo->currentIndex()); });
}

void LgEdForm::KeywordInsertButton_Click()
{
    RunCommand(
        [this] { m_editor.KeywordInsertButton_Click(m_ui->KeywordCombo->currentText().toStdString()); });
}

void LgEdForm::InsertButton_Click()
{
    Do(&LogicEditor::InsertButton_Click);
}

void LgEdForm::InsAdvButton_Click()
{
    Do(&LogicEditor::InsAdvButton_Click);
}

void LgEdForm::AddRunningEdits(RunningEdits& edits)
{
    if (m_editor.Changed()) {
        const int number = m_book.CurrentTopicNo;
        edits.logic = ls::RunningText{number, m_book.TopicNames(number), m_editor.RunningText()};
    }
}

void LgEdForm::SaveButton_Click()
{
    RunCommand([this] {
        if (m_editor.SaveButton_Click()) {
            accept();
        }
    });
}

void LgEdForm::CancelButton_Click()
{
    QDialog::reject();
}

void LgEdForm::reject()
{
    RunCommand([this] {
        if (MayDropText(m_editor.Changed(), m_seams)) {
            QDialog::reject();
        }
    });
}

bool LgEdForm::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusOut && watched == m_ui->VQuestionBox) {
        Do(&LogicEditor::VQuestionBox_LostFocus);
    } else if (event->type() == QEvent::FocusOut && watched == m_ui->VCAnswerBox) {
        Do(&LogicEditor::VCAnswerBox_LostFocus);
    } else if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        return (key == Qt::Key_Return || key == Qt::Key_Enter) && PressEnter(watched);
    }
    return QDialog::eventFilter(watched, event);
}

// Enter in a list inserts the chosen entry, like the button beside it, instead of pressing Done.
bool LgEdForm::PressEnter(const QObject* list)
{
    if (list == m_ui->KeywordCombo) {
        KeywordInsertButton_Click();
    } else if (list == m_ui->VarCombo) {
        InsertButton_Click();
    } else if (list == m_ui->AnswerCombo) {
        InsAdvButton_Click();
    } else {
        return false;
    }
    return true;
}

QPlainTextEdit& LgEdForm::Box(LogicBox box) const
{
    switch (box) {
    case LogicBox::Question:
        return *m_ui->VQuestionBox;
    case LogicBox::Advice:
        return *m_ui->VCAnswerBox;
    case LogicBox::Logic:
        break;
    }
    return *m_ui->LogicTextbox;
}

std::string LgEdForm::Text(LogicBox box) const
{
    return TextOf(Box(box));
}

void LgEdForm::SetText(LogicBox box, const std::string& text)
{
    Box(box).setPlainText(Shown(text));
}

void LgEdForm::Enable(LogicBox box, bool enabled)
{
    Box(box).setEnabled(enabled);
}

void LgEdForm::InsertIntoLogic(const std::string& text)
{
    m_ui->LogicTextbox->insertPlainText(Shown(text));
    m_ui->LogicTextbox->setFocus();
}

void LgEdForm::SetVariables(const std::vector<std::string>& names)
{
    Fill(*m_ui->VarCombo, names);
}

void LgEdForm::SetChoices(const std::vector<std::string>& choices)
{
    Fill(*m_ui->AnswerCombo, choices);
}

void LgEdForm::AppendVariable(const std::string& name)
{
    Append(*m_ui->VarCombo, name);
}

void LgEdForm::AppendChoice(const std::string& choice)
{
    Append(*m_ui->AnswerCombo, choice);
}

void LgEdForm::RemoveVariable(int index)
{
    Remove(*m_ui->VarCombo, index);
}

void LgEdForm::RemoveChoice(int index)
{
    Remove(*m_ui->AnswerCombo, index);
}

void LgEdForm::SelectVariable(int index)
{
    Select(*m_ui->VarCombo, index);
}

void LgEdForm::SelectChoice(int index)
{
    Select(*m_ui->AnswerCombo, index);
}

void LgEdForm::GoTo(LogicBox box, int line)
{
    if (line > 0) {
        SelectLine(Box(box), line);
    }
    Box(box).setFocus();
}

void LgEdForm::ShowSpecification(const std::string& text)
{
    const std::string block = ToBook(text).value_or(std::string());
    std::vector<TempFormRow> rows;
    for (const Finding& finding : CheckLogicText(m_book, m_seams, m_book.CurrentTopicNo, block)) {
        rows.push_back({finding.line, "Line " + std::to_string(finding.line) + ", " +
                                          SeverityWord(finding.severity) + ": " + finding.text});
    }
    TempForm(this, text, std::move(rows)).exec();
}

} // namespace ls
