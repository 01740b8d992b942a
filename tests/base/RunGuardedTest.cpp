#include "base/RunGuarded.h"

#include "support/TestSeams.h"

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>

namespace ls {
namespace {

TEST(RunGuardedTest, run_nothingThrown_runsTheCommand)
{
    test::TestSeams world;
    bool ran = false;
    RunGuarded([&ran] { ran = true; }, world.Get());
    EXPECT_TRUE(ran);
    EXPECT_FALSE(world.end.Ended());
}

TEST(RunGuardedTest, run_memoryRunsOut_saysSoAndGoesOn)
{
    test::TestSeams world;
    RunGuarded([] { throw std::bad_alloc(); }, world.Get());
    EXPECT_EQ(world.messages.Take(), std::vector<std::string>{"critical|Lodestar Advisor|Out of memory"});
    EXPECT_FALSE(world.end.Ended());
}

TEST(RunGuardedTest, run_anotherException_endsTheProgramWithItsReason)
{
    test::TestSeams world;
    RunGuarded([] { throw std::out_of_range("index 7"); }, world.Get());
    EXPECT_TRUE(world.end.Ended());
    EXPECT_EQ(world.end.Reason(), "index 7");
}

} // namespace
} // namespace ls
