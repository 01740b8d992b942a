// Selection, copying and the caret in the reading pane.

#include "gui/PaneFixture.h"

#include <QApplication>
#include <QClipboard>
#include <QSignalSpy>

namespace ls {
namespace {

struct PaneSelectionTest : test::PaneFixture
{
    void Drag(const QPoint& from, const QPoint& to)
    {
        QTest::mousePress(pane, Qt::LeftButton, Qt::NoModifier, from);
        QTest::mouseMove(pane, to);
        QTest::mouseRelease(pane, Qt::LeftButton, Qt::NoModifier, to);
    }

    void Send(QEvent::Type type, const QPoint& at)
    {
        QMouseEvent event(type, at, pane->mapToGlobal(at), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(pane, &event);
    }
};

TEST_F(PaneSelectionTest, drag_selectsWhatItPasses)
{
    Show({"one <B>two</B> &AMP;", "", "three"});
    Drag(Point(1, 5), Point(1, 8));
    EXPECT_EQ(Selected(), "two");
    Drag(Point(3, 3), Point(1, 9));
    EXPECT_EQ(Selected(), "&\n\nth") << "backwards over rows";
    EXPECT_EQ(Caret(), 8U);
}

TEST_F(PaneSelectionTest, drag_inAScrolledTopic_selectsWhatIsSeen)
{
    ShowNumbers(100);
    bar->setValue(50);
    Drag(Point(1, 1), Point(2, 3));
    EXPECT_EQ(Selected(), "50\n51");
}

TEST_F(PaneSelectionTest, drag_belowTheText_scrollsOn)
{
    ShowNumbers(100);
    QTest::mousePress(pane, Qt::LeftButton, Qt::NoModifier, Point(1, 1));
    QTest::mouseMove(pane, QPoint(20, pane->height() + 30));
    EXPECT_TRUE(test::WaitFor([this] { return bar->value() > 5; }));
    QTest::mouseRelease(pane, Qt::LeftButton, Qt::NoModifier, QPoint(20, pane->height() + 30));
    const int stopped = bar->value();
    QTest::qWait(200);
    EXPECT_EQ(bar->value(), stopped);
    EXPECT_EQ(Selected().substr(0, 6), "1\n2\n3\n");
}

TEST_F(PaneSelectionTest, click_selectsNothing_shiftClickExtends)
{
    Show({"one two"});
    Drag(Point(1, 1), Point(1, 4));
    QTest::mouseClick(pane, Qt::LeftButton, Qt::NoModifier, Point(1, 5));
    EXPECT_EQ(Selected(), "");
    EXPECT_EQ(Caret(), 4U);
    QTest::mouseClick(pane, Qt::LeftButton, Qt::ShiftModifier, Point(1, 7));
    EXPECT_EQ(Selected(), "tw");
}

TEST_F(PaneSelectionTest, doubleClick_selectsTheWord_thirdOneTheRow)
{
    Show({"one two, three", "four"});
    const QPoint inTwo = Point(1, 5) + QPoint(2, 0);
    QTest::mouseClick(pane, Qt::LeftButton, Qt::NoModifier, inTwo);
    QTest::mouseDClick(pane, Qt::LeftButton, Qt::NoModifier, inTwo);
    EXPECT_EQ(Selected(), "two");
    QTest::mouseClick(pane, Qt::LeftButton, Qt::NoModifier, inTwo);
    EXPECT_EQ(Selected(), "one two, three");
}

TEST_F(PaneSelectionTest, doubleClickAndDrag_extendsByWords)
{
    Show({"one two, three", "four"});
    const QPoint inTwo = Point(1, 6) + QPoint(2, 0);
    QTest::mouseClick(pane, Qt::LeftButton, Qt::NoModifier, inTwo);
    Send(QEvent::MouseButtonDblClick, inTwo); // the second press, without its release
    Send(QEvent::MouseMove, Point(1, 11) + QPoint(2, 0));
    EXPECT_EQ(Selected(), "two, three");
    Send(QEvent::MouseMove, Point(1, 2) + QPoint(2, 0));
    EXPECT_EQ(Selected(), "one two") << "the first word stays selected";
    EXPECT_EQ(Caret(), 0U);
    Send(QEvent::MouseButtonRelease, Point(1, 2));
    Send(QEvent::MouseMove, Point(1, 11));
    EXPECT_EQ(Selected(), "one two") << "the button is up";
}

TEST_F(PaneSelectionTest, thirdPressAndDrag_extendsByRows)
{
    Show({"one two", "three", "four"});
    QTest::mouseClick(pane, Qt::LeftButton, Qt::NoModifier, Point(2, 3));
    QTest::mouseDClick(pane, Qt::LeftButton, Qt::NoModifier, Point(2, 3));
    QTest::mousePress(pane, Qt::LeftButton, Qt::NoModifier, Point(2, 3));
    QTest::mouseMove(pane, Point(3, 2));
    EXPECT_EQ(Selected(), "three\nfour");
    QTest::mouseMove(pane, Point(1, 2));
    EXPECT_EQ(Selected(), "one two\nthree");
    QTest::mouseRelease(pane, Qt::LeftButton, Qt::NoModifier, Point(1, 2));
}

TEST_F(PaneSelectionTest, shiftClick_onTheOtherSide_turnsTheSelectionRound)
{
    Show({"one two three"});
    Drag(Point(1, 5), Point(1, 8));
    QTest::mouseClick(pane, Qt::LeftButton, Qt::ShiftModifier, Point(1, 1));
    EXPECT_EQ(Selected(), "one ");
    EXPECT_EQ(Caret(), 0U);
}

TEST_F(PaneSelectionTest, otherButtons_leaveTheSelection)
{
    Show({"one two"});
    pane->SelectAll();
    QTest::mouseClick(pane, Qt::RightButton, Qt::NoModifier, Point(1, 3));
    QTest::mouseClick(pane, Qt::MiddleButton, Qt::NoModifier, Point(1, 3));
    EXPECT_EQ(Selected(), "one two");
}

TEST_F(PaneSelectionTest, key_movesTheCaretOrExtends)
{
    struct Case
    {
        const char* name;
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
        std::size_t caret;
        const char* selected;
    };
    Show({"one two", "three four", "five"}); // offsets 0, 8, 19; the caret begins in "four"
    const Qt::KeyboardModifiers both = Qt::ControlModifier | Qt::ShiftModifier;
    for (const Case& c : {Case{"left", Qt::Key_Left, Qt::NoModifier, 14, ""},
                          Case{"right", Qt::Key_Right, Qt::NoModifier, 16, ""},
                          Case{"right of the number pad", Qt::Key_Right, Qt::KeypadModifier, 16, ""},
                          Case{"word left", Qt::Key_Left, Qt::ControlModifier, 14, ""},
                          Case{"word right", Qt::Key_Right, Qt::ControlModifier, 19, ""},
                          Case{"start", Qt::Key_Home, Qt::ControlModifier, 0, ""},
                          Case{"end", Qt::Key_End, Qt::ControlModifier, 23, ""},
                          Case{"extend left", Qt::Key_Left, Qt::ShiftModifier, 14, "f"},
                          Case{"extend right", Qt::Key_Right, Qt::ShiftModifier, 16, "o"},
                          Case{"extend up", Qt::Key_Up, Qt::ShiftModifier, 7, "\nthree f"},
                          Case{"extend down", Qt::Key_Down, Qt::ShiftModifier, 23, "our\nfive"},
                          Case{"extend to the row's start", Qt::Key_Home, Qt::ShiftModifier, 8, "three f"},
                          Case{"extend to the row's end", Qt::Key_End, Qt::ShiftModifier, 18, "our"},
                          Case{"extend by a word", Qt::Key_Right, both, 19, "our\n"},
                          Case{"extend to the end", Qt::Key_End, both, 23, "our\nfive"},
                          Case{"extend to the start", Qt::Key_Home, both, 0, "one two\nthree f"}}) {
        pane->MoveCaret(15);
        Key(c.key, c.modifiers);
        EXPECT_EQ(Caret(), c.caret) << c.name;
        EXPECT_EQ(Selected(), c.selected) << c.name;
    }
}

TEST_F(PaneSelectionTest, caretMovedOutOfView_scrollsThere)
{
    ShowNumbers(100);
    Key(Qt::Key_End, Qt::ControlModifier);
    const auto rows = static_cast<int>(pane->InnerHeight() / pane->RowHeight());
    EXPECT_EQ(bar->value(), 100 - rows + 1) << "no further than it takes";
    Key(Qt::Key_Home, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(bar->value(), 1);
    EXPECT_EQ(Selected().size(), pane->Topic().Length());
}

TEST_F(PaneSelectionTest, shiftedPageKeys_moveTheCaretByAPageAndBack)
{
    ShowNumbers(100);
    const auto rows = static_cast<int>(pane->InnerHeight() / pane->RowHeight());
    pane->MoveCaret(pane->Topic().LineStart(50));
    Key(Qt::Key_PageDown, Qt::ShiftModifier);
    const int below = pane->Topic().LineAt(Caret());
    EXPECT_GE(below, 50 + rows - 2);
    EXPECT_LE(below, 50 + rows);
    Key(Qt::Key_PageUp, Qt::ShiftModifier);
    EXPECT_EQ(pane->Topic().LineAt(Caret()), 50);
    Key(Qt::Key_PageUp, Qt::ShiftModifier);
    EXPECT_EQ(pane->Topic().LineAt(Caret()), 50 - (below - 50));
}

TEST_F(PaneSelectionTest, scrollKeys_takeTheCaretAlongByLines)
{
    ShowNumbers(100);
    std::vector<int> caretLines;
    for (const Qt::Key key :
         {Qt::Key_Down, Qt::Key_Down, Qt::Key_Up, Qt::Key_End, Qt::Key_Down, Qt::Key_Home, Qt::Key_Up}) {
        Key(key);
        caretLines.push_back(pane->Topic().LineAt(Caret()));
    }
    EXPECT_EQ(caretLines, (std::vector<int>{2, 3, 2, 100, 100, 1, 1}));
}

TEST_F(PaneSelectionTest, scrollKeys_textScrolledWithoutTheCaret_bringItBack)
{
    ShowNumbers(100);
    bar->setValue(60);
    Key(Qt::Key_Down);
    EXPECT_EQ(bar->value(), 61);
    EXPECT_EQ(pane->Topic().LineAt(Caret()), 61);
}

TEST_F(PaneSelectionTest, scrollKeys_keepASelection)
{
    ShowNumbers(100);
    pane->SelectAll();
    Key(Qt::Key_PageDown);
    EXPECT_EQ(Selected().size(), pane->Topic().Length());
}

TEST_F(PaneSelectionTest, copy_putsTheTextOnTheClipboard)
{
    Show({"caf\xE9 <B>5 \x80</B>", "b"});
    QApplication::clipboard()->setText(QStringLiteral("before"));
    pane->Copy();
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("before")) << "nothing was selected";
    pane->SelectAll();
    pane->Copy();
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("caf\u00E9 5 \u20AC\nb"));
}

TEST_F(PaneSelectionTest, selectionChanged_isToldOncePerChange)
{
    Show({"one two"});
    const QSignalSpy changes(pane, &ReadingPane::SelectionChanged);
    pane->SelectAll();
    pane->SelectAll();
    EXPECT_EQ(changes.count(), 1);
    pane->Select({0, 3});
    EXPECT_EQ(changes.count(), 2);
}

TEST_F(PaneSelectionTest, anotherTopic_hasNothingSelected)
{
    Show({"one two"});
    pane->SelectAll();
    Show({"another"});
    EXPECT_EQ(Selected(), "");
    EXPECT_EQ(Caret(), 0U);
    EXPECT_EQ(pane->Topic().Text(), "another");
}

TEST_F(PaneSelectionTest, noTopic_keysAndMouseDoNothing)
{
    Show({"one"});
    pane->SetTopic(nullptr, 0);
    Key(Qt::Key_Right);
    Key(Qt::Key_End, Qt::ControlModifier | Qt::ShiftModifier);
    Drag(Point(1, 1), Point(1, 4));
    QTest::mouseDClick(pane, Qt::LeftButton, Qt::NoModifier, Point(1, 1));
    pane->SelectAll();
    EXPECT_EQ(Selected(), "");
}

TEST_F(PaneSelectionTest, selection_isSeenInTheHighlightColours)
{
    Show({"one two", "", "three"});
    bar->setFocus();
    const QImage plain = Look();
    pane->SelectAll();
    const QImage selected = Look();
    EXPECT_NE(selected, plain);
    const QRgb highlight = pane->palette().color(QPalette::Highlight).rgb();
    EXPECT_EQ(selected.pixel(Point(1, 4) + QPoint(2, 0)), highlight) << "a blank";
    EXPECT_EQ(selected.pixel(Point(2, 1) + QPoint(2, 0)), highlight) << "an empty row";
    EXPECT_EQ(selected.pixel(Point(3, 8)), qRgb(255, 255, 255)) << "behind the text";
    test::TakePicture(window, "pane-selection");
    pane->MoveCaret(0);
    EXPECT_EQ(Look(), plain) << "the caret is seen only with the focus";
}

TEST_F(PaneSelectionTest, caret_isSeenOnceAKeyHasMovedIt)
{
    Show({"one two"});
    const QImage plain = Look();
    Key(Qt::Key_Down);
    EXPECT_EQ(Look(), plain) << "a key that scrolls";
    Key(Qt::Key_Home, Qt::ControlModifier);
    Key(Qt::Key_Right);
    EXPECT_NE(Look(), plain);
    EXPECT_EQ(Look().pixel(Point(1, 2)), qRgb(0, 0, 0));
}

TEST_F(PaneSelectionTest, typeSize_changesTheCellAndComesBack)
{
    Show({"one two"});
    const double width = pane->CharWidth();
    const QImage plain = Look();
    pane->SetTypeSize(19.5);
    Draw();
    EXPECT_NEAR(pane->CharWidth(), 2 * width, 1);
    EXPECT_NE(Look(), plain);
    EXPECT_DOUBLE_EQ(pane->TextWidth("W"), pane->CharWidth());
    pane->SetTypeSize(NormalTypeSize);
    Draw();
    EXPECT_EQ(Look(), plain);
}

} // namespace
} // namespace ls
