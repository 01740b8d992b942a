#include "forms/FormProgress.h"
#include "gui/Controls.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>

namespace ls {
namespace {

QWidget* Box()
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->objectName() == QStringLiteral("ProgressBox") && window->isVisible()) {
            return window;
        }
    }
    return nullptr;
}

ProgressBox At(int delay, bool canCancel = true)
{
    return {QStringLiteral("Reading <B>Guide.IDA"), canCancel, delay};
}

TEST(FormProgress, delay_isOneSecond)
{
    EXPECT_EQ(ProgressBox{}.delayMilliseconds, 1000);
    EXPECT_TRUE(ProgressBox{}.canCancel);
}

TEST(FormProgress, shortWork_showsNoBox)
{
    FormProgress progress(nullptr, At(60'000));
    for (int done = 0; done <= 1000; ++done) {
        ASSERT_TRUE(progress.Step(done, 1000));
    }
    EXPECT_EQ(Box(), nullptr);
}

TEST(FormProgress, longWork_showsHowFarItHasCome)
{
    FormProgress progress(nullptr, At(10));
    EXPECT_TRUE(progress.Step(1, 4));
    EXPECT_EQ(Box(), nullptr);
    QTest::qSleep(20);
    EXPECT_TRUE(progress.Step(2, 4));
    ASSERT_NE(Box(), nullptr);
    const auto* bar = Box()->findChild<QProgressBar*>();
    EXPECT_EQ(bar->value() * 4, bar->maximum() * 2);
    EXPECT_EQ(bar->accessibleName(), QStringLiteral("Reading <B>Guide.IDA"));
    QTest::qSleep(60);
    EXPECT_TRUE(progress.Step(3, 4));
    EXPECT_EQ(bar->value() * 4, bar->maximum() * 3);
    test::TakePicture(*Box(), "progress");
}

TEST(FormProgress, hugeTotals_areShown)
{
    FormProgress progress(nullptr, At(0));
    const std::int64_t total = std::int64_t{1} << 40;
    EXPECT_TRUE(progress.Step(total / 2, total));
    const auto* bar = Box()->findChild<QProgressBar*>();
    EXPECT_EQ(bar->value() * 2, bar->maximum());
}

TEST(FormProgress, unknownTotal_isHarmless)
{
    FormProgress progress(nullptr, At(0));
    EXPECT_TRUE(progress.Step(5, 0));
    EXPECT_EQ(Box()->findChild<QProgressBar*>()->value(), 0);
}

TEST(FormProgress, label_isShownLiterally)
{
    FormProgress progress(nullptr, At(0));
    EXPECT_TRUE(progress.Step(1, 4));
    const auto* label = Box()->findChild<QLabel*>();
    EXPECT_EQ(label->textFormat(), Qt::PlainText);
    EXPECT_EQ(label->text(), QStringLiteral("Reading <B>Guide.IDA"));
}

TEST(FormProgress, box_goesWithTheWork)
{
    {
        FormProgress progress(nullptr, At(0));
        EXPECT_TRUE(progress.Step(4, 4));
        EXPECT_NE(Box(), nullptr);
    }
    EXPECT_EQ(Box(), nullptr);
}

TEST(FormProgress, window_isBlockedMeanwhile)
{
    QWidget window;
    FormProgress progress(&window, At(0));
    EXPECT_TRUE(progress.Step(1, 4));
    EXPECT_EQ(QApplication::activeModalWidget(), Box());
    EXPECT_EQ(Box()->parentWidget(), &window);
}

TEST(FormProgress, cancelPressed_endsTheWorkForGood)
{
    FormProgress progress(nullptr, At(0));
    EXPECT_TRUE(progress.Step(1, 4));
    QTest::mouseClick(Box()->findChild<QPushButton*>(), Qt::LeftButton);
    EXPECT_FALSE(progress.Step(2, 4));
    EXPECT_FALSE(progress.Step(3, 4));
    EXPECT_EQ(Box(), nullptr);
}

TEST(FormProgress, escapeOrClose_cancels)
{
    FormProgress byKey(nullptr, At(0));
    EXPECT_TRUE(byKey.Step(1, 4));
    QTest::keyClick(Box(), Qt::Key_Escape);
    EXPECT_FALSE(byKey.Step(2, 4));

    FormProgress byClosing(nullptr, At(0));
    EXPECT_TRUE(byClosing.Step(1, 4));
    Box()->close();
    EXPECT_FALSE(byClosing.Step(2, 4));
}

TEST(FormProgress, workWithoutCancel_cannotBeStopped)
{
    FormProgress progress(nullptr, At(0, false));
    EXPECT_TRUE(progress.Step(1, 4));
    EXPECT_EQ(Box()->findChild<QPushButton*>(), nullptr);
    QTest::keyClick(Box(), Qt::Key_Escape);
    ASSERT_NE(Box(), nullptr);
    Box()->close();
    ASSERT_NE(Box(), nullptr);
    EXPECT_TRUE(progress.Step(2, 4));
}

} // namespace
} // namespace ls
