#include "check/CheckBook.h"

#include "base/CodePage.h"
#include "base/Messages.h"
#include "base/Progress.h"
#include "book/Book.h"
#include "check/BlockRules.h"
#include "check/BlockStore.h"
#include "check/BookPass.h"
#include "check/DialogueRules.h"

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

std::vector<Finding> CheckBook(const Book& book, const Seams& seams, Progress* progress, FileError& error)
{
    Findings findings(FromPath(book.BookPath));
    BlockStore store(book, BlockSource::Given);
    BookPass pass(book, findings, store, progress);
    error = pass.Run();
    DialogueBook dialogues(book);
    bool goOn = error.Ok(); // rules may need blocks from the part that could not be read
    for (const CheckedBlock* block : InOrder(store)) {
        if (!goOn) {
            break;
        }
        findings.InTopic(store.Title(block->topic));
        const RuleBase base(*block, store);
        const int errors = findings.ErrorCount();
        CheckBlock(base, findings);
        CheckDialogues(dialogues, seams, base, findings.ErrorCount() > errors, findings);
        const bool cancelled = progress != nullptr && !progress->Step(1, 1); // the whole file was read
        goOn = !cancelled && dialogues.Error().Ok();
    }
    if (error.Ok()) {
        error = dialogues.Error();
    }
    return findings.TakeSorted();
}

std::vector<Finding> CheckLogicText(const Book& book, const Seams& seams, int topic, const std::string& text)
{
    Findings findings{std::string()};
    BlockStore store(book, BlockSource::Edited);
    std::unique_ptr<CheckedBlock> block = ReadLogicText(text, topic);
    if (topic < 1 || topic > book.TopicCount || block == nullptr) {
        return {};
    }
    findings.InTopic(store.Title(topic));
    store.Put(std::move(*block));
    const RuleBase base(*store.Find(topic), store);
    CheckBlock(base, findings);
    DialogueBook dialogues(book);
    dialogues.Replace(topic, text);
    for (const CheckedBlock* other : base.Blocks()) {
        const std::string& edited = book.TopicRecs(other->topic).Logic;
        if (other != &base.Own() && !edited.empty()) {
            dialogues.Replace(other->topic, edited);
        }
    }
    CheckDialogues(dialogues, seams, base, findings.ErrorCount() > 0, findings);
    const FileError& error = store.Error().Ok() ? dialogues.Error() : store.Error();
    if (!error.Ok()) {
        ShowCheckError(book, seams, error);
        return {};
    }
    return findings.TakeSorted();
}

void ShowCheckError(const Book& book, const Seams& seams, const FileError& error)
{
    seams.messages.MsgBox("Error reading <<" + FromPath(book.OpenPath) + ">> with code " +
                              NumberAndDescription(error),
                          Icon::Critical);
}

} // namespace ls
