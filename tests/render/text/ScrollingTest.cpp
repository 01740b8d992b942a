#include "base/Rounding.h"
#include "render/text/DrawLines.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

TEST(Rounding, roundHalfEven_halves_goToTheEvenNeighbour)
{
    EXPECT_EQ(RoundHalfEven(0.5), 0);
    EXPECT_EQ(RoundHalfEven(1.5), 2);
    EXPECT_EQ(RoundHalfEven(2.5), 2);
    EXPECT_EQ(RoundHalfEven(3.5), 4);
    EXPECT_EQ(RoundHalfEven(-0.5), 0);
    EXPECT_EQ(RoundHalfEven(-1.5), -2);
    EXPECT_EQ(RoundHalfEven(-2.5), -2);
}

TEST(Rounding, roundHalfEven_others_goToTheNearest)
{
    EXPECT_EQ(RoundHalfEven(2.49), 2);
    EXPECT_EQ(RoundHalfEven(2.51), 3);
    EXPECT_EQ(RoundHalfEven(-2.51), -3);
    EXPECT_EQ(RoundHalfEven(7), 7);
}

struct Row
{
    int lines;
    double height; ///< of a pane with rows of 15
    int largeChange;
};

class ScrollTable : public testing::TestWithParam<Row>
{
};

TEST_P(ScrollTable, planScrolling_topic_setsMaxAndPageStep)
{
    const ScrollSetup setup = PlanScrolling(GetParam().height, 15, GetParam().lines);
    EXPECT_EQ(setup.max, GetParam().lines);
    EXPECT_EQ(setup.largeChange, GetParam().largeChange);
}

// A topic that fits the pane: half its lines plus 1, halves to even.
INSTANTIATE_TEST_SUITE_P(Fits, ScrollTable,
                         testing::Values(Row{0, 300, 1}, Row{1, 300, 2}, Row{2, 300, 2}, Row{3, 300, 2},
                                         Row{4, 300, 3}, Row{5, 300, 4}, Row{7, 300, 4}, Row{20, 300, 11}));

// A longer topic: the rows of a page, rounded down, less 1.
INSTANTIATE_TEST_SUITE_P(IsLonger, ScrollTable,
                         testing::Values(Row{21, 300, 19}, Row{21, 314, 19}, Row{21, 314.99, 19},
                                         Row{21, 315, 12}, Row{32767, 300, 19}));

// A pane of one row or less scrolls by one line.
INSTANTIATE_TEST_SUITE_P(LowPane, ScrollTable,
                         testing::Values(Row{10, 15, 1}, Row{10, 14, 1}, Row{10, 0, 1}));

TEST(Scrolling, planScrolling_fontWithoutHeight_stepsByOne)
{
    EXPECT_EQ(PlanScrolling(300, 0, 5).largeChange, 1);
}

TEST(Scrolling, visibleRows_partOfARow_roundsHalvesToEven)
{
    EXPECT_EQ(VisibleRows(300, 15), 20);
    EXPECT_EQ(VisibleRows(307, 15), 20);
    EXPECT_EQ(VisibleRows(307.5, 15), 20);
    EXPECT_EQ(VisibleRows(308, 15), 21);
    EXPECT_EQ(VisibleRows(322.5, 15), 22);
    EXPECT_EQ(VisibleRows(300, 0), 0);
}

TEST(Scrolling, charsAcross_partOfACharacter_roundsDown)
{
    EXPECT_EQ(CharsAcross(640, 8), 80);
    EXPECT_EQ(CharsAcross(647.9, 8), 80);
    EXPECT_EQ(CharsAcross(639.9, 8), 79);
    EXPECT_EQ(CharsAcross(640, 0), 0);
}

} // namespace
} // namespace ls
