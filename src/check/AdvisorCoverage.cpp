#include "check/AdvisorCoverage.h"

#include "book/Book.h"
#include "check/RuleBase.h"

#include <set>

namespace ls {

namespace {

// Every identifier that the author wrote: first those of the rules, then those of the texts.
std::vector<std::string> WrittenAdvice(const RuleBase& base)
{
    std::vector<std::string> ids;
    if (const VariableUse* const use = base.Find(base.Target())) {
        for (const PlacedRule& placed : use->conclusions) {
            const std::string& value = placed.rule->conclusion.value;
            ids.push_back(base.Target() == DefaultGoal ? value : base.Target() + "(" + value + ")");
        }
    }
    if (const CheckedBlock* const home = base.AdviceHome()) {
        for (const BlockEntry& entry : home->entries) {
            if (!entry.question) {
                ids.push_back(entry.id);
            }
        }
    }
    return ids;
}

} // namespace

AdvisorCoverage ExploreAdvisor(const Book& book, const Seams& seams, const SearchLimits& limits,
                               Progress* progress)
{
    AdvisorCoverage coverage;
    coverage.map = SearchDialogues(book, seams, limits, progress);
    BlockStore store(book, BlockSource::Edited);
    const CheckedBlock* const own = store.Find(book.CurrentTopicNo);
    if (own == nullptr) {
        return coverage;
    }
    std::set<std::string> told;
    for (const DialogueEnd& end : coverage.map.ends) {
        if (end.kind == DialogueEnd::Kind::Advice) {
            told.insert(end.name);
        }
    }
    const RuleBase base(*own, store);
    coverage.target = base.Target();
    for (const std::string& id : WrittenAdvice(base)) {
        if (told.insert(id).second) {
            coverage.neverReached.push_back(id);
        }
    }
    return coverage;
}

} // namespace ls
