#include "base/CodePage.h"
#include "check/BlockRules.h"

#include <algorithm>
#include <string_view>
#include <unordered_set>

namespace ls {

namespace {

// The identifier of the advice text for a conclusion.
std::string Identifier(const std::string& target, const std::string& value)
{
    return target == DefaultGoal ? value : target + "(" + value + ")";
}

// The other form, which authors confuse with the right one.
std::string WrongIdentifier(const std::string& target, const std::string& value)
{
    return target == DefaultGoal ? target + "(" + value + ")" : value;
}

int TargetLine(const RuleBase& base)
{
    const BlockCommand* const command = base.Own().TargetCommand();
    return command == nullptr ? std::max(base.Own().logicLine, base.Own().line) : command->line;
}

void CheckRuleForTarget(const RuleBase& base, Findings& findings)
{
    const CheckedBlock& own = base.Own();
    const bool concluded = std::any_of(own.rules.begin(), own.rules.end(), [&](const BlockRule& rule) {
        return rule.conclusion.var == base.Target();
    });
    if (base.Target().empty()) {
        findings.Error("no-rule-for-target", TargetLine(base),
                       "TARGET names no variable, so the reader is told at once that there is no question to "
                       "ask: write a name behind it, or remove the line.");
    } else if (!concluded && own.logicLine != 0) {
        const std::string target = FromBook(base.Target());
        findings.Error("no-rule-for-target", TargetLine(base),
                       "No rule of this topic concludes the target " + target +
                           ", so the reader is told at once that there is no question to ask: write a rule "
                           "that begins with " +
                           target + "(VALUE) =, or name another TARGET.");
    }
}

void CheckTargetQuestion(const RuleBase& base, Findings& findings)
{
    const std::string& target = base.Target();
    const bool hasBlank = target.find(' ') != std::string::npos; // another rule reports it
    if (target != DefaultGoal && !target.empty() && !hasBlank && base.Question(target) == nullptr) {
        const std::string name = FromBook(target);
        findings.Warning("target-without-question", TargetLine(base),
                         "The target " + name +
                             " has no question entry, so the reader sees an error box before the advice and "
                             "perhaps no advice: add an empty <Q ID=" +
                             name + "></Q>.");
    }
}

void CheckAdviceText(const RuleBase& base, Findings& findings)
{
    const CheckedBlock* const home = base.AdviceHome();
    if (home == nullptr) {
        return;
    }
    std::unordered_set<std::string> told;
    for (const BlockRule& rule : base.Own().rules) {
        const std::string& value = rule.conclusion.value;
        if (rule.fault == RuleFault::Conclusion || rule.conclusion.var != base.Target() || value.empty() ||
            !told.insert(value).second) {
            continue;
        }
        const std::string id = Identifier(base.Target(), value);
        const BlockEntry* const entry = home->FindEntry(false, id);
        if ((entry != nullptr && entry->hasText) ||
            home->FindEntry(false, WrongIdentifier(base.Target(), value)) != nullptr) {
            continue;
        }
        findings.Warning(
            "advice-without-text", rule.line,
            "The advice " + FromBook(id) +
                " is concluded but has no text, so the reader comes to an empty box: write it as "
                "<AV ID=" +
                FromBook(id) + ">...</AV>.");
    }
}

// The identifiers that dialogues of the book search for in this block.
class Reached
{
public:
    explicit Reached(const RuleBase& base) : m_base(base)
    {
        AddConclusions(base, base.Target());
        m_targets.insert(base.Target());
    }

    // Another topic can name this one in the DEFINE of its own goal. Adds the identifiers of such topics.
    void AddOthers()
    {
        BlockStore& store = m_base.Store();
        for (const auto& [topic, block] : store.All()) {
            if (topic == m_base.Own().topic || block == nullptr) {
                continue;
            }
            const std::string target = block->Target();
            const bool sent =
                std::any_of(block->commands.begin(), block->commands.end(), [&](const BlockCommand& command) {
                    return command.var == target && !command.title.empty() &&
                           store.TopicNumber(command.title) == m_base.Own().topic;
                });
            if (sent) {
                m_targets.insert(target);
                AddConclusions(RuleBase(*block, store), target);
            }
        }
    }

    [[nodiscard]] bool Has(const std::string& id) const { return m_ids.count(id) != 0; }
    [[nodiscard]] bool HasWrongForm(const std::string& id) const { return m_wrong.count(id) != 0; }
    [[nodiscard]] bool IsTarget(const std::string& var) const { return m_targets.count(var) != 0; }

private:
    void AddConclusions(const RuleBase& base, const std::string& target)
    {
        const VariableUse* const use = base.Find(target);
        if (use == nullptr) {
            return;
        }
        for (const PlacedRule& placed : use->conclusions) {
            m_ids.insert(Identifier(target, placed.rule->conclusion.value));
            m_wrong.insert(WrongIdentifier(target, placed.rule->conclusion.value));
        }
    }

    const RuleBase& m_base;
    std::unordered_set<std::string> m_ids;
    std::unordered_set<std::string> m_wrong;
    std::unordered_set<std::string> m_targets;
};

// Whether the identifier is `VAR(CHOICE)` of a variable that is no goal. The logic editor stores choices so.
bool IsChoice(const std::string& id, const Reached& reached)
{
    const std::size_t open = id.find('(');
    return open != std::string::npos && !reached.IsTarget(id.substr(0, open));
}

bool IsNamed(const RuleBase& base, const std::string& id)
{
    const std::size_t open = id.find('(');
    const VariableUse* const use = base.Find(id.substr(0, open));
    const std::string value = id.substr(open + 1, id.size() - open - 2);
    return use != nullptr && std::any_of(use->rules.begin(), use->rules.end(), [&](const PlacedRule& placed) {
               const auto is = [&](const BlockTerm& term) {
                   return term.var == use->name && term.value == value;
               };
               return is(placed.rule->conclusion) ||
                      std::any_of(placed.rule->conditions.begin(), placed.rule->conditions.end(), is);
           });
}

void ReportUnreached(const RuleBase& base, const Reached& reached, const BlockEntry& entry,
                     Findings& findings)
{
    const std::string id = FromBook(entry.id);
    if (reached.HasWrongForm(entry.id)) {
        const bool bare = base.Target() == DefaultGoal;
        findings.Warning("advice-form", entry.line,
                         "The advice is searched as " +
                             (bare ? "the bare value, without AV and brackets"
                                   : FromBook(base.Target()) + "(" + id + ")") +
                             ", so no reader sees the text of " + id +
                             ": write its identifier in that form.");
    } else if (IsChoice(entry.id, reached)) {
        if (!IsNamed(base, entry.id)) {
            findings.Warning("unused-choice", entry.line,
                             "No rule names the choice " + id +
                                 ", so no reader is offered it: use it in a rule, or remove the entry.");
        }
    } else {
        findings.Warning(
            "advice-unreached", entry.line,
            "No rule concludes " + id +
                ", so no reader ever sees this text: write a rule that does, or remove the text.");
    }
}

void CheckAdviceReached(const RuleBase& base, Findings& findings)
{
    Reached reached(base);
    bool others = !base.Store().HasWholeBook();
    std::unordered_set<std::string> known;
    for (const BlockEntry& entry : base.Own().entries) {
        if (entry.question) {
            continue;
        }
        if (!known.insert(entry.id).second) {
            findings.Warning("advice-unreached", entry.line,
                             "There is another text for " + FromBook(entry.id) +
                                 " before this one, so no reader ever sees it: remove one of them.");
            continue;
        }
        if (!reached.Has(entry.id) && !others) {
            others = true;
            reached.AddOthers();
        }
        // Another rule reports blanks.
        if (!reached.Has(entry.id) && entry.id.find(' ') == std::string::npos) {
            ReportUnreached(base, reached, entry, findings);
        }
    }
}

// Without a TARGET, advice is searched only after the question that was asked last, so advice before a
// question may not be found.
void CheckAdvicePlace(const RuleBase& base, Findings& findings)
{
    if (base.Target() != DefaultGoal) {
        return;
    }
    int lastQuestion = 0;
    for (const BlockEntry& entry : base.Own().entries) {
        const VariableUse* const use = entry.question ? base.Find(entry.id) : nullptr;
        if (use != nullptr && use->condition && entry.hasText) {
            lastQuestion = entry.line;
        }
    }
    for (const BlockEntry& entry : base.Own().entries) {
        if (!entry.question && entry.id.find('(') == std::string::npos && entry.line < lastQuestion) {
            findings.Warning(
                "advice-before-question", entry.line,
                "Without a TARGET advice is searched behind the question that was asked last, so "
                "a reader may come to an empty box instead of " +
                    FromBook(entry.id) + ": move all advice behind all questions, or set a TARGET.");
            return;
        }
    }
}

void CheckAdviceTopic(const RuleBase& base, Findings& findings)
{
    if (base.Target() != DefaultGoal) {
        return;
    }
    for (const VariableUse& variable : base.Variables()) {
        const Registration* const question = base.Question(variable.name);
        if (variable.conditionLine == 0 || question == nullptr || question->topic == base.Own().topic) {
            continue;
        }
        findings.Warning(
            "advice-in-other-topic", variable.conditionLine,
            "Without a TARGET advice is searched behind the question that was asked last, and that "
            "for " +
                FromBook(variable.name) +
                " stands in another topic, so the reader may come to an empty box: set a TARGET.");
        return;
    }
}

} // namespace

void CheckAdvice(const RuleBase& base, Findings& findings)
{
    CheckRuleForTarget(base, findings);
    CheckTargetQuestion(base, findings);
    CheckAdviceText(base, findings);
    CheckAdviceReached(base, findings);
    CheckAdvicePlace(base, findings);
    CheckAdviceTopic(base, findings);
}

} // namespace ls
