#include "authoring/TxEdForm.h"

#include "app/FormFont.h"
#include "authoring/TopicText.h"
#include "base/Messages.h"
#include "base/ProgramEnd.h"
#include "render/CellMetrics.h"
#include "ui_TxEdForm.h"

#include <QKeyEvent>
#include <QTextBlock>

#include <array>
#include <utility>

namespace ls {

namespace {

constexpr int TabColumns = 5; // as wide as the display shows a leading TAB

QString FromStd(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

} // namespace

TxEdForm::TxEdForm(QWidget* parent, Book& book, const Seams& seams)
    : QDialog(parent), m_ui(std::make_unique<Ui::TxEdForm>()), m_book(book), m_seams(seams)
{
    setFont(FormFont());
    m_ui->setupUi(this);
    ConnectButtons();
    ConnectItems();
    m_ui->SymCombo->installEventFilter(this);
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
    QPlainTextEdit* box = m_ui->MainTxBox;
    connect(m_ui->UndoItem, &QAction::triggered, box, &QPlainTextEdit::undo);
    connect(m_ui->RedoItem, &QAction::triggered, box, &QPlainTextEdit::redo);
    connect(m_ui->SelectAllItem, &QAction::triggered, box, &QPlainTextEdit::selectAll);
    connect(box, &QPlainTextEdit::undoAvailable, m_ui->UndoItem, &QAction::setEnabled);
    connect(box, &QPlainTextEdit::redoAvailable, m_ui->RedoItem, &QAction::setEnabled);
    connect(m_ui->FindItem, &QAction::triggered, this, &TxEdForm::FindItem_Click);
    connect(m_ui->FindNextItem, &QAction::triggered, this, &TxEdForm::FindNextItem_Click);
}

void TxEdForm::Form_Load()
{
    const CellMetrics cells = MeasureCells(logicalDpiY());
    m_ui->MainTxBox->setFont(cells.fonts[RegularFace]);
    m_ui->MainTxBox->setTabStopDistance(TabColumns * cells.charWidth);
    for (const char* symbol : {"<", ">", "&"}) {
        m_ui->SymCombo->addItem(QString::fromLatin1(symbol));
    }
    m_ui->SymCombo->setCurrentIndex(-1);
    m_ui->UndoItem->setEnabled(false);
    m_ui->RedoItem->setEnabled(false);
    m_ui->MainTxBox->setPlainText(FromStd(TextToEdit(m_book)));
    m_ui->MainTxBox->setFocus();
}

// The text with "\n" between its lines. It is asked for raw: else a hard blank would come as an ordinary one.
QString TxEdForm::Text() const
{
    QString text = m_ui->MainTxBox->document()->toRawText();
    text.replace(QChar::ParagraphSeparator, u'\n');
    text.replace(QChar::LineSeparator, u'\n');
    return text;
}

void TxEdForm::SaveButton_Click()
{
    const DoneOutcome outcome = SaveTopicText(m_book, m_seams, Text().toStdString());
    if (outcome.stored) {
        accept();
    } else if (m_seams.end.Ended()) {
        QDialog::reject();
    } else {
        GoToLine(outcome.line);
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

void TxEdForm::GoToLine(int line)
{
    const QString text = Text();
    qsizetype start = 0;
    for (int i = 1; i < line; ++i) {
        start = text.indexOf(u'\n', start) + 1;
    }
    const qsizetype end = text.indexOf(u'\n', start);
    QTextCursor cursor = m_ui->MainTxBox->textCursor();
    cursor.setPosition(static_cast<int>(start));
    cursor.setPosition(static_cast<int>(end < 0 ? text.size() : end), QTextCursor::KeepAnchor);
    m_ui->MainTxBox->setTextCursor(cursor);
    m_ui->MainTxBox->setFocus();
}

void TxEdForm::WrapSelection(std::string_view openTag)
{
    InsertAround(FromStd(openTag), FromStd(ClosingTag(openTag)));
}

void TxEdForm::SymCombo_Click()
{
    const std::string symbol = m_ui->SymCombo->currentText().toStdString();
    if (const std::optional<std::string> entity = SymbolToInsert(symbol, m_seams)) {
        InsertAround(FromStd(*entity), {});
    }
}

// One step to undo. A selection stays selected, so that a second pair can be put around it; without one the
// caret stands behind `before`, where the next character is to be typed.
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

void TxEdForm::FindItem_Click()
{
    const std::optional<std::string> sought = m_seams.messages.InputBox("Find what:", "Find", m_sought);
    if (sought && !sought->empty()) {
        m_sought = *sought;
        FindNextItem_Click();
    }
}

// From the caret on, and from the start again behind the end.
void TxEdForm::FindNextItem_Click()
{
    if (m_sought.empty()) {
        FindItem_Click();
        return;
    }
    const QTextDocument& document = *m_ui->MainTxBox->document();
    const QString sought = FromStd(m_sought);
    QTextCursor found = document.find(sought, m_ui->MainTxBox->textCursor());
    if (found.isNull()) {
        found = document.find(sought, 0);
    }
    if (found.isNull()) {
        m_seams.messages.MsgBox("\"" + m_sought + "\" was not found.", Icon::Information);
        return;
    }
    m_ui->MainTxBox->setTextCursor(found);
    m_ui->MainTxBox->setFocus();
}

// Every choice in the list inserts. So the wheel must not choose, the arrow keys open the list instead of
// running through it, and Enter inserts the chosen symbol again instead of pressing Done.
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
