#include "forms/TypeSize.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

TEST(TypeSize, steps_fromTheNormalSize_comeBack)
{
    EXPECT_EQ(LargerType(NormalTypeSize), 11.25);
    EXPECT_EQ(SmallerType(NormalTypeSize), 8.25);
    EXPECT_EQ(SmallerType(LargerType(NormalTypeSize)), NormalTypeSize);
}

TEST(TypeSize, steps_endAtTheLargestAndTheSmallest)
{
    double points = NormalTypeSize;
    for (int i = 0; i < 20; ++i) {
        points = LargerType(points);
    }
    EXPECT_EQ(points, 36);
    for (int i = 0; i < 20; ++i) {
        points = SmallerType(points);
    }
    EXPECT_EQ(points, 6.75);
}

TEST(TypeSize, steps_sizeOutsideTheSeries_goToTheNext)
{
    EXPECT_EQ(LargerType(10), 11.25);
    EXPECT_EQ(SmallerType(10), NormalTypeSize);
    EXPECT_EQ(LargerType(50), 36);
    EXPECT_EQ(SmallerType(1), 6.75);
}

} // namespace
} // namespace ls
