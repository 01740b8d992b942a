// The type size in the main window, and what stays when lines wrap at new places.

#include "gui/MainFormPaneFixture.h"

#include <QWheelEvent>

namespace ls {
namespace {

using test::Press;

struct MainFormTypeSizeTest : MainFormPaneFixture
{
};

TEST_F(MainFormTypeSizeTest, keysAndItems_stepThroughTheSizes)
{
    Start(WriteNeedles());
    Keys(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(Pane().TypeSize(), 11.25);
    Keys(Qt::Key_Equal, Qt::ControlModifier);
    EXPECT_EQ(Pane().TypeSize(), 13.5);
    Keys(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(Pane().TypeSize(), 11.25);
    Keys(Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(Pane().TypeSize(), 9.75);
    Press(form, "SmallerItem");
    EXPECT_EQ(Pane().TypeSize(), 8.25);
    Press(form, "LargerItem");
    Press(form, "LargerItem");
    EXPECT_EQ(Pane().TypeSize(), 11.25);
    Press(form, "NormalSizeItem");
    EXPECT_EQ(Pane().TypeSize(), 9.75);
}

TEST_F(MainFormTypeSizeTest, keysOfTheNumberPad_doTheSame)
{
    Start(WriteNeedles());
    const Qt::KeyboardModifiers pad = Qt::ControlModifier | Qt::KeypadModifier;
    Keys(Qt::Key_Plus, pad);
    Keys(Qt::Key_Plus, pad);
    Keys(Qt::Key_Minus, pad);
    EXPECT_EQ(Pane().TypeSize(), 11.25);
    Keys(Qt::Key_0, pad);
    EXPECT_EQ(Pane().TypeSize(), 9.75);
}

TEST_F(MainFormTypeSizeTest, wheelWithControl_stepsByNotches)
{
    Start(WriteNeedles());
    std::vector<double> sizes;
    for (const int delta : {60, 60, 120, -120, -40, -40, -40}) {
        const QPointF at(20, 20);
        QWheelEvent event(at, Pane().mapToGlobal(at), {}, {0, delta}, Qt::NoButton, Qt::ControlModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&Pane(), &event);
        sizes.push_back(Pane().TypeSize());
    }
    EXPECT_EQ(sizes, (std::vector<double>{9.75, 11.25, 13.5, 11.25, 11.25, 11.25, 9.75}));
    EXPECT_EQ(Bar().value(), 1) << "and scrolls nothing";
}

TEST_F(MainFormTypeSizeTest, larger_breaksTheLinesAnewAndComesBack)
{
    Start(WriteTopic({std::string(50, 'a') + " " + std::string(20, 'b')}));
    const std::string once = PaneText();
    const int page = Bar().pageStep();
    ASSERT_EQ(once, std::string(50, 'a') + " " + std::string(20, 'b'));
    Press(form, "LargerItem");
    Press(form, "LargerItem");
    EXPECT_EQ(PaneText(), std::string(50, 'a') + "|" + std::string(20, 'b'));
    test::TakePicture(form, "main-larger");
    Press(form, "NormalSizeItem");
    EXPECT_EQ(PaneText(), once);
    EXPECT_EQ(Bar().pageStep(), page);
}

TEST_F(MainFormTypeSizeTest, scrolledTopic_keepsThePlaceAndTheFocus)
{
    Strings rows(60, std::string(40, 'x') + " " + std::string(30, 'y'));
    rows[30] = "Here I am";
    Start(WriteTopic(rows));
    Bar().setValue(31);
    Pane().setFocus();
    Press(form, "LargerItem");
    Press(form, "LargerItem");
    Press(form, "LargerItem");
    EXPECT_EQ(PaneText().substr(0, 9), "Here I am");
    EXPECT_GT(Bar().value(), 31) << "the lines above it are more now";
    EXPECT_EQ(QApplication::focusWidget(), &Pane());
}

TEST_F(MainFormTypeSizeTest, selection_isKept)
{
    Start(WriteTopic({std::string(50, 'a') + " bb " + std::string(20, 'c'), "dd"}));
    Find(QStringLiteral("bb cc"));
    Pane().Select(Pane().Selection().Range());
    ASSERT_EQ(Selected(), "bb cc");
    Press(form, "LargerItem");
    Press(form, "LargerItem");
    EXPECT_EQ(Selected(), "bb\ncc") << "the line is broken there now";
    EXPECT_EQ(Count(), "1 of 1");
    Press(form, "SelectAllItem");
    Press(form, "NormalSizeItem");
    EXPECT_EQ(Selected().size(), Pane().Topic().Length());
}

TEST_F(MainFormTypeSizeTest, resize_selection_isKept)
{
    Start(WriteTopic({std::string(70, 'a') + " bb " + std::string(20, 'c')}));
    Pane().Select({71, 76});
    ASSERT_EQ(Selected(), "bb\ncc");
    form.resize(form.width() + 300, form.height());
    Settle();
    EXPECT_EQ(Selected(), "bb cc");
    EXPECT_EQ(Bar().value(), 1);
}

TEST_F(MainFormTypeSizeTest, larger_caret_staysVisibleInItsPlace)
{
    Start(WriteTopic({"one two"}));
    Pane().setFocus();
    Keys(Qt::Key_Right, Qt::ControlModifier);
    const auto look = [this] { return Pane().grab().toImage(); };
    const QImage before = look();
    Press(form, "LargerItem");
    Press(form, "NormalSizeItem");
    EXPECT_EQ(Pane().Selection().Caret(), 4U);
    EXPECT_EQ(look(), before);
}

TEST_F(MainFormTypeSizeTest, tooLargeForThePane_stillBreaksLinesAt20)
{
    Start(WriteTopic({"12345678. " + std::string(5, 'a') + " " + std::string(15, 'b')}));
    Pane().SetTypeSize(200);
    form.resize(form.width() + 10, form.height());
    Settle();
    EXPECT_LT(Pane().InnerWidth() / Pane().CharWidth(), 10);
    EXPECT_EQ(Pane().Topic().Text(), "12345678. aaaaa\n          bbbbbbbbbbbbbbb");
    EXPECT_FALSE(global.end.Ended());
}

} // namespace
} // namespace ls
