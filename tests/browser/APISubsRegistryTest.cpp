#include "browser/APISubs.h"

#include "support/RecordingRegistry.h"
#include "support/TestSeams.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

using test::RecordingRegistry;
using Strings = std::vector<std::string>;

const std::string KeyPath = "SOFTWARE\\Classes\\.HTM";
const std::string User = "HKCU\\" + KeyPath;
const std::string Machine = "HKLM\\" + KeyPath;

struct RegGetStringTest : testing::Test
{
    test::TestSeams world;
    RecordingRegistry registry;

    std::string Get() { return RegGetString(world.Get(), registry, KeyPath, ""); }
};

TEST_F(RegGetStringTest, regGetString_usersKey_isPreferred)
{
    registry.keys[User] = RecordingRegistry::Value{"users"};
    registry.keys[Machine] = RecordingRegistry::Value{"machines"};
    EXPECT_EQ(Get(), "users");
    EXPECT_EQ(registry.opened, Strings{User});
    EXPECT_EQ(registry.openKeys, 0);
}

TEST_F(RegGetStringTest, regGetString_noUsersKey_asksTheMachines)
{
    registry.keys[Machine] = RecordingRegistry::Value{"machines"};
    EXPECT_EQ(Get(), "machines");
    EXPECT_EQ(registry.opened, (Strings{User, Machine}));
    EXPECT_EQ(registry.openKeys, 0);
}

TEST_F(RegGetStringTest, regGetString_usersKeyWithoutValue_asksTheMachines)
{
    registry.keys[User] = std::nullopt;
    registry.keys[Machine] = RecordingRegistry::Value{"machines"};
    EXPECT_EQ(Get(), "machines");
    EXPECT_TRUE(world.messages.boxes.empty());
    EXPECT_EQ(registry.openKeys, 0);
}

TEST_F(RegGetStringTest, regGetString_usersEmptyValue_countsAsAValue)
{
    registry.keys[User] = RecordingRegistry::Value{""};
    registry.keys[Machine] = RecordingRegistry::Value{"machines"};
    EXPECT_EQ(Get(), "");
    EXPECT_FALSE(world.end.Ended());
    EXPECT_TRUE(world.messages.boxes.empty());
}

TEST_F(RegGetStringTest, regGetString_expandableText_isText)
{
    registry.keys[User] = RecordingRegistry::Value{"%SystemRoot%\\browse.exe", RegExpandSz};
    EXPECT_EQ(Get(), "%SystemRoot%\\browse.exe");
}

TEST_F(RegGetStringTest, regGetString_noKey_saysSoAndGoesOn)
{
    EXPECT_EQ(Get(), "");
    EXPECT_EQ(world.messages.boxes,
              Strings{"critical|Lodestar Advisor|Failed to open registry key "
                      "<<HKEY_LOCAL_MACHINE\\SOFTWARE\\Classes\\.HTM>>. You may typed an invalid filetype, "
                      "or you do not have an appropriate viewer program registered on your computer."});
    EXPECT_FALSE(world.end.Ended());
}

struct EndRow
{
    const char* name;
    std::optional<RecordingRegistry::Value> users;
    bool machinesKey; // the machine's key exists, without a value
    const char* text;
};

struct RegistryEndTest : RegGetStringTest, testing::WithParamInterface<EndRow>
{
};

TEST_P(RegistryEndTest, regGetString_unreadableValue_endsTheProgram)
{
    registry.keys[User] = GetParam().users;
    if (GetParam().machinesKey) {
        registry.keys[Machine] = std::nullopt;
    }
    EXPECT_EQ(Get(), "");
    EXPECT_EQ(world.messages.boxes, Strings{std::string("critical|Lodestar Advisor|") + GetParam().text});
    EXPECT_EQ(world.end.Reason(), GetParam().text);
    EXPECT_EQ(registry.openKeys, 0);
}

const char* const NotFound = "Failed to find registry value for:  Program exiting.";
const char* const NotText = "Registry value for:  is not text.  Program exiting.";
const char* const NotReadable = "Failed to return a value for:  Program Exiting.";

INSTANTIATE_TEST_SUITE_P(
    Table, RegistryEndTest,
    testing::Values(EndRow{"noValueInBothKeys", std::nullopt, true, NotFound},
                    EndRow{"noValueAndNoMachinesKey", std::nullopt, false, NotFound},
                    EndRow{"noType", RecordingRegistry::Value{"x", 0}, false, NotText},
                    EndRow{"binary", RecordingRegistry::Value{"x", 3}, false, NotText},
                    EndRow{"number", RecordingRegistry::Value{"x", 4}, false, NotText},
                    EndRow{"severalTexts", RecordingRegistry::Value{"x", 7}, false, NotText},
                    EndRow{"unreadable", RecordingRegistry::Value{"x", RegSz, false}, false, NotReadable}),
    [](const auto& row) { return row.param.name; });

TEST_F(RegGetStringTest, regQueryString_valueName_standsInTheMessage)
{
    registry.keys[User] = RecordingRegistry::Value{"x"};
    const auto key = registry.Open(Registry::Root::CurrentUser, KeyPath);
    EXPECT_EQ(RegQueryString(world.Get(), *key, "Content Type"), "");
    EXPECT_EQ(world.end.Reason(), "Failed to find registry value for: Content Type Program exiting.");
}

TEST_F(RegGetStringTest, regGetString_programEnded_opensNothing)
{
    registry.keys[User] = RecordingRegistry::Value{"users"};
    EndProgram(world.end, "an earlier fault");
    EXPECT_EQ(Get(), "");
    EXPECT_TRUE(registry.opened.empty());
}

// A value of no bytes at all, not even the terminating NUL.
struct EmptyKey : RegistryKey
{
    bool QueryType(const std::string&, std::uint32_t& type, std::uint32_t& size) override
    {
        type = RegSz;
        size = 0;
        return true;
    }
    bool QueryText(const std::string&, std::string& buffer) override { return buffer.empty(); }
};

TEST_F(RegGetStringTest, regQueryString_sizeZero_isEmpty)
{
    EmptyKey key;
    EXPECT_EQ(RegQueryString(world.Get(), key, ""), "");
    EXPECT_FALSE(world.end.Ended());
}

// A key whose value has 4 bytes: three characters and their NUL. The caller must fill the buffer with blanks
// first.
struct BufferKey : RegistryKey
{
    std::string seen;
    bool QueryType(const std::string&, std::uint32_t& type, std::uint32_t& size) override
    {
        type = RegSz;
        size = 4;
        return true;
    }
    bool QueryText(const std::string&, std::string& buffer) override
    {
        seen = buffer;
        buffer.replace(0, 2, "ab");
        return true;
    }
};

TEST_F(RegGetStringTest, regQueryString_buffer_isBlanksCutByOne)
{
    BufferKey key;
    EXPECT_EQ(RegQueryString(world.Get(), key, ""), "ab ");
    EXPECT_EQ(key.seen, "    ");
}

} // namespace
} // namespace ls
