#include "LogicMeaning.h"
#include "authoring/LogicFaults.h"
#include "base/CodePage.h"
#include "support/Json.h"
#include "support/TestSeams.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

namespace ls {
namespace {

constexpr const char* Folder = LS_TEST_DATA "/logic";
constexpr std::string_view TablesMark = "=== tables\n";
constexpr std::string_view BuiltMark = "=== built\n";
constexpr std::string_view BlockMark = "=== block\n";

/// A block, the tables read from it, and the block built from them. Files have LF line ends and UTF-8.
struct Case
{
    std::string block;
    std::string tables; ///< in the form of `Describe`, then the questions of Done about lines
    std::string built;
};

Case ReadCase(const std::filesystem::path& path)
{
    const std::string text = test::ReadWholeFile(path.string());
    const std::size_t tables = text.find(TablesMark);
    const std::size_t built = text.find(BuiltMark);
    EXPECT_TRUE(text.starts_with(BlockMark) && tables < built && built != std::string::npos) << path;
    const std::size_t tablesText = tables + TablesMark.size();
    return {text.substr(BlockMark.size(), tables - BlockMark.size()),
            text.substr(tablesText, built - tablesText), text.substr(built + BuiltMark.size())};
}

std::string Tables(const LogicBlock& block)
{
    std::string text = test::Describe(block);
    for (const LogicFault& fault : FindLogicFaults(block)) {
        text += "fault: " + fault.what + "\n";
    }
    return text;
}

/// The built text in the form of the files; the message if nothing is built.
std::string Built(const LogicBlock& block)
{
    test::TestSeams world;
    const std::optional<std::string> built = BuildLogicBlock(block, world.Get());
    if (!built) {
        return world.messages.Take().at(0) + "\n";
    }
    std::string text = FromBook(*built);
    text.erase(std::remove(text.begin(), text.end(), '\r'), text.end());
    return text;
}

std::vector<std::string> CaseNames()
{
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(Folder)) {
        names.push_back(entry.path().stem().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

struct LogicData : testing::TestWithParam<std::string>
{
};

TEST_P(LogicData, block_isReadIntoTheseTablesAndBuiltAsThisText)
{
    const std::filesystem::path path = std::filesystem::path(Folder) / (GetParam() + ".txt");
    const Case expected = ReadCase(path);
    const std::string bytes = ToBook(test::BookLines(expected.block)).value();
    const LogicBlock block = ParseLogicBlock(bytes);
    EXPECT_EQ(Tables(block), expected.tables);
    EXPECT_EQ(Built(block), expected.built);
}

TEST_P(LogicData, whereNothingIsAsked_theAdvisorLoadsTheSame)
{
    const Case given = ReadCase(std::filesystem::path(Folder) / (GetParam() + ".txt"));
    const std::string bytes = ToBook(test::BookLines(given.block)).value();
    const LogicBlock block = ParseLogicBlock(bytes);
    if (!block.lost.empty() || !FindLogicFaults(block).empty() || block.logicText.empty()) {
        EXPECT_TRUE(given.tables.find("\nlost ") != std::string::npos ||
                    given.tables.find("\nfault: ") != std::string::npos || block.logicText.empty());
        return;
    }
    const std::vector<std::string> tags = test::TagsOf(block);
    const std::string built = ToBook(test::BookLines(given.built)).value();
    EXPECT_EQ(test::MeaningOf(bytes, tags), test::WithoutPlaceholders(test::MeaningOf(built, tags), block));
}

std::string CaseName(const testing::TestParamInfo<std::string>& info)
{
    std::string name = info.param;
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Files, LogicData, testing::ValuesIn(CaseNames()), CaseName);

TEST(LogicDataFolder, hasItsCases)
{
    EXPECT_GE(CaseNames().size(), 25U);
}

} // namespace
} // namespace ls
