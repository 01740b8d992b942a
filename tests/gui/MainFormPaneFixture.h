#pragma once

#include "gui/MainFormFixture.h"
#include "render/pane/FindBar.h"

#include <QLineEdit>

namespace ls {

/// Shared by tests of the text in the main window's pane: books to show, and keys that go through the window.
struct MainFormPaneFixture : MainFormFixture
{
    ReadingPane& Pane() { return Get<ReadingPane>("MsgPic"); }
    QScrollBar& Bar() { return Get<QScrollBar>("VScroll1"); }
    std::string Count() { return Get<QLabel>("FindCount").text().toStdString(); }
    std::string Selected() { return Pane().SelectedText().toStdString(); }
    std::size_t SelectionStart() { return Pane().Selection().Range().begin; }

    /// Presses keys in the control that has the focus. They go through the window, so its shortcuts come
    /// first.
    void Keys(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(form.windowHandle(), key, modifiers);
    }

    void Find(const QString& text)
    {
        test::Press(form, "FindItem");
        test::Type(form, "FindBox", text);
    }

    std::string WriteTopic(const Strings& rows)
    {
        std::string bytes = "LODESTAR BOOK V5.3\r\n[T]\r\n";
        for (const std::string& row : rows) {
            bytes += row + "\r\n";
        }
        return Write("Topic.IDA", bytes);
    }

    /// Writes a book with a topic of two hundred lines. Every fiftieth has "Needle".
    std::string WriteNeedles()
    {
        Strings rows;
        for (int i = 1; i <= 200; ++i) {
            rows.push_back("Line " + std::to_string(i) + (i % 50 == 0 ? " with a Needle" : ""));
        }
        return WriteTopic(rows);
    }
};

} // namespace ls
