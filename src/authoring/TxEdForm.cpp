#include "authoring/TxEdForm.h"

#include "authoring/RunningEdits.h"
#include "authoring/TextBoxCommands.h"
#include "authoring/TextEditing.h"
#include "base/ProgramEnd.h"
#include "book/Book.h"
#include "forms/FormFont.h"
#include "forms/Shown.h"
#include "forms/TextBox.h"
#include "ui_TxEdForm.h"

#include <QKeyEvent>

#include <array>
#include <utility>

namespace ls {

TxEdForm::TxEdForm(QWidget* parent, Book& book, const Seams& seams)
    : QDialog(parent), m_ui(std::make_unique<Ui::TxEdForm>()), m_book(book), m_seams(seams)
{
    setFont(FormFont());
    m_ui->setupUi(this);
    ConnectButtons();
    ConnectItems();
    m_ui->SymCombo->installEventFilter(this);
    const TextBoxCommands::Items items{m_ui->UndoItem, m_ui->RedoItem, m_ui->SelectAllItem, m_ui->FindItem,
                                       m_ui->FindNextItem};
    m_boxCommands = std::make_unique<TextBoxCommands>(
        items, std::initializer_list<QPlainTextEdit*>{m_ui->MainTxBox}, m_seams);
    Form_Load();
}

TxEdForm::~TxEdForm() = default;

void TxEdForm::ConnectButtons()
{
    connect(m_ui->InsertButton, &QPushButton::clicked, this, &TxEdForm::SymCombo_Click);
    connect(m_ui->SymCombo, &QComboBox::activated, this, &TxEdForm::SymCombo_Click);
    connect(m_ui->SaveButton, &QPushButton::clicked, this, &TxEdForm::SaveButton_Click);
    connect(m_ui->CancelButton, &QPushButton::clicked, this, &TxEdForm::CancelButton_Click);
}

void TxEdForm::ConnectItems()
{
    struct Markup
    {
        QPushButton* button;
        QAction* entry;
        std::string_view openTag;
    };
    const std::array<Markup, 5> markups = {{{m_ui->H1Button, m_ui->H1Item, "<H1>"},
                                            {m_ui->H2Button, m_ui->H2Item, "<H2>"},
                                            {m_ui->BButton, m_ui->BItem, "<B>"},
                                            {m_ui->IButton, m_ui->IItem, "<I>"},
                                            {m_ui->UButton, m_ui->UItem, "<U>"}}};
    for (const Markup& markup : markups) {
        const auto wrap = [this, tag = markup.openTag] { WrapSelection(tag); };
        connect(markup.button, &QPushButton::clicked, this, wrap);
        connect(markup.entry, &QAction::triggered, this, wrap);
    }
}

void TxEdForm::Form_Load()
{
    SetFixedPitch(*m_ui->MainTxBox);
    for (const char* symbol : {"<", ">", "&"}) {
        m_ui->SymCombo->addItem(QString::fromLatin1(symbol));
    }
    m_ui->SymCombo->setCurrentIndex(-1);
    m_ui->MainTxBox->setPlainText(Shown(TextToEdit(m_book)));
    m_ui->MainTxBox->setFocus();
    connect(m_ui->MainTxBox, &QPlainTextEdit::textChanged, this, [this] { Edited(); });
}

void TxEdForm::AddRunningEdits(RunningEdits& edits)
{
    if (m_ui->MainTxBox->document()->isModified()) {
        const int number = m_book.CurrentTopicNo;
        edits.text = RunningText{number, m_book.TopicNames(number), TextOf(*m_ui->MainTxBox)};
    }
}

void TxEdForm::SaveButton_Click()
{
    const DoneOutcome outcome = SaveTopicText(m_book, m_seams, TextOf(*m_ui->MainTxBox));
    if (outcome.stored) {
        accept();
    } else if (m_seams.end.Ended()) {
        QDialog::reject();
    } else {
        SelectLine(*m_ui->MainTxBox, outcome.line);
        m_ui->MainTxBox->setFocus();
    }
}

void TxEdForm::CancelButton_Click()
{
    QDialog::reject();
}

void TxEdForm::reject()
{
    if (MayDropText(m_ui->MainTxBox->document()->isModified(), m_seams)) {
        QDialog::reject();
    }
}

void TxEdForm::WrapSelection(std::string_view openTag)
{
    InsertAround(Shown(openTag), Shown(ClosingTag(openTag)));
}

void TxEdForm::SymCombo_Click()
{
    const std::string symbol = m_ui->SymCombo->currentText().toStdString();
    if (const std::optional<std::string> entity = SymbolToInsert(symbol, m_seams)) {
        InsertAround(Shown(*entity), {});
    }
}

// Inserts in one undo step. A selection stays selected, so that a second pair can be put around it. Without a
// selection the caret is put between `before` and `after`.
void TxEdForm::InsertAround(const QString& before, const QString& after)
{
    QTextCursor cursor = m_ui->MainTxBox->textCursor();
    const int start = cursor.selectionStart();
    const int end = cursor.selectionEnd();
    const auto length = static_cast<int>(before.size());
    cursor.beginEditBlock();
    cursor.setPosition(end);
    cursor.insertText(after);
    cursor.setPosition(start);
    cursor.insertText(before);
    cursor.endEditBlock();
    cursor.setPosition(start + length);
    cursor.setPosition(end + length, QTextCursor::KeepAnchor);
    m_ui->MainTxBox->setTextCursor(cursor);
    m_ui->MainTxBox->setFocus();
}

// Choosing from the list inserts the symbol. So the wheel is ignored, the arrow keys open the list instead of
// choosing, and Enter inserts the chosen symbol again instead of pressing Done.
bool TxEdForm::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_ui->SymCombo) {
        return QDialog::eventFilter(watched, event);
    }
    if (event->type() == QEvent::Wheel) {
        return true;
    }
    if (event->type() != QEvent::KeyPress) {
        return false;
    }
    switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
        m_ui->SymCombo->showPopup();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        SymCombo_Click();
        return true;
    default:
        return false;
    }
}

} // namespace ls
