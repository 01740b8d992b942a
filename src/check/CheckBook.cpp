#include "check/CheckBook.h"

#include "base/CodePage.h"
#include "base/Progress.h"
#include "book/Book.h"
#include "check/BlockRules.h"
#include "check/BlockStore.h"
#include "check/BookPass.h"

#include <algorithm>

namespace ls {

namespace {

// The blocks in the order of their lines, so that equal books give equal lists.
std::vector<const CheckedBlock*> InOrder(const BlockStore& store)
{
    std::vector<const CheckedBlock*> blocks;
    for (const auto& [topic, block] : store.All()) {
        blocks.push_back(block.get());
    }
    std::sort(blocks.begin(), blocks.end(),
              [](const CheckedBlock* a, const CheckedBlock* b) { return a->line < b->line; });
    return blocks;
}

} // namespace

void CheckBlock(const RuleBase& base, Findings& findings)
{
    CheckBlockFrame(base, findings);
    CheckCommands(base, findings);
    CheckRuleForm(base, findings);
    CheckEntries(base, findings);
    CheckQuestions(base, findings);
    CheckAdvice(base, findings);
    CheckValues(base, findings);
    CheckCircles(base, findings);
    CheckOverlaps(base, findings);
}

std::vector<Finding> CheckBook(const Book& book, const Seams& /*seams*/, Progress* progress,
                               FileError& failed)
{
    Findings findings(FromPath(book.BookPath));
    BlockStore store(book, BlockSource::Given);
    BookPass pass(book, findings, store, progress);
    failed = pass.Run();
    for (const CheckedBlock* block : InOrder(store)) {
        findings.InTopic(store.Title(block->topic));
        CheckBlock(RuleBase(*block, store), findings);
    }
    return findings.TakeSorted();
}

std::vector<Finding> CheckLogicText(const Book& book, const Seams& /*seams*/, int topic,
                                    const std::string& text)
{
    Findings findings{std::string()};
    BlockStore store(book, BlockSource::Edited);
    if (std::unique_ptr<CheckedBlock> block = ReadLogicText(text, topic)) {
        findings.InTopic(store.Title(topic));
        store.Put(std::move(*block));
        CheckBlock(RuleBase(*store.Find(topic), store), findings);
    }
    return findings.TakeSorted();
}

} // namespace ls
