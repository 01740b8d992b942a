#pragma once

#include "base/Seams.h"

#include <QObject>
#include <QPointer>

#include <initializer_list>
#include <string>

class QAction;
class QPlainTextEdit;

namespace ls {

/// The commands that all text boxes of an editor have: undo, redo, select all, find and find next. They act
/// on the box that last had the focus, initially the first one. Undo and redo are enabled if that box has a
/// step for them.
class TextBoxCommands : public QObject
{
    Q_OBJECT

public:
    struct Items
    {
        QAction* undo;
        QAction* redo;
        QAction* selectAll;
        QAction* find;
        QAction* findNext;
    };

    TextBoxCommands(const Items& items, std::initializer_list<QPlainTextEdit*> boxes, const Seams& seams);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Follow(QPlainTextEdit& box);
    void EnableSteps();
    void FindItem_Click();
    void FindNextItem_Click();

    Items m_items;
    Seams m_seams;
    QPointer<QPlainTextEdit> m_box; ///< the last one with the focus
    std::string m_sought;           ///< what Find Next looks for
};

} // namespace ls
