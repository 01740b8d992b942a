// The reading pane as a screen reader sees it.

#include "gui/PaneFixture.h"

#include <QAccessible>

namespace ls {
namespace {

struct PaneAccessibleTest : test::PaneFixture
{
    QAccessibleInterface& Interface()
    {
        QAccessibleInterface* found = QAccessible::queryAccessibleInterface(pane);
        EXPECT_NE(found, nullptr);
        return *found;
    }

    QAccessibleTextInterface& Text()
    {
        QAccessibleTextInterface* found = Interface().textInterface();
        EXPECT_NE(found, nullptr);
        return *found;
    }

    // "start-end text" of the line around an offset; `away` -1 or 1 is the line before or after it.
    std::string Line(int offset, int away = 0)
    {
        int start = -2;
        int end = -2;
        constexpr auto kind = QAccessible::LineBoundary;
        const QString text = away == 0  ? Text().textAtOffset(offset, kind, &start, &end)
                             : away < 0 ? Text().textBeforeOffset(offset, kind, &start, &end)
                                        : Text().textAfterOffset(offset, kind, &start, &end);
        return std::to_string(start) + "-" + std::to_string(end) + " " + text.toStdString();
    }

    std::string Attributes(int offset)
    {
        int start = -2;
        int end = -2;
        const QString text = Text().attributes(offset, &start, &end);
        return std::to_string(start) + "-" + std::to_string(end) + " " + text.toStdString();
    }
};

TEST_F(PaneAccessibleTest, role_isAReadOnlyTextOfSeveralLines)
{
    Show({"one"});
    EXPECT_EQ(Interface().role(), QAccessible::EditableText);
    const QAccessible::State state = Interface().state();
    EXPECT_TRUE(state.readOnly);
    EXPECT_TRUE(state.multiLine);
    EXPECT_TRUE(state.selectableText);
    EXPECT_TRUE(state.focusable);
    EXPECT_TRUE(state.focused);
}

TEST_F(PaneAccessibleTest, text_isThatOfTheWholeTopic)
{
    ShowNumbers(100);
    bar->setValue(50);
    const int count = Text().characterCount();
    EXPECT_EQ(count, 291) << "with the ends of 99 rows";
    EXPECT_EQ(Text().text(0, 5), QStringLiteral("1\n2\n3"));
    EXPECT_EQ(Text().text(count - 3, count), QStringLiteral("100"));
    EXPECT_EQ(Text().text(count - 3, -1), QStringLiteral("100"));
}

TEST_F(PaneAccessibleTest, lines_areTheRows)
{
    Show({"one", "", "three"});
    EXPECT_EQ(Line(1), "0-4 one\n");
    EXPECT_EQ(Line(3), "0-4 one\n");
    EXPECT_EQ(Line(4), "4-5 \n");
    EXPECT_EQ(Line(7), "5-10 three");
    EXPECT_EQ(Line(10), "5-10 three");
    EXPECT_EQ(Line(7, -1), "4-5 \n");
    EXPECT_EQ(Line(1, 1), "4-5 \n");
    EXPECT_EQ(Line(1, -1), "-1--1 ");
    EXPECT_EQ(Line(7, 1), "-1--1 ");
}

TEST_F(PaneAccessibleTest, words_areToldByTheToolkit)
{
    Show({"one two"});
    int start = 0;
    int end = 0;
    EXPECT_EQ(Text().textAtOffset(5, QAccessible::WordBoundary, &start, &end), QStringLiteral("two"));
    EXPECT_EQ(start, 4);
    EXPECT_EQ(Text().textAtOffset(1, QAccessible::CharBoundary, &start, &end), QStringLiteral("n"));
}

TEST_F(PaneAccessibleTest, attributes_tellStylesAndHeadings)
{
    Show({"<H1>T</H1>", "<H2>U</H2>", "<H3>V</H3>", "a <B>b</B><I>c</I><U>d</U>"});
    EXPECT_EQ(Attributes(0), "0-1 font-weight:bold;text-underline-style:solid;text-underline-type:single;"
                             "color:rgb(127,0,0);tag:h1;level:1;");
    EXPECT_EQ(Attributes(2), "2-3 font-weight:bold;color:rgb(0,127,0);tag:h2;level:2;");
    EXPECT_EQ(Attributes(4), "4-5 font-style:italic;color:rgb(0,0,127);tag:h3;level:3;");
    EXPECT_EQ(Attributes(6), "5-8 color:rgb(0,0,0);");
    EXPECT_EQ(Attributes(8), "8-9 font-weight:bold;color:rgb(0,0,0);");
    EXPECT_EQ(Attributes(9), "9-10 font-style:italic;color:rgb(0,0,0);");
    EXPECT_EQ(Attributes(10),
              "10-11 text-underline-style:solid;text-underline-type:single;color:rgb(0,0,0);");
}

TEST_F(PaneAccessibleTest, caret_isTheKeysCaret)
{
    ShowNumbers(100);
    Key(Qt::Key_Right);
    EXPECT_EQ(Text().cursorPosition(), 1);
    Text().setCursorPosition(291);
    EXPECT_EQ(Caret(), 291U);
    EXPECT_GT(bar->value(), 1) << "and it is scrolled there";
    Text().setCursorPosition(9999);
    EXPECT_EQ(Text().cursorPosition(), 291);
    Text().setCursorPosition(-5);
    EXPECT_EQ(Text().cursorPosition(), 0);
}

TEST_F(PaneAccessibleTest, offsetsBelow0_areTheEndAndTheCaret)
{
    Show({"one", "<B>two</B>", "three"});
    Text().setCursorPosition(5);
    EXPECT_EQ(Line(-1), "8-13 three");
    EXPECT_EQ(Line(-2), "4-8 two\n");
    EXPECT_EQ(Attributes(-2), "4-7 font-weight:bold;color:rgb(0,0,0);");
    EXPECT_EQ(Attributes(-1), "13-13 color:rgb(0,0,0);");
}

TEST_F(PaneAccessibleTest, selection_isSetAndTold)
{
    Show({"one two"});
    EXPECT_EQ(Text().selectionCount(), 0);
    Text().setSelection(0, 4, 7);
    EXPECT_EQ(Selected(), "two");
    EXPECT_EQ(Text().selectionCount(), 1);
    int start = 0;
    int end = 0;
    Text().selection(0, &start, &end);
    EXPECT_EQ(start, 4);
    EXPECT_EQ(end, 7);
    Text().removeSelection(0);
    EXPECT_EQ(Text().selectionCount(), 0);
    Text().addSelection(0, 99);
    EXPECT_EQ(Selected(), "one two");
}

TEST_F(PaneAccessibleTest, places_areThoseOnTheScreen)
{
    ShowNumbers(100);
    bar->setValue(2);
    const QRect two = Text().characterRect(2);
    EXPECT_EQ(two.topLeft(), pane->mapToGlobal(pane->contentsRect().topLeft()));
    EXPECT_EQ(Text().offsetAtPoint(two.center()), 2);
    EXPECT_TRUE(Text().characterRect(0).isEmpty()) << "it is scrolled away";
    EXPECT_EQ(Text().offsetAtPoint(pane->mapToGlobal(QPoint(-50, 5))), -1);
    Text().scrollToSubstring(0, 1);
    EXPECT_EQ(bar->value(), 1);
}

} // namespace
} // namespace ls
