// Copying and finding in the main window: menu items, keys, and the bar below the pane.

#include "gui/MainFormPaneFixture.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QTimer>

namespace ls {
namespace {

using test::Press;

struct MainFormPaneTest : MainFormPaneFixture
{
};

TEST_F(MainFormPaneTest, keys_copyAndSelectAll_workWithTheFocusAnywhere)
{
    Start(WriteTopic({"<B>one</B>", "two"}));
    Get<QPushButton>("DoneButton").setFocus();
    Keys(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(Selected(), "one\ntwo");
    Keys(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("one\ntwo"));
}

TEST_F(MainFormPaneTest, otherCopyKey_copies)
{
    Start(WriteTopic({"one"}));
    Pane().SelectAll();
    Keys(Qt::Key_Insert, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("one"));
}

TEST_F(MainFormPaneTest, rightButton_showsTheItemsOfTheMenu)
{
    Start(WriteTopic({"one two"}));
    Pane().SelectAll();
    Strings items;
    QTimer::singleShot(0, &form, [&] {
        if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget()); menu != nullptr) {
            for (QAction* item : menu->actions()) {
                items.push_back(item->objectName().toStdString());
            }
            menu->actions().first()->trigger();
            menu->close();
        }
    });
    QContextMenuEvent event(QContextMenuEvent::Mouse, {20, 20}, Pane().mapToGlobal(QPoint(20, 20)));
    QApplication::sendEvent(&Pane(), &event);
    EXPECT_EQ(items, (Strings{"CopyItem", "SelectAllItem", "FindItem"}));
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("one two"));
}

TEST_F(MainFormPaneTest, items_copyAndSelectAll_doTheSame)
{
    Start(WriteTopic({"three"}));
    Press(form, "SelectAllItem");
    Press(form, "CopyItem");
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("three"));
}

TEST_F(MainFormPaneTest, keysInTheFindBox_areItsOwn)
{
    Start(WriteTopic({"three"}));
    Find(QStringLiteral("thr"));
    Keys(Qt::Key_A, Qt::ControlModifier);
    Keys(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("thr"));
    EXPECT_EQ(Selected(), "thr");
}

TEST_F(MainFormPaneTest, find_whileTyping_selectsAndCounts)
{
    Start(WriteNeedles());
    EXPECT_FALSE(Visible("FindBar"));
    Keys(Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(Visible("FindBar"));
    EXPECT_EQ(QApplication::focusWidget(), &Get<QLineEdit>("FindBox"));
    EXPECT_EQ(Count(), "");
    test::Type(form, "FindBox", QStringLiteral("needle"));
    EXPECT_EQ(Count(), "1 of 4");
    EXPECT_EQ(Selected(), "Needle");
    EXPECT_EQ(Pane().Topic().LineAt(SelectionStart()), 50);
    EXPECT_FALSE(Pane().CharacterRect(SelectionStart()).isEmpty()) << "it is scrolled into view";
    test::TakePicture(form, "main-find");
}

TEST_F(MainFormPaneTest, find_nextAndPrevious_goAround)
{
    Start(WriteNeedles());
    Find(QStringLiteral("NEEDLE"));
    Strings counts;
    const auto note = [&] { counts.push_back(Count()); };
    Keys(Qt::Key_Return);
    note();
    Press(form, "FindNextButton");
    note();
    Keys(Qt::Key_F3);
    note();
    Press(form, "FindNextItem");
    note();
    Press(form, "FindPreviousButton");
    note();
    Keys(Qt::Key_F3, Qt::ShiftModifier);
    note();
    Press(form, "FindPreviousItem");
    note();
    Get<QLineEdit>("FindBox").setFocus();
    Keys(Qt::Key_Return, Qt::ShiftModifier);
    note();
    EXPECT_EQ(counts,
              (Strings{"2 of 4", "3 of 4", "4 of 4", "1 of 4", "4 of 4", "3 of 4", "2 of 4", "1 of 4"}));
    EXPECT_TRUE(form.isVisible()) << "Enter does not press the window's own button";
}

TEST_F(MainFormPaneTest, find_nothing_saysSo)
{
    Start(WriteNeedles());
    for (const QString& text : {QStringLiteral("haystack"), QStringLiteral("\u0416")}) {
        Press(form, "FindItem");
        Get<QLineEdit>("FindBox").setText(QStringLiteral("Line"));
        Get<QLineEdit>("FindBox").setText(text);
        EXPECT_EQ(Count(), "Not found");
        Press(form, "FindNextButton");
        EXPECT_EQ(Count(), "Not found");
        EXPECT_EQ(Selected(), "");
    }
}

TEST_F(MainFormPaneTest, find_wordsOfABrokenLine_areFound)
{
    Start(WriteTopic({std::string(70, 'a') + " quick foxes jump"}));
    ASSERT_NE(PaneText().find("|"), std::string::npos);
    Find(QStringLiteral("quick fox"));
    EXPECT_EQ(Count(), "1 of 1");
}

TEST_F(MainFormPaneTest, find_selection_isTakenOver)
{
    Start(WriteNeedles());
    Pane().Select({0, 4});
    Press(form, "FindItem");
    EXPECT_EQ(Get<QLineEdit>("FindBox").text(), QStringLiteral("Line"));
    EXPECT_EQ(Get<QLineEdit>("FindBox").selectedText(), QStringLiteral("Line"));
    EXPECT_EQ(Selected(), "Line");
    EXPECT_EQ(Count(), "1 of 200");
}

TEST_F(MainFormPaneTest, findNext_nothingSought_opensTheBar)
{
    Start(WriteNeedles());
    Keys(Qt::Key_F3);
    EXPECT_TRUE(Visible("FindBar"));
    EXPECT_EQ(QApplication::focusWidget(), &Get<QLineEdit>("FindBox"));
}

TEST_F(MainFormPaneTest, findBar_takesItsRoomFromThePane)
{
    Start(WriteNeedles());
    const QRect pane = Pane().geometry();
    const int page = Bar().pageStep();
    Bar().setValue(20);
    Press(form, "FindItem");
    const QRect bar = Get<FindBar>("FindBar").geometry();
    EXPECT_GT(bar.height(), 20);
    EXPECT_EQ(Pane().geometry(), pane.adjusted(0, 0, 0, -bar.height()));
    EXPECT_EQ(bar.topLeft(), Pane().geometry().bottomLeft() + QPoint(0, 1));
    EXPECT_EQ(bar.right(), Bar().geometry().right());
    EXPECT_EQ(Bar().height(), Pane().height());
    EXPECT_LT(Bar().pageStep(), page);
    EXPECT_EQ(Bar().value(), 20);
    Keys(Qt::Key_Escape);
    EXPECT_FALSE(Visible("FindBar"));
    EXPECT_EQ(Pane().geometry(), pane);
    EXPECT_EQ(Bar().pageStep(), page);
    EXPECT_EQ(Bar().value(), 20);
    EXPECT_EQ(QApplication::focusWidget(), &Pane());
}

TEST_F(MainFormPaneTest, findBar_escapeElsewhere_closesItToo)
{
    Start(WriteNeedles());
    Press(form, "FindItem");
    Get<QPushButton>("DoneButton").setFocus();
    Keys(Qt::Key_Escape);
    EXPECT_FALSE(Visible("FindBar"));
    Get<QPushButton>("DoneButton").setFocus();
    Keys(Qt::Key_Escape);
    EXPECT_EQ(QApplication::focusWidget(), &Get<QPushButton>("DoneButton")) << "it was closed already";
}

TEST_F(MainFormPaneTest, findCount_anotherSelection_isFollowed)
{
    Start(WriteTopic({"one two two"}));
    Find(QStringLiteral("two"));
    EXPECT_EQ(Count(), "1 of 2");
    Pane().Select({8, 11});
    EXPECT_EQ(Count(), "2 of 2");
    Pane().MoveCaret(0);
    EXPECT_EQ(Count(), "2 found");
}

TEST_F(MainFormPaneTest, findCount_isDescribedToScreenReaders)
{
    Start(WriteTopic({"one two two"}));
    Find(QStringLiteral("two"));
    EXPECT_EQ(Get<QLineEdit>("FindBox").accessibleDescription(), QStringLiteral("1 of 2"));
    Keys(Qt::Key_Return);
    EXPECT_EQ(Get<QLineEdit>("FindBox").accessibleDescription(), QStringLiteral("2 of 2"));
}

TEST_F(MainFormPaneTest, findBar_doneButton_closesItAndKeepsThePlace)
{
    Start(WriteNeedles());
    Find(QStringLiteral("needle"));
    Press(form, "FindCloseButton");
    EXPECT_FALSE(Visible("FindBar"));
    EXPECT_EQ(Selected(), "Needle");
}

TEST_F(MainFormPaneTest, findBar_tabKey_goesFromThePaneThroughTheBar)
{
    Start(WriteNeedles());
    Press(form, "FindItem");
    Pane().setFocus();
    Strings names;
    for (int i = 0; i < 5; ++i) {
        Keys(Qt::Key_Tab);
        names.push_back(QApplication::focusWidget()->objectName().toStdString());
    }
    EXPECT_EQ(names,
              (Strings{"FindBox", "FindPreviousButton", "FindNextButton", "FindCloseButton", "DoneButton"}));
}

TEST_F(MainFormPaneTest, findBar_anotherTopic_isCounted)
{
    Start(Write("Two.IDA", test::CrLf({"LODESTAR BOOK V5.3", "[T]", "a needle", "[U]", "needle, needle"})));
    Find(QStringLiteral("needle"));
    EXPECT_EQ(Count(), "1 of 1");
    Press(form, "NextButton");
    EXPECT_EQ(Count(), "2 found");
    Keys(Qt::Key_F3);
    EXPECT_EQ(Count(), "1 of 2");
    Select(0);
    EXPECT_EQ(Count(), "Not found") << "nothing is on show";
}

} // namespace
} // namespace ls
