// The pane with its scroll bar, and the effect of a resize.

#include "gui/MainFormFixture.h"

#include <QWheelEvent>

namespace ls {
namespace {

using test::ModalScript;
using test::Press;

struct MainFormDisplayTest : MainFormFixture
{
    /// A book of one topic of that many lines: "1", "2", ...
    std::string WriteLines(int count)
    {
        std::string bytes = "LODESTAR BOOK V5.3\r\n[T]\r\n";
        for (int i = 1; i <= count; ++i) {
            bytes += std::to_string(i) + "\r\n";
        }
        return Write("Lines" + std::to_string(count) + ".IDA", bytes);
    }

    QScrollBar& Bar() { return Get<QScrollBar>("VScroll1"); }

    void ResizeInner(int width, int height)
    {
        const QSize menu = form.size() - Get<QWidget>("centralwidget").size();
        form.resize(QSize(width, height) + menu);
    }

    int FirstLine()
    {
        const auto& runs = Get<ReadingPane>("MsgPic").Runs();
        return runs.empty() ? 0 : runs.front().displayLine;
    }
    int LastLine()
    {
        const auto& runs = Get<ReadingPane>("MsgPic").Runs();
        return runs.empty() ? 0 : runs.back().displayLine;
    }
};

TEST_F(MainFormDisplayTest, scrollBar_longTopic_leavesOneLineInView)
{
    Start(WriteLines(100));
    EXPECT_EQ(Bar().minimum(), 1);
    EXPECT_EQ(Bar().maximum(), 100);
    EXPECT_EQ(Bar().value(), 1);
    EXPECT_EQ(Bar().singleStep(), 1);
    EXPECT_EQ(Bar().pageStep(), 24) << "of 25 rows";
    EXPECT_TRUE(Visible("VScroll1"));
}

TEST_F(MainFormDisplayTest, scrollBar_topicThatFits_halfItsLinesAndOneHalvesToEven)
{
    struct Row
    {
        int lines;
        int largeChange;
    };
    ModalScript script;
    Start(WriteLines(1));
    for (const Row& row : {Row{1, 2}, Row{3, 2}, Row{4, 3}, Row{5, 4}, Row{7, 4}, Row{25, 14}, Row{26, 24}}) {
        Open(script, WriteLines(row.lines));
        EXPECT_EQ(Bar().pageStep(), row.largeChange) << row.lines << " lines";
        EXPECT_EQ(Bar().maximum(), row.lines);
    }
}

TEST_F(MainFormDisplayTest, scrollBar_noLines_isShownWithMaximum0AndComesBack)
{
    Start(Write("Empty.IDA", "LODESTAR BOOK V5.3\r\n[T]\r\n[U]\r\nu\r\nv\r\n"));
    EXPECT_TRUE(Visible("VScroll1"));
    EXPECT_EQ(Bar().maximum(), 0);
    EXPECT_EQ(PaneText(), "");
    Press(form, "NextButton");
    EXPECT_EQ(Bar().minimum(), 1);
    EXPECT_EQ(Bar().maximum(), 2);
    EXPECT_EQ(Bar().value(), 1);
    EXPECT_EQ(PaneText(), "u|v");
}

TEST_F(MainFormDisplayTest, scroll_everyWay_drawsFromTheBarsLine)
{
    Start(WriteLines(100));
    EXPECT_EQ(FirstLine(), 1);
    EXPECT_EQ(LastLine(), 25);
    Bar().setValue(10);
    EXPECT_EQ(FirstLine(), 10);
    EXPECT_EQ(LastLine(), 34);
    Bar().triggerAction(QAbstractSlider::SliderPageStepAdd);
    EXPECT_EQ(FirstLine(), 34);
    Bar().triggerAction(QAbstractSlider::SliderSingleStepSub);
    EXPECT_EQ(FirstLine(), 33);
    QTest::keyClick(&Get<ReadingPane>("MsgPic"), Qt::Key_Home);
    EXPECT_EQ(FirstLine(), 1);
    Get<QPushButton>("DoneButton").setFocus();
    QTest::keyClick(form.windowHandle(), Qt::Key_PageDown);
    EXPECT_EQ(FirstLine(), 25);
    QTest::keyClick(form.windowHandle(), Qt::Key_PageUp);
    EXPECT_EQ(FirstLine(), 1);
}

TEST_F(MainFormDisplayTest, scroll_wheelOverThePane_movesTheBar)
{
    Start(WriteLines(100));
    auto& pane = Get<ReadingPane>("MsgPic");
    QWheelEvent event(QPointF(50, 50), pane.mapToGlobal(QPointF(50, 50)), QPoint(), QPoint(0, -120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&pane, &event);
    EXPECT_GT(FirstLine(), 1);
    EXPECT_EQ(FirstLine(), Bar().value());
}

TEST_F(MainFormDisplayTest, scroll_anotherTopic_startsAtItsFirstLine)
{
    Start(Write("Two.IDA", "LODESTAR BOOK V5.3\r\n[T]\r\na\r\nb\r\nc\r\n[U]\r\nd\r\ne\r\nf\r\n"));
    Bar().setValue(3);
    EXPECT_EQ(PaneText(), "c");
    Press(form, "NextButton");
    EXPECT_EQ(Bar().value(), 1);
    EXPECT_EQ(PaneText(), "d|e|f");
}

TEST_F(MainFormDisplayTest, clearDisplay_listChanged_resetsTheBar)
{
    Start(Write("Two.IDA", "LODESTAR BOOK V5.3\r\n[T]\r\na\r\nb\r\nc\r\n[U]\r\nd\r\n"));
    Bar().setValue(2);
    Select(1);
    EXPECT_EQ(PaneText(), "");
    EXPECT_FALSE(Visible("VScroll1"));
    EXPECT_EQ(Bar().maximum(), 10);
    EXPECT_EQ(Bar().pageStep(), 1);
    EXPECT_EQ(Bar().value(), 1);
    EXPECT_EQ(global.book.CurrentTopicName, "");
}

TEST_F(MainFormDisplayTest, resize_larger_widensThePaneAndWrapsTheTopicAgain)
{
    Start(Write("Wide.IDA", "LODESTAR BOOK V5.3\r\n[T]\r\n" + std::string(70, 'a') + " " +
                                std::string(20, 'b') + "\r\n"));
    EXPECT_EQ(PaneText(), std::string(70, 'a') + "|" + std::string(20, 'b'));
    ResizeInner(886, 593);
    Settle();
    EXPECT_EQ(PaneText(), std::string(70, 'a') + " " + std::string(20, 'b'));
    EXPECT_EQ(Get<QWidget>("MsgPic").geometry(), QRect(8, 64, 850, 485));
    EXPECT_EQ(Bar().geometry(), QRect(860, 64, 16, 485));
    EXPECT_EQ(Get<QWidget>("TopicList").width(), 702);
    EXPECT_EQ(Get<QWidget>("GoToButton").pos(), QPoint(718, 28));
    EXPECT_EQ(Get<QWidget>("BackButton").pos(), QPoint(802, 28));
    EXPECT_EQ(Get<QWidget>("NextButton").pos(), QPoint(842, 28));
    for (const char* name : {"DoneButton", "AdvisorButton", "XRButton", "ExplainButton"}) {
        EXPECT_EQ(Get<QWidget>(name).y(), 557) << name;
    }
}

TEST_F(MainFormDisplayTest, resize_smaller_leavesTheControlsAtTheirDesignedPlaces)
{
    Start(WriteThree());
    ResizeInner(886, 593);
    Settle();
    ResizeInner(300, 200);
    Settle();
    EXPECT_EQ(Get<QWidget>("centralwidget").size(), QSize(300, 200)) << "the form itself may be small";
    EXPECT_EQ(Get<QWidget>("MsgPic").geometry(), QRect(8, 64, 652, 385));
    EXPECT_EQ(Bar().geometry(), QRect(662, 64, 16, 385));
    EXPECT_EQ(Get<QWidget>("TopicList").width(), 502);
    EXPECT_EQ(Get<QWidget>("GoToButton").pos(), QPoint(518, 28));
    EXPECT_EQ(Get<QWidget>("DoneButton").pos(), QPoint(8, 457));
    EXPECT_EQ(PaneText(), "a");
    test::TakePicture(form, "main-small");
}

TEST_F(MainFormDisplayTest, resize_scrolledTopic_returnsToItsFirstLineAndFocusesClose)
{
    Start(WriteLines(100));
    Bar().setValue(50);
    Get<ReadingPane>("MsgPic").setFocus();
    ResizeInner(700, 593);
    Settle();
    EXPECT_EQ(Bar().value(), 1);
    EXPECT_EQ(FirstLine(), 1);
    EXPECT_TRUE(Get<QPushButton>("DoneButton").hasFocus());
}

TEST_F(MainFormDisplayTest, resize_burst_showsTheTopicOnce)
{
    Start(WriteLines(10));
    files.reads = 0;
    ResizeInner(700, 500);
    Settle();
    const int readsOfOneShowing = files.reads;
    ASSERT_GT(readsOfOneShowing, 0);
    files.reads = 0;
    for (int i = 1; i <= 20; ++i) {
        ResizeInner(700 + i, 500 + i);
        QApplication::processEvents();
    }
    Settle();
    EXPECT_EQ(files.reads, readsOfOneShowing);
}

TEST_F(MainFormDisplayTest, resize_boxOpen_laysOutAndShowsTheTopicAfterItCloses)
{
    Start(WriteLines(100));
    Bar().setValue(50);
    ModalScript script;
    script.Do([this](QWidget& box) {
        ResizeInner(886, 593);
        Settle();
        EXPECT_EQ(Get<QWidget>("MsgPic").width(), 850);
        EXPECT_EQ(Bar().value(), 50) << "not yet shown again";
        QTest::keyClick(&box, Qt::Key_Escape);
    });
    Press(form, "NewItem");
    Settle();
    EXPECT_EQ(Bar().value(), 1);
}

} // namespace
} // namespace ls
