#include "base/CodePage.h"
#include "check/BlockRules.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

namespace ls {

namespace {

bool HasBlank(const std::string& name)
{
    return name.find(' ') != std::string::npos;
}

bool IsWellFormedDefine(const BlockCommand& command)
{
    return command.kind == BlockCommand::Kind::Define && !command.title.empty();
}

void CheckDefinedTopic(const RuleBase& base, const BlockCommand& define, Findings& findings)
{
    const std::string var = FromBook(define.var);
    const int topic = base.Store().TopicNumber(define.title);
    if (topic == 0) {
        findings.Error("define-missing-topic", define.line,
                       "No topic has the title " + Quoted(define.title) +
                           ", so the line is passed over and "
                           "the reader is told that " +
                           var + " cannot be found: write the title as it stands in the book.");
        return;
    }
    const CheckedBlock* const block = base.Store().Find(topic);
    if (block == nullptr) {
        findings.Error("define-no-logic", define.line,
                       "The topic " + Quoted(define.title) +
                           " has no logic block, so the reader gets an error "
                           "box when " +
                           var + " comes up: give it one that asks for " + var + ".");
        return;
    }
    const VariableUse* const use = base.Find(define.var);
    if (block->FindEntry(true, define.var) != nullptr) {
        return;
    }
    if (use != nullptr && !use->conclusions.empty()) {
        findings.Warning("define-no-question", define.line,
                         "The topic " + Quoted(define.title) + " has no question for " + var +
                             ", so the reader is never asked and rules alone conclude it: add <Q ID=" + var +
                             "> there, empty if that is meant.");
    } else {
        findings.Error("define-no-question", define.line,
                       "The topic " + Quoted(define.title) + " has no question for " + var +
                           ", so the reader's dialogue stops when it comes up: add <Q ID=" + var +
                           "> there.");
    }
}

void CheckDefines(const RuleBase& base, Findings& findings)
{
    for (const BlockCommand& command : base.Own().commands) {
        if (IsWellFormedDefine(command) && !command.var.empty() && !HasBlank(command.var)) {
            CheckDefinedTopic(base, command, findings);
        }
    }
}

// Whether a DEFINE line names the variable. Another rule reports a malformed line.
bool IsDefined(const CheckedBlock& block, const std::string& var)
{
    return std::any_of(block.commands.begin(), block.commands.end(),
                       [&](const BlockCommand& command) { return command.var == var; });
}

void CheckRegistered(const RuleBase& base, Findings& findings)
{
    for (const VariableUse& variable : base.Variables()) {
        if (variable.conditionLine == 0 || base.Question(variable.name) != nullptr ||
            IsDefined(base.Own(), variable.name)) {
            continue;
        }
        const std::string var = FromBook(variable.name);
        findings.Error("no-question", variable.conditionLine,
                       "The condition variable " + var +
                           " has neither a question nor a DEFINE, so the reader is told that its definition "
                           "cannot be found and the dialogue stops: add <Q ID=" +
                           var + ">, empty if the rules conclude it.");
    }
}

// The line for a question without text: its entry, or the condition if the entry is in another topic. 0 if
// there is no entry; another rule reports that.
int EmptyQuestionLine(const RuleBase& base, const VariableUse& variable, const Registration& question)
{
    const CheckedBlock* const block = base.Store().Find(question.topic);
    if (block == nullptr || block->FindEntry(true, variable.name) == nullptr) {
        return 0;
    }
    return question.topic == base.Own().topic ? question.line : variable.conditionLine;
}

// Only a variable with at least two values is asked, and only if no rule concludes it.
void CheckQuestionTexts(const RuleBase& base, Findings& findings)
{
    for (const VariableUse& variable : base.Variables()) {
        const Registration* const question = base.Question(variable.name);
        if (variable.conditionLine == 0 || question == nullptr || base.HasQuestionText(variable.name) ||
            !variable.conclusions.empty() || base.Values(variable).size() < 2) {
            continue;
        }
        const int line = EmptyQuestionLine(base, variable, *question);
        if (line == 0) {
            continue;
        }
        const std::string var = FromBook(variable.name);
        findings.Error("empty-question", line,
                       "The question for " + var + " is empty and no rule concludes " + var +
                           ", so the reader's dialogue stops with \"Can't find text for " + var +
                           "\": write the question.");
    }
}

void CheckRegisteredOnce(const RuleBase& base, Findings& findings)
{
    std::unordered_map<std::string, int> lines;
    const auto take = [&](const std::string& var, int line) {
        const auto [first, added] = lines.emplace(var, line);
        if (!added) {
            findings.Warning("question-twice", line,
                             "The question for " + FromBook(var) + " is registered in line " +
                                 std::to_string(first->second) +
                                 " already, so the reader never sees this one: remove one of them.");
        }
    };
    for (const BlockCommand& command : base.Own().commands) {
        if (IsWellFormedDefine(command)) {
            take(command.var, command.line);
        }
    }
    for (const BlockEntry& entry : base.Own().entries) {
        if (entry.registered) {
            take(entry.id, entry.line);
        }
    }
}

// The variables for which another block's DEFINE names this topic.
std::unordered_set<std::string> WantedByOthers(const RuleBase& base)
{
    std::unordered_set<std::string> wanted;
    const int own = base.Own().topic;
    for (const auto& [topic, block] : base.Store().All()) {
        if (topic == own || block == nullptr) {
            continue;
        }
        for (const BlockCommand& command : block->commands) {
            if (IsWellFormedDefine(command) && base.Store().TopicNumber(command.title) == own) {
                wanted.insert(command.var);
            }
        }
    }
    return wanted;
}

void CheckQuestionsUsed(const RuleBase& base, Findings& findings)
{
    if (!base.Store().HasWholeBook()) {
        return; // a topic that was not read yet may use the question
    }
    std::vector<const BlockEntry*> unused;
    for (const BlockEntry& entry : base.Own().entries) {
        const VariableUse* const variable = base.Find(entry.id);
        if (entry.registered && entry.id != base.Target() && !HasBlank(entry.id) &&
            (variable == nullptr || !variable->condition)) {
            unused.push_back(&entry);
        }
    }
    if (unused.empty()) {
        return;
    }
    const std::unordered_set<std::string> wanted = WantedByOthers(base);
    for (const BlockEntry* entry : unused) {
        if (wanted.count(entry->id) == 0) {
            findings.Warning(
                "unused-question", entry->line,
                "No rule has a condition on " + FromBook(entry->id) +
                    ", so no reader is ever asked this question: use it in a rule, or remove it.");
        }
    }
}

} // namespace

void CheckQuestions(const RuleBase& base, Findings& findings)
{
    CheckDefines(base, findings);
    CheckRegistered(base, findings);
    CheckQuestionTexts(base, findings);
    CheckRegisteredOnce(base, findings);
    CheckQuestionsUsed(base, findings);
}

} // namespace ls
