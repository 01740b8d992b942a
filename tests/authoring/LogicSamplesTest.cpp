#include "LogicMeaning.h"
#include "authoring/LogicFaults.h"
#include "book/SavedBytes.h"
#include "support/Json.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace ls {
namespace {

using test::AdvisorWorld;
using test::Meaning;

/// Opens a book from memory.
void OpenBytes(AdvisorWorld& world, const std::string& bytes)
{
    world.seams.files[world.path] = bytes;
    world.book.BookPath = world.path;
    ASSERT_TRUE(OpenBook(world.book, world.seams.Get()));
    ASSERT_TRUE(ScanBook(world.book, world.seams.Get()));
}

/// Loads a topic's block into memory and returns it; empty if the topic has none.
std::string LoadLogicOf(AdvisorWorld& world, int topic)
{
    std::string name = world.book.TopicNames(topic);
    Count16 number = topic;
    LoadTopicRec(world.book, world.seams.Get(), name, number);
    return world.book.TopicRecs(topic).Logic;
}

struct Seen
{
    int blocks = 0;
    int clean = 0;
};

/// Parses each block of a book, replaces it by the block built from the result, and saves. Then compares what
/// the advisor loads from both files.
void CheckBook(const std::string& bytes, Seen& seen)
{
    AdvisorWorld original;
    OpenBytes(original, bytes);
    for (int topic = 1; topic <= original.book.TopicCount; ++topic) {
        AdvisorWorld edited;
        OpenBytes(edited, bytes);
        const std::string text = LoadLogicOf(edited, topic);
        if (text.empty()) {
            continue;
        }
        ++seen.blocks;
        const LogicBlock block = ParseLogicBlock(text);
        const std::optional<std::string> built = BuildLogicBlock(block, edited.seams.Get());
        if (!built) {
            edited.seams.messages.Take();
            continue;
        }
        edited.book.TopicRecs(topic).Logic = *built;
        if (!block.lost.empty() || !FindLogicFaults(block).empty()) {
            continue;
        }
        ++seen.clean;
        AdvisorWorld reopened;
        OpenBytes(reopened, test::SavedBytes(edited.book, edited.seams));
        const std::vector<std::string> tags = test::TagsOf(block);
        EXPECT_EQ(MeaningOfTopic(original, topic, tags),
                  WithoutPlaceholders(MeaningOfTopic(reopened, topic, tags), block))
            << text << "\nbuilt as\n"
            << *built;
        EXPECT_EQ(ParseLogicBlock(LoadLogicOf(reopened, topic)).choices, block.choices);
    }
}

TEST(BooksThroughTheLogicEditor, samples_meanTheSame)
{
    Seen seen;
    for (const auto& entry : std::filesystem::directory_iterator(LS_SAMPLES)) {
        if (entry.path().extension() == ".IDA") {
            SCOPED_TRACE(entry.path().filename().string());
            CheckBook(test::ReadWholeFile(entry.path().string()), seen);
        }
    }
    EXPECT_GT(seen.blocks, 3);
    // In one topic the advice depends on comments between the definitions. Building the block loses them.
    EXPECT_EQ(seen.clean, seen.blocks - 1);
}

TEST(BooksThroughTheLogicEditor, cases_meanTheSameWhereNothingIsAsked)
{
    Seen seen;
    for (const auto& entry : std::filesystem::directory_iterator(LS_TEST_DATA "/cases/advisor")) {
        if (entry.path().extension() == ".IDA") {
            SCOPED_TRACE(entry.path().filename().string());
            CheckBook(test::ReadWholeFile(entry.path().string()), seen);
        }
    }
    EXPECT_GT(seen.blocks, 100);
    EXPECT_GT(seen.clean, seen.blocks / 8);
}

} // namespace
} // namespace ls
