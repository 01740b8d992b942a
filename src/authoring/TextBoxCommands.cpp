#include "authoring/TextBoxCommands.h"

#include "base/Messages.h"
#include "forms/Shown.h"
#include "forms/TextBox.h"

#include <QAction>
#include <QEvent>
#include <QPlainTextEdit>

#include <optional>

namespace ls {

TextBoxCommands::TextBoxCommands(const Items& items, std::initializer_list<QPlainTextEdit*> boxes,
                                 const Seams& seams)
    : m_items(items), m_seams(seams), m_box(*boxes.begin())
{
    for (QPlainTextEdit* box : boxes) {
        Follow(*box);
    }
    connect(m_items.undo, &QAction::triggered, this, [this] { m_box->undo(); });
    connect(m_items.redo, &QAction::triggered, this, [this] { m_box->redo(); });
    connect(m_items.selectAll, &QAction::triggered, this, [this] { m_box->selectAll(); });
    connect(m_items.find, &QAction::triggered, this, &TextBoxCommands::FindItem_Click);
    connect(m_items.findNext, &QAction::triggered, this, &TextBoxCommands::FindNextItem_Click);
    EnableSteps();
}

void TextBoxCommands::Follow(QPlainTextEdit& box)
{
    box.installEventFilter(this);
    connect(&box, &QPlainTextEdit::undoAvailable, this, &TextBoxCommands::EnableSteps);
    connect(&box, &QPlainTextEdit::redoAvailable, this, &TextBoxCommands::EnableSteps);
}

bool TextBoxCommands::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn) {
        m_box = qobject_cast<QPlainTextEdit*>(watched);
        EnableSteps();
    }
    return false;
}

void TextBoxCommands::EnableSteps()
{
    m_items.undo->setEnabled(m_box->document()->isUndoAvailable());
    m_items.redo->setEnabled(m_box->document()->isRedoAvailable());
}

void TextBoxCommands::FindItem_Click()
{
    const std::optional<std::string> sought = m_seams.messages.InputBox("Find what:", "Find", m_sought);
    if (sought && !sought->empty()) {
        m_sought = *sought;
        FindNextItem_Click();
    }
}

// Searches from the caret to the end, then from the start.
void TextBoxCommands::FindNextItem_Click()
{
    if (m_sought.empty()) {
        FindItem_Click();
        return;
    }
    const QTextDocument& document = *m_box->document();
    const QString sought = Shown(m_sought);
    QTextCursor found = document.find(sought, m_box->textCursor());
    if (found.isNull()) {
        found = document.find(sought, 0);
    }
    if (found.isNull()) {
        m_seams.messages.MsgBox("\"" + m_sought + "\" was not found.", Icon::Information);
        return;
    }
    m_box->setTextCursor(found);
    m_box->setFocus();
}

} // namespace ls
