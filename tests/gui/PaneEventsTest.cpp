// The events that the reading pane sends to screen readers and other programs. Needs a real display.

#include "gui/PaneFixture.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>

namespace ls {
namespace {

// The recorded events, as "kind position".
std::vector<std::string>* events = nullptr;

void Record(QAccessibleEvent* event)
{
    switch (event->type()) {
    case QAccessible::TextCaretMoved:
        events->push_back("caret " +
                          std::to_string(static_cast<QAccessibleTextCursorEvent*>(event)->cursorPosition()));
        break;
    case QAccessible::TextSelectionChanged: {
        const auto* selection = static_cast<QAccessibleTextSelectionEvent*>(event);
        events->push_back("selection " + std::to_string(selection->selectionStart()) + "-" +
                          std::to_string(selection->selectionEnd()));
        break;
    }
    case QAccessible::TextUpdated:
        events->push_back("text " +
                          static_cast<QAccessibleTextUpdateEvent*>(event)->textInserted().toStdString());
        break;
    default:
        break;
    }
}

struct PaneEventsTest : test::PaneFixture
{
};

TEST_F(PaneEventsTest, changes_areToldToListeners)
{
    Show({"one", "two"});
    std::vector<std::string> told;
    events = &told;
    ASSERT_TRUE(test::WaitFor([] { return QAccessible::isActive(); })) << "there are no listeners";
    const auto before = QAccessible::installUpdateHandler(Record);
    Key(Qt::Key_Down);
    Key(Qt::Key_Right, Qt::ShiftModifier);
    Show({"three"});
    QAccessible::installUpdateHandler(before);
    EXPECT_EQ(told, (std::vector<std::string>{"caret 4", "selection 4-5", "caret 5", "text three"}));
}

TEST_F(PaneEventsTest, selection_isOfferedToTheMiddleButton)
{
    Show({"one two"});
    QClipboard& clipboard = *QApplication::clipboard();
    ASSERT_TRUE(clipboard.supportsSelection());
    clipboard.setText(QStringLiteral("before"));
    QTest::mouseDClick(pane, Qt::LeftButton, Qt::NoModifier, Point(1, 6));
    QTest::mouseRelease(pane, Qt::LeftButton, Qt::NoModifier, Point(1, 6));
    EXPECT_EQ(clipboard.text(QClipboard::Selection), QStringLiteral("two"));
    Key(Qt::Key_Home, Qt::ShiftModifier);
    EXPECT_EQ(clipboard.text(QClipboard::Selection), QStringLiteral("one "));
    Key(Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(clipboard.text(QClipboard::Selection), QStringLiteral("one ")) << "until another is made";
    pane->SelectAll();
    EXPECT_EQ(clipboard.text(QClipboard::Selection), QStringLiteral("one two"));
    EXPECT_EQ(clipboard.text(), QStringLiteral("before")) << "copying is another matter";
}

} // namespace
} // namespace ls
