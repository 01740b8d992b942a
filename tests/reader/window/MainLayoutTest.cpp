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

// Right gap 600 - 560 - 16 = 24, and 2 before the scroll bar, which the pane loses only while the form is
// wider than designed. Under the pane 400 - 60 - 300 = 40 stay; the buttons keep 368 - 60 - 300 = 8 from it.
TEST(MainLayoutTest, resize_controlsFollowTheRightAndLowerEdge)
{
    const struct
    {
        const char* name;
        double width;
        double height;
        MainPositions positions;
    } rows[] = {
        {"as designed", 600, 400, AtDesign},
        {"smaller", 599, 399, AtDesign},
        {"nothing", 0, 0, AtDesign},
        {"wider", 1000, 400, {958, 300, 968, 300, 800, 820, 900, 950, 368}},
        {"one pixel wider", 601, 400, {559, 300, 569, 300, 401, 421, 501, 551, 368}},
        {"higher", 600, 700, {560, 600, 570, 600, 400, 420, 500, 550, 668}},
        {"wider and higher", 700, 500, {658, 400, 668, 400, 500, 520, 600, 650, 468}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        ExpectPositions(MainLayout(Designed()).Form_Resize(row.width, row.height), row.positions);
    }
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
