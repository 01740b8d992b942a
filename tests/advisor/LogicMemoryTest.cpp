// Rules that would fill the memory: ASSUME puts a text before each rule, more than 256 MiB in all.

#include "AdvisorWorld.h"

namespace ls {
namespace {

using Texts = std::vector<std::string>;

TEST(LogicMemory, assumptionThatWouldFillMemory_fails)
{
    test::AdvisorWorld world;
    std::string block = "[A]\r\n<IXML>\r\n<LOGIC>\r\nASSUME " + std::string(1024 * 1024, 'X') + "\r\n";
    for (int i = 0; i < 300; ++i) {
        block += "AV(1)=A(B)\r\n";
    }
    world.Open(block + "<DEFINITIONS>\r\n");
    world.Show("A");
    EXPECT_FALSE(test::AdvisorReader(world).Load());
    EXPECT_EQ(world.seams.messages.Take(), (Texts{"critical|Lodestar Advisor|Out of memory"}));
    EXPECT_EQ(world.tables.RuleCount, 255);
}

} // namespace
} // namespace ls
