#include "render/pane/ReadingPane.h"
#include "gui/Controls.h"
#include "render/text/DisplayLines.h"
#include "render/text/DrawLines.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QHBoxLayout>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>

namespace ls {
namespace {

using test::ShowActive;

// A window with a pane and its scroll bar: 100 lines, 10 lines a page.
class ReadingPaneTest : public testing::Test
{
protected:
    ReadingPaneTest()
    {
        auto* layout = new QHBoxLayout(&window);
        layout->addWidget(pane);
        layout->addWidget(bar);
        bar->setRange(1, 100);
        bar->setPageStep(10);
        bar->setValue(50);
        pane->SetScrollBar(bar);
        window.resize(700, 300);
    }

    void Wheel(int delta, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        const QPointF at(50, 50);
        QWheelEvent event(at, pane->mapToGlobal(at), QPoint(), QPoint(0, delta), Qt::NoButton, modifiers,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(pane, &event);
    }

    // A picture of the pane, on a screen of that scale.
    QImage Look(double scale = 1)
    {
        QImage image((QSizeF(pane->size()) * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(scale);
        image.fill(Qt::magenta);
        pane->render(&image);
        return image;
    }

    QWidget window;
    ReadingPane* pane = new ReadingPane;
    QScrollBar* bar = new QScrollBar(Qt::Vertical);
};

int CountPixels(const QImage& image, QRgb colour)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += image.pixel(x, y) == colour ? 1 : 0;
        }
    }
    return count;
}

constexpr QRgb BlackPixel = qRgb(0, 0, 0);

TEST_F(ReadingPaneTest, key_movesTheBar)
{
    struct Case
    {
        const char* name;
        Qt::Key key;
        int value;
    };
    ShowActive(window);
    pane->setFocus();
    for (const Case& c :
         {Case{"up", Qt::Key_Up, 49}, Case{"down", Qt::Key_Down, 51}, Case{"page up", Qt::Key_PageUp, 40},
          Case{"page down", Qt::Key_PageDown, 60}, Case{"home", Qt::Key_Home, 1},
          Case{"end", Qt::Key_End, 100}, Case{"letter", Qt::Key_A, 50}, Case{"left", Qt::Key_Left, 50}}) {
        bar->setValue(50);
        QTest::keyClick(window.windowHandle(), c.key);
        EXPECT_EQ(bar->value(), c.value) << c.name;
    }
}

TEST_F(ReadingPaneTest, keyOfTheNumberPad_movesTheBar)
{
    ShowActive(window);
    QTest::keyClick(pane, Qt::Key_PageDown, Qt::KeypadModifier);
    EXPECT_EQ(bar->value(), 60);
}

TEST_F(ReadingPaneTest, keyWithControlOrAlt_isLeftToOthers)
{
    ShowActive(window);
    QTest::keyClick(pane, Qt::Key_Down, Qt::AltModifier);
    QTest::keyClick(pane, Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(bar->value(), 50);
}

TEST_F(ReadingPaneTest, tabAndClick_giveTheFocus)
{
    ShowActive(window);
    EXPECT_EQ(pane->focusPolicy(), Qt::StrongFocus);
    bar->setFocus();
    QTest::mouseClick(pane, Qt::LeftButton);
    EXPECT_EQ(QApplication::focusWidget(), pane);
}

TEST_F(ReadingPaneTest, notch_movesThreeLines)
{
    ShowActive(window);
    ASSERT_EQ(QApplication::wheelScrollLines(), 3);
    Wheel(-120);
    EXPECT_EQ(bar->value(), 53);
    Wheel(120);
    Wheel(120);
    EXPECT_EQ(bar->value(), 47);
}

TEST_F(ReadingPaneTest, notch_movesAsManyLinesAsTheDesktopSays)
{
    ShowActive(window);
    QApplication::setWheelScrollLines(5);
    Wheel(-120);
    QApplication::setWheelScrollLines(3);
    EXPECT_EQ(bar->value(), 55);
}

TEST_F(ReadingPaneTest, partsOfANotch_addUp)
{
    ShowActive(window);
    std::vector<int> values;
    for (int part = 0; part < 8; ++part) {
        Wheel(-15);
        values.push_back(bar->value());
    }
    EXPECT_EQ(values, (std::vector<int>{50, 50, 51, 51, 51, 52, 52, 53}));
}

TEST_F(ReadingPaneTest, hiddenBar_isNotMoved)
{
    ShowActive(window);
    bar->hide();
    Wheel(-120);
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_PageDown, Qt::Key_End, Qt::Key_Home}) {
        QTest::keyClick(pane, key);
    }
    EXPECT_EQ(bar->value(), 50);
}

TEST_F(ReadingPaneTest, noBar_nothingHappens)
{
    ShowActive(window);
    delete bar;
    Wheel(-120);
    QTest::keyClick(pane, Qt::Key_Down);
    pane->SetScrollBar(nullptr);
    Wheel(-120);
    QTest::keyClick(pane, Qt::Key_Down);
}

TEST_F(ReadingPaneTest, scrolling_printsNothingByItself)
{
    ShowActive(window);
    pane->Print("First line", true);
    const auto before = pane->Runs();
    Wheel(-120);
    QTest::keyClick(pane, Qt::Key_End);
    EXPECT_EQ(pane->Runs(), before);
}

TEST_F(ReadingPaneTest, print_isRecorded)
{
    pane->BeginLine(7);
    pane->SetBold(true);
    pane->Print("A ", false);
    pane->SetBold(false);
    pane->SetColour(DarkBlue);
    pane->SetItalic(true);
    pane->SetUnderline(true);
    pane->Print("note", true);
    pane->BeginLine(8);
    pane->Print("", true);
    const std::vector<ls::Run> expected = {{7, 1, 1, "A ", true, false, false, Black, false},
                                           {7, 1, 3, "note", false, true, true, DarkBlue, true},
                                           {8, 2, 1, "", false, true, true, DarkBlue, true}};
    EXPECT_EQ(pane->Runs(), expected);
}

TEST_F(ReadingPaneTest, clear_emptiesThePane)
{
    ShowActive(window);
    const QImage empty = Look();
    pane->Print("text", false);
    EXPECT_NE(Look(), empty);
    pane->Clear();
    EXPECT_EQ(Look(), empty);
    pane->Print("x", false);
    EXPECT_EQ(pane->Runs().at(0).row, 1);
    EXPECT_EQ(pane->Runs().at(0).firstColumn, 1);
}

TEST_F(ReadingPaneTest, innerSize_isThatInsideTheBorder)
{
    pane->resize(408, 208);
    const QMargins frame = pane->contentsMargins();
    EXPECT_GE(frame.left(), 1);
    EXPECT_DOUBLE_EQ(pane->InnerWidth(), 408 - frame.left() - frame.right());
    EXPECT_DOUBLE_EQ(pane->InnerHeight(), 208 - frame.top() - frame.bottom());
}

TEST_F(ReadingPaneTest, measures_areThoseOfTheCell)
{
    EXPECT_DOUBLE_EQ(pane->TextWidth("W"), pane->CharWidth());
    EXPECT_DOUBLE_EQ(pane->TextWidth("iiii"), 4 * pane->CharWidth());
    EXPECT_DOUBLE_EQ(pane->TextWidth(""), 0);
    EXPECT_DOUBLE_EQ(pane->TextHeight("W"), pane->RowHeight());
}

TEST_F(ReadingPaneTest, sizeHint_holdsEightyCharacters)
{
    pane->resize(pane->sizeHint());
    EXPECT_EQ(CharsAcross(pane->InnerWidth(), pane->CharWidth()), 80);
}

TEST_F(ReadingPaneTest, focus_isSeenAtTheBorder)
{
    ShowActive(window);
    bar->setFocus();
    const QImage without = Look();
    pane->setFocus();
    EXPECT_NE(Look(), without);
}

TEST_F(ReadingPaneTest, lastRow_isCutOffAtTheBorder)
{
    ShowActive(window);
    pane->resize(300, pane->contentsMargins().top() + pane->contentsMargins().bottom() +
                          static_cast<int>(2.5 * pane->RowHeight()));
    const QImage empty = Look();
    const int inside = pane->contentsRect().bottom() + 1;
    for (int row = 0; row < 3; ++row) {
        pane->Print("\xDE\xDE\xDE\xDE", true);
    }
    const QImage full = Look();
    EXPECT_EQ(full.copy(0, inside, full.width(), full.height()),
              empty.copy(0, inside, empty.width(), empty.height()));
    const int third = pane->contentsRect().top() + static_cast<int>(2 * pane->RowHeight());
    EXPECT_NE(full.copy(0, third, full.width(), inside - third),
              empty.copy(0, third, empty.width(), inside - third));
}

TEST_F(ReadingPaneTest, topic_isDrawnAtEveryScale)
{
    DisplayLines lines;
    const char* texts[] = {
        "<H1>Getting Started</H1>",
        "<H2>Opening a book</H2>",
        "<H3>A note</H3>",
        "Plain, <B>bold</B>, <I>italic</I>, <U>underlined</U>, <B><I>both</I></B>.",
        "Fish &AMP; chips at 5 \x80, na\xEFve caf\xE9, \x93quoted\x94, bad bytes: \x81\x01\x7F.",
        "iiiiiiiiii WWWWWWWWWW .......... ||||||||||",
        "0123456789 abcdefghij ABCDEFGHIJ |"};
    for (const char* text : texts) {
        *lines.AddLine() = text;
    }
    DrawLines(*pane, lines, 1, 5.0F);
    ShowActive(window);
    for (const double scale : {1.0, 1.25, 1.5, 2.0}) {
        const QImage image = Look(scale);
        EXPECT_GT(CountPixels(image, BlackPixel), 100) << scale;
        const QString folder = qEnvironmentVariable("LS_PICTURES");
        if (!folder.isEmpty()) {
            image.save(folder + QStringLiteral("/pane-%1.png").arg(scale));
        }
    }
}

} // namespace
} // namespace ls
