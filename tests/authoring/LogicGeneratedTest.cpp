#include "LogicGenerator.h"
#include "LogicMeaning.h"
#include "authoring/LogicFaults.h"
#include "base/CodePage.h"
#include "base/Text.h"
#include "support/TestSeams.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace ls {
namespace {

using test::Describe;
using test::GeneratedBlock;
using test::Meaning;
using test::MeaningOf;

/// How many blocks were refused, asked about or stored. The test fails if every block is asked about.
struct Tally
{
    int refused = 0;
    int asked = 0;
    int kept = 0;
    int keptWithEntries = 0;
};

// The tables without the parts that only describe the block they were read from.
LogicBlock Bare(LogicBlock block)
{
    block.lost.clear();
    for (LogicVariable& variable : block.variables) {
        variable.inBlock = true;
    }
    return block;
}

bool Names(const std::vector<LostPart>& lost, const std::string& what)
{
    return std::any_of(lost.begin(), lost.end(),
                       [&what](const LostPart& part) { return part.what.find(what) != std::string::npos; });
}

// The beginning of the line with the word, cut as in messages.
std::string LineOf(const std::string& text, const std::string& word)
{
    const std::size_t from = text.find_last_of("\r\n", text.find(word)) + 1;
    const std::string line = text.substr(from, text.find('\r', from) - from);
    return FromBook(Trim(line).substr(0, 40));
}

void ExpectEveryWord(const GeneratedBlock& generated, const LogicBlock& read, const std::string& built)
{
    if (Names(read.lost, "second ")) {
        // The message for a second entry gives its identifier, not its text.
        return;
    }
    for (const std::string& word : generated.words) {
        EXPECT_TRUE(built.find(word) != std::string::npos || Names(read.lost, word) ||
                    Names(read.lost, LineOf(generated.text, word)))
            << word << " vanished from\n"
            << generated.text << "\nread as\n"
            << Describe(read);
    }
}

void ExpectSameMeaning(const GeneratedBlock& generated, const LogicBlock& read, const std::string& built)
{
    const std::vector<std::string> tags = test::TagsOf(read);
    const Meaning before = MeaningOf(generated.text, tags);
    const Meaning after = WithoutPlaceholders(MeaningOf(built, tags), read);
    EXPECT_EQ(before.loads, after.loads);
    EXPECT_EQ(before.rules, after.rules);
    EXPECT_EQ(before.targets, after.targets);
    EXPECT_EQ(before.variables, after.variables);
    EXPECT_EQ(before.texts, after.texts);
}

void CheckBlock(const GeneratedBlock& generated, Tally& tally)
{
    const LogicBlock read = ParseLogicBlock(generated.text);
    test::TestSeams world;
    const std::optional<std::string> built = BuildLogicBlock(read, world.Get());
    if (!built) {
        EXPECT_EQ(read.logicText, "");
        world.messages.Take();
        ++tally.refused;
        return;
    }
    ExpectEveryWord(generated, read, *built);
    const bool faults = !FindLogicFaults(read).empty();
    if (!faults) {
        const LogicBlock again = ParseLogicBlock(*built);
        EXPECT_EQ(Describe(Bare(read)), Describe(Bare(again)));
        // An entry that holds another one is written unchanged, so the next reading asks about it again.
        if (!Names(read.lost, "holds another entry")) {
            EXPECT_EQ(again.lost, std::vector<LostPart>());
        }
    }
    if (faults || !read.lost.empty()) {
        ++tally.asked;
        return;
    }
    ++tally.kept;
    tally.keptWithEntries += read.variables.size() + read.bareEntries.size() > 3 ? 1 : 0;
    ExpectSameMeaning(generated, read, *built);
}

TEST(GeneratedBlocks, eachMeansTheSameAfterwards_orTheAuthorIsAsked)
{
    constexpr int count = 10000;
    Tally tally;
    for (int seed = 1; seed <= count; ++seed) {
        const GeneratedBlock generated = test::LogicGenerator(static_cast<std::uint32_t>(seed)).Make();
        CheckBlock(generated, tally);
        if (testing::Test::HasFailure()) {
            FAIL() << "seed " << seed << ":\n" << generated.text;
        }
    }
    EXPECT_GT(tally.kept, count / 3);
    EXPECT_GT(tally.keptWithEntries, count / 5);
    EXPECT_GT(tally.asked, count / 4);
    EXPECT_GT(tally.refused, 0);
}

} // namespace
} // namespace ls
