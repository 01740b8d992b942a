#include "reader/window/MainLayout.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

MainGeometry Designed()
{
    MainGeometry design;
    design.innerWidth = 600;
    design.innerHeight = 400;
    design.picLeft = 8;
    design.picTop = 60;
    design.picWidth = 560;
    design.picHeight = 300;
    design.scrollWidth = 16;
    design.listLeft = 10;
    design.listWidth = 400;
    design.goToLeft = 420;
    design.backLeft = 500;
    design.nextLeft = 550;
    design.doneTop = 368;
    return design;
}

const MainPositions AtDesign{560, 300, 570, 300, 400, 420, 500, 550, 368};

void ExpectPositions(const MainPositions& got, const MainPositions& expected)
{
    EXPECT_EQ(got.picWidth, expected.picWidth);
    EXPECT_EQ(got.picHeight, expected.picHeight);
    EXPECT_EQ(got.scrollLeft, expected.scrollLeft);
    EXPECT_EQ(got.scrollHeight, expected.scrollHeight);
    EXPECT_EQ(got.listWidth, expected.listWidth);
    EXPECT_EQ(got.goToLeft, expected.goToLeft);
    EXPECT_EQ(got.backLeft, expected.backLeft);
    EXPECT_EQ(got.nextLeft, expected.nextLeft);
    EXPECT_EQ(got.buttonTop, expected.buttonTop);
}

TEST(MainLayoutTest, resize_atDesignSize_restoresTheDesign)
{
    ExpectPositions(MainLayout(Designed()).Form_Resize(600, 400), AtDesign);
}

TEST(MainLayoutTest, resize_smaller_neverNarrowerOrLowerThanDesigned)
{
    ExpectPositions(MainLayout(Designed()).Form_Resize(599, 399), AtDesign);
    ExpectPositions(MainLayout(Designed()).Form_Resize(0, 0), AtDesign);
}

TEST(MainLayoutTest, resize_wider_paneListAndButtonsFollowTheRightEdge)
{
    // Right gap 600 - 560 - 16 = 24; the pane gets 1000 - 16 - 2 - 24.
    ExpectPositions(MainLayout(Designed()).Form_Resize(1000, 400),
                    {958, 300, 968, 300, 800, 820, 900, 950, 368});
}

TEST(MainLayoutTest, resize_onePixelWider_paneLosesTheScrollGap)
{
    // The gap of 2 before the scroll bar is taken from the pane only while the form is wider than designed.
    ExpectPositions(MainLayout(Designed()).Form_Resize(601, 400),
                    {559, 300, 569, 300, 401, 421, 501, 551, 368});
}

TEST(MainLayoutTest, resize_higher_marginsUnderThePaneStay)
{
    // 400 - 60 - 300 = 40 are left below the pane; the buttons stay 368 - 60 - 300 = 8 away from it.
    ExpectPositions(MainLayout(Designed()).Form_Resize(600, 700),
                    {560, 600, 570, 600, 400, 420, 500, 550, 668});
}

TEST(MainLayoutTest, resize_widerAndHigher_bothDirections)
{
    ExpectPositions(MainLayout(Designed()).Form_Resize(700, 500),
                    {658, 400, 668, 400, 500, 520, 600, 650, 468});
}

TEST(MainLayoutTest, resize_fractionalDesign_remembersHalvesToEven)
{
    MainGeometry design = Designed();
    design.picWidth = 560.5;  // 560
    design.picHeight = 301.5; // 302
    design.listWidth = 400.5; // 400
    design.goToLeft = 421.5;  // 422
    design.backLeft = 500.49; // 500
    design.nextLeft = 550.51; // 551
    design.doneTop = 368.5;   // 368
    ExpectPositions(MainLayout(design).Form_Resize(600, 400), {560, 302, 570, 302, 400, 422, 500, 551, 368});
}

TEST(MainLayoutTest, resize_fractionalScrollBar_roundsTheRightGapHalvesToEven)
{
    MainGeometry design = Designed();
    design.scrollWidth = 16.5; // gap 23.5 becomes 24
    EXPECT_EQ(MainLayout(design).Form_Resize(1000, 400).picWidth, 1000 - 16.5 - 2 - 24);
    design.scrollWidth = 15.5; // gap 24.5 becomes 24
    EXPECT_EQ(MainLayout(design).Form_Resize(1000, 400).picWidth, 1000 - 15.5 - 2 - 24);
}

TEST(MainLayoutTest, resize_fractionalListLeft_roundsTheListGapHalvesToEven)
{
    MainGeometry design = Designed();
    design.listLeft = 10.5; // gap 189.5 becomes 190
    EXPECT_EQ(MainLayout(design).Form_Resize(1000, 400).listWidth, 1000 - 190 - 10.5);
    design.listLeft = 11.5; // gap 188.5 becomes 188
    EXPECT_EQ(MainLayout(design).Form_Resize(1000, 400).listWidth, 1000 - 188 - 11.5);
}

TEST(MainLayoutTest, resize_fractionalDesignWidth_comparesWithTheRoundedOne)
{
    MainGeometry design = Designed();
    design.innerWidth = 600.5;  // remembered as 600
    design.innerHeight = 401.5; // remembered as 402
    const MainPositions to = MainLayout(design).Form_Resize(600.5, 402);
    EXPECT_EQ(to.goToLeft, 420.5);
    EXPECT_EQ(to.picHeight, 300);
}

} // namespace
} // namespace ls
