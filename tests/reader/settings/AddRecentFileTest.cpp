#include "reader/settings/SettingsFixture.h"
#include "support/RowName.h"

namespace ls {
namespace {

struct AddCase
{
    const char* name;
    Strings before;
    const char* path;
    Strings after;
};

struct AddRecentFileTest : testing::TestWithParam<AddCase>
{
};

TEST_P(AddRecentFileTest, add_putsThePathFirst)
{
    Settings settings;
    for (const std::string& path : GetParam().before) {
        settings.RecentFiles[static_cast<std::size_t>(settings.RecentFileCount)] = path;
        ASSERT_TRUE(settings.RecentFileCount.Add());
    }
    AddRecentFile(settings, GetParam().path);
    EXPECT_EQ(Recent(settings), GetParam().after);
}

const AddCase AddCases[] = {
    {"firstOfAll", {}, "a", {"a"}},
    {"new", {"a", "b"}, "c", {"c", "a", "b"}},
    {"atTheTop_changesNothing", {"a", "b"}, "A", {"a", "b"}},
    {"second", {"a", "b", "c"}, "b", {"b", "a", "c"}},
    {"last", {"a", "b", "c"}, "c", {"c", "a", "b"}},
    {"otherCase_isMovedAndRewritten",
     {"x", "y", "C:\\Books\\Guide.IDA", "z"},
     "c:\\books\\guide.ida",
     {"c:\\books\\guide.ida", "x", "y", "z"}},
    {"twoMatches_theLastCounts", {"x", "A", "y", "a"}, "a", {"a", "x", "A", "y"}},
    {"nine_growToTen",
     {"1", "2", "3", "4", "5", "6", "7", "8", "9"},
     "n",
     {"n", "1", "2", "3", "4", "5", "6", "7", "8", "9"}},
    {"ten_theLastFallsOff",
     {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10"},
     "n",
     {"n", "1", "2", "3", "4", "5", "6", "7", "8", "9"}},
    {"tenAndTheLastAgain",
     {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10"},
     "10",
     {"10", "1", "2", "3", "4", "5", "6", "7", "8", "9"}},
    {"accentsHaveNoCase", {"x", "\xC3\x84.IDA"}, "\xC3\xA4.ida", {"\xC3\xA4.ida", "x"}},
    {"otherLetters_staySeparate", {"x", "\xC3\x9A"}, "\xC3\x8A", {"\xC3\x8A", "x", "\xC3\x9A"}},
    {"lettersThatTheCodePageLacks", {"x", "\xD0\x9A.IDA"}, "\xD0\x9A.ida", {"\xD0\x9A.ida", "x"}},
};

INSTANTIATE_TEST_SUITE_P(Lists, AddRecentFileTest, testing::ValuesIn(AddCases), test::RowName());

TEST_F(SettingsTest, add_entryOfItsOwnList_isTakenWhole)
{
    SetRecent({"a", "b", "c"});
    AddRecentFile(settings, settings.RecentFiles[2]);
    EXPECT_EQ(Recent(settings), (Strings{"c", "a", "b"}));
}

} // namespace
} // namespace ls
