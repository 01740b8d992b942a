// The search for the browser in the registry, with each of its calls failing.

#include "../SystemCallsFixture.h"
#include "browser/APISubs.h"
#include "platform/windows/ScratchKeys.h"
#include "platform/windows/WindowsRegistry.h"
#include "support/TestSeams.h"

#include <algorithm>

namespace ls {
namespace {

using Strings = std::vector<std::string>;

const char* const NoKey =
    "critical|Lodestar Advisor|Failed to open registry key "
    "<<HKEY_LOCAL_MACHINE\\SOFTWARE\\Classes\\.lstest>>. "
    "You may typed an invalid filetype, or you do not have an appropriate viewer program registered on your "
    "computer.";
const char* const NoValue = "critical|Lodestar Advisor|Failed to find registry value for:  Program exiting.";
const char* const NoText = "critical|Lodestar Advisor|Failed to return a value for:  Program Exiting.";

struct RegistryCalls : test::SystemCalls
{
    test::ScratchKeys keys;
    WindowsRegistry registry;
    std::string found;
    Strings boxes;
    bool ended = false;

    RegistryCalls() { keys.SetText(HKEY_CURRENT_USER, ".lstest", "lstest.page"); }

    void Ask()
    {
        test::TestSeams world;
        found = RegGetString(world.Get(), registry, "SOFTWARE\\Classes\\.lstest", "");
        boxes = world.messages.Take();
        ended = world.end.Ended();
    }
};

TEST_P(RegistryCalls, fileType_eachCallFailing_isFoundOrTold)
{
    Strings told;
    ForEachCall(
        [&](const std::string& call) {
            EXPECT_EQ(found, boxes.empty() ? "lstest.page" : "");
            EXPECT_EQ(ended, boxes == Strings{NoValue} || boxes == Strings{NoText})
                << "without a key the program goes on, without its value it ends";
            EXPECT_TRUE(boxes != Strings{NoKey} || call == "RegOpenKeyExA");
            told.insert(told.end(), boxes.begin(), boxes.end());
        },
        [&] { Ask(); }, [] {});
    const bool denied = GetParam().code == ERROR_ACCESS_DENIED && !GetParam().forGood;
    EXPECT_EQ(std::count(told.begin(), told.end(), NoKey), denied ? 0 : 1)
        << "after a refusal it asks again with fewer rights";
    EXPECT_GE(std::count(told.begin(), told.end(), NoValue), 1);
    EXPECT_GE(std::count(told.begin(), told.end(), NoText), 1);
}

// An ordinary user may read the machine's keys, not write them.
TEST_P(RegistryCalls, machinesKey_rightToWriteRefused_isRead)
{
    test::ScratchKeys machine;
    machine.SetText(HKEY_LOCAL_MACHINE, ".lstestmachine", "lstest.machine");
    test::TestSeams world;
    const auto ask = [&] {
        return RegGetString(world.Get(), registry, "SOFTWARE\\Classes\\.lstestmachine", "");
    };
    const bool denied = GetParam().code == ERROR_ACCESS_DENIED && !GetParam().forGood;
    {
        const test::FailingCalls second(2, GetParam()); // the first call asks for the user's key
        EXPECT_EQ(ask(), denied ? "lstest.machine" : "");
        EXPECT_EQ(second.Error(), "RegOpenKeyExA");
    }
    EXPECT_EQ(world.messages.Take().empty(), denied);
    EXPECT_FALSE(world.end.Ended());
}

INSTANTIATE_TEST_SUITE_P(Faults, RegistryCalls, testing::ValuesIn(test::SystemFaults()),
                         [](const auto& row) { return row.param.name; });

} // namespace
} // namespace ls
