#include "CheckCases.h"

#include "advisor/AdvisorContext.h"
#include "advisor/AdvisorTables.h"
#include "advisor/Definitions.h"
#include "advisor/Inference.h"
#include "advisor/LogicLoader.h"
#include "base/LineCursor.h"
#include "check/BlockStore.h"
#include "render/text/ShowTopic.h"
#include "support/Json.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace ls {
namespace {

using Texts = std::vector<std::string>;

// What the advisor's loader reads from a topic's block, as text.
struct Loaded
{
    bool good = false;
    Texts rules;
    Texts variables; ///< "NAME@topic"
    std::string target;
};

Loaded Load(test::CheckedBook& world, int topic, const std::vector<Texts>& tags, Texts& texts)
{
    AdvisorTables tables;
    LineCursor cursor(*world.book.File);
    ShownTopic shown;
    std::string name = world.book.TopicNames(topic);
    Count16 number = topic;
    EXPECT_EQ(ShowTopic(world.book, world.seams.Get(), name, number, 80, shown), ShowResult::Shown);
    cursor.Seek(shown.logicPos);
    AdvisorContext context{world.book, tables, world.seams.Get(), cursor};
    Inference inference(tables, context.seams);
    Loaded loaded;
    std::string advice;
    loaded.good = LoadLogic(context, inference, topic, false, advice);
    const Counted rules(tables.LogicRules, tables.RuleCount);
    loaded.rules.assign(rules.begin(), rules.end());
    for (const VarTopic& entry : Counted(tables.VarTopics, tables.VarTopicCount)) {
        loaded.variables.push_back(entry.Name + "@" + std::to_string(entry.Topic));
    }
    loaded.target = tables.TargetCount > 0 ? tables.Targets(1) : "";
    Definitions definitions(context, inference);
    for (const Texts& tag : tags) {
        cursor.Seek(tables.DefinitionsPos);
        texts.push_back(definitions.ReadTaggedText(tag.front()).empty() ? "" : tag.front());
    }
    world.seams.messages.Take();
    return loaded;
}

// The same, from the block as `check` reads it.
Loaded Read(const CheckedBlock& block, BlockStore& store)
{
    Loaded read;
    read.good = true;
    for (const BlockRule& rule : block.rules) {
        read.rules.push_back(rule.text);
    }
    for (const BlockCommand& command : block.commands) {
        const bool badDefine = command.kind == BlockCommand::Kind::Define && command.title.empty();
        read.good = read.good && command.kind != BlockCommand::Kind::Unknown && !badDefine;
        if (!command.title.empty() && store.TopicNumber(command.title) != 0) {
            read.variables.push_back(command.var + "@" + std::to_string(store.TopicNumber(command.title)));
        }
    }
    for (const BlockEntry& entry : block.entries) {
        if (entry.registered) {
            read.variables.push_back(entry.id + "@" + std::to_string(block.topic));
        }
    }
    read.good = read.good && block.logicLine != 0 && block.definitionsLine != 0;
    read.target = block.Target();
    return read;
}

void Compare(const std::string& bytes)
{
    test::CheckedBook world(bytes);
    BlockStore store(world.book, BlockSource::Edited);
    for (int topic = 1; topic <= world.book.TopicCount; ++topic) {
        const CheckedBlock* const block = store.Find(topic);
        if (block == nullptr) {
            continue;
        }
        SCOPED_TRACE("topic " + std::to_string(topic));
        std::vector<Texts> tags;
        Texts found;
        Texts wanted;
        for (const BlockEntry& entry : block->entries) {
            const BlockEntry* const first = block->FindEntry(entry.question, entry.id);
            tags.push_back({(entry.question ? "<Q ID=" : "<AV ID=") + entry.id + ">"});
            wanted.push_back(first != nullptr && first->hasText ? tags.back().front() : "");
        }
        const Loaded loaded = Load(world, topic, tags, found);
        const Loaded read = Read(*block, store);
        EXPECT_EQ(read.good, loaded.good);
        if (loaded.good) {
            EXPECT_EQ(read.rules, loaded.rules);
            EXPECT_EQ(read.variables, loaded.variables);
            EXPECT_EQ(read.target, loaded.target);
            EXPECT_EQ(wanted, found);
        }
    }
}

TEST(CheckedBlockReader, casesOfTheAdvisor_areReadAsTheLoaderReadsThem)
{
    int books = 0;
    for (const auto& entry : std::filesystem::directory_iterator(LS_TEST_DATA "/cases/advisor")) {
        if (entry.path().extension() == ".IDA") {
            SCOPED_TRACE(entry.path());
            Compare(test::ReadWholeFile(entry.path().string()));
            ++books;
        }
    }
    EXPECT_GE(books, 20);
}

TEST(CheckedBlockReader, checkCases_areReadAsTheLoaderReadsThem)
{
    for (const test::CheckCase& one : test::ReadCheckCases()) {
        SCOPED_TRACE(one.name);
        Compare(one.book);
    }
}

} // namespace
} // namespace ls
