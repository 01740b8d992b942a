#include "base/Array1.h"
#include "base/ChangeFlag.h"
#include "base/Count16.h"

#include <gtest/gtest.h>

#include <numeric>
#include <string>

namespace ls {
namespace {

TEST(Array1, new_hasItsBound)
{
    EXPECT_EQ(Array1<int>().UpperBound(), 0);
    EXPECT_EQ(Array1<int>(100).UpperBound(), 100);
}

TEST(Array1, grow_insideTheBound_changesNothing)
{
    Array1<std::string> names(3);
    names.Grow(3, 49);
    EXPECT_EQ(names.UpperBound(), 3);
}

TEST(Array1, grow_pastTheBound_addsTheStepAndKeepsTheContents)
{
    Array1<std::string> names(3);
    names(1) = "first";
    names(3) = "third";
    names.Grow(4, 49);
    EXPECT_EQ(names.UpperBound(), 53);
    EXPECT_EQ(names(1), "first");
    EXPECT_EQ(names(3), "third");
    EXPECT_EQ(names(4), "");
}

TEST(Array1, redim_setsTheBoundAndKeepsWhatFits)
{
    Array1<int> numbers(4);
    std::iota(numbers.begin(), numbers.end(), 1);
    numbers.Redim(2);
    EXPECT_EQ(numbers.UpperBound(), 2);
    EXPECT_EQ(numbers(2), 2);
    numbers.Redim(3);
    EXPECT_EQ(numbers(3), 0);
}

TEST(Array1, clearElements_keepsTheBound)
{
    Array1<std::string> names(2);
    names(2) = "x";
    names.ClearElements();
    EXPECT_EQ(names.UpperBound(), 2);
    EXPECT_EQ(names(2), "");
}

TEST(Count16, add_upToTheLimit)
{
    Count16 count;
    EXPECT_EQ(count, 0);
    EXPECT_TRUE(count.Add());
    EXPECT_TRUE(count.Add(Count16::Max - 1));
    EXPECT_EQ(count, 32767);
}

TEST(Count16, add_pastTheLimit_isRefusedAndChangesNothing)
{
    Count16 full = Count16::Max;
    EXPECT_FALSE(full.Add());
    EXPECT_EQ(full, 32767);
    Count16 some = 10;
    EXPECT_FALSE(some.Add(Count16::Max));
    EXPECT_EQ(some, 10);
}

TEST(ChangeFlag, set_readsAsABoolAndCountsEachTime)
{
    ChangeFlag changed;
    EXPECT_FALSE(changed);
    EXPECT_EQ(changed.Changes(), 0U);
    changed = true;
    changed = true;
    EXPECT_TRUE(changed);
    EXPECT_EQ(changed.Changes(), 2U);
    changed = false;
    EXPECT_FALSE(changed);
    EXPECT_EQ(changed.Changes(), 2U); // no new change
}

} // namespace
} // namespace ls
