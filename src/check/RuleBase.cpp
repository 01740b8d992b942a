#include "check/RuleBase.h"

#include <algorithm>
#include <unordered_set>

namespace ls {

namespace {

// A limit for books in which all topics lead to one another. Otherwise each topic would read the whole book.
constexpr std::size_t MostBlocks = 200;

} // namespace

RuleBase::RuleBase(const CheckedBlock& own, BlockStore& store)
    : m_own(&own), m_store(&store), m_target(own.Target())
{
    FollowDefines();
    for (const CheckedBlock* block : m_blocks) {
        Register(*block);
        for (const BlockRule& rule : block->rules) {
            AddRule(*block, rule);
        }
    }
}

void RuleBase::FollowDefines()
{
    std::unordered_set<int> known{m_own->topic};
    m_blocks.push_back(m_own);
    for (std::size_t i = 0; i < m_blocks.size(); ++i) {
        for (const BlockCommand& command : m_blocks[i]->commands) {
            // Names in rules have no blanks, so a name with a blank never comes up.
            const bool followed = !command.title.empty() && command.var.find(' ') == std::string::npos;
            const int topic = followed ? m_store->TopicNumber(command.title) : 0;
            const CheckedBlock* const block =
                topic == 0 || !known.insert(topic).second ? nullptr : m_store->Find(topic);
            if (block != nullptr && m_blocks.size() < MostBlocks) {
                m_blocks.push_back(block);
            }
        }
    }
}

// Commands come before the entries, and the first registration counts.
void RuleBase::Register(const CheckedBlock& block)
{
    for (const BlockCommand& command : block.commands) {
        const int topic = command.title.empty() ? 0 : m_store->TopicNumber(command.title);
        if (topic != 0) {
            m_questions.emplace(command.var, Registration{topic, command.line, true});
        }
    }
    for (const BlockEntry& entry : block.entries) {
        if (entry.registered) {
            m_questions.emplace(entry.id, Registration{block.topic, entry.line, false});
        }
    }
}

VariableUse& RuleBase::Use(const std::string& name)
{
    const auto [at, added] = m_numbers.emplace(name, m_variables.size());
    if (added) {
        m_variables.emplace_back().name = name;
    }
    return m_variables[at->second];
}

void RuleBase::AddRule(const CheckedBlock& block, const BlockRule& rule)
{
    const auto name = [&](const std::string& var) -> VariableUse& {
        VariableUse& use = Use(var);
        if (&block == m_own && use.line == 0) {
            use.line = rule.line;
        }
        if (use.rules.empty() || use.rules.back().rule != &rule) {
            use.rules.push_back({&block, &rule});
        }
        return use;
    };
    if (!rule.conclusion.var.empty()) {
        name(rule.conclusion.var).conclusions.push_back({&block, &rule});
    }
    for (const BlockTerm& term : rule.conditions) {
        if (term.var.empty()) {
            continue;
        }
        VariableUse& use = name(term.var);
        use.condition = true;
        if (&block == m_own && use.conditionLine == 0) {
            use.conditionLine = rule.line;
        }
    }
}

const VariableUse* RuleBase::Find(const std::string& name) const
{
    const auto found = m_numbers.find(name);
    return found == m_numbers.end() ? nullptr : &m_variables[found->second];
}

const Registration* RuleBase::Question(const std::string& name) const
{
    const auto found = m_questions.find(name);
    return found == m_questions.end() ? nullptr : &found->second;
}

const CheckedBlock* RuleBase::AdviceHome() const
{
    const Registration* const question = Question(m_target);
    if (m_target == DefaultGoal || question == nullptr || question->topic == m_own->topic) {
        return m_own;
    }
    return m_store->Find(question->topic);
}

bool RuleBase::HasQuestionText(const std::string& name) const
{
    const Registration* const registration = Question(name);
    if (registration == nullptr) {
        return false;
    }
    const CheckedBlock* const block =
        registration->topic == m_own->topic ? m_own : m_store->Find(registration->topic);
    const BlockEntry* const entry = block == nullptr ? nullptr : block->FindEntry(true, name);
    return entry != nullptr && entry->hasText;
}

std::vector<std::string> RuleBase::Values(const VariableUse& variable) const
{
    std::vector<std::string> values;
    std::unordered_set<std::string> known;
    for (const PlacedRule& placed : variable.rules) {
        const std::string* const value = ValueIn(*placed.rule, variable.name);
        if (value != nullptr && known.insert(*value).second) {
            values.push_back(*value);
        }
    }
    return values;
}

const std::string* ValueIn(const BlockRule& rule, const std::string& variable)
{
    if (rule.conclusion.var == variable) {
        return &rule.conclusion.value;
    }
    const auto found = std::find_if(rule.conditions.begin(), rule.conditions.end(),
                                    [&](const BlockTerm& term) { return term.var == variable; });
    return found == rule.conditions.end() ? nullptr : &found->value;
}

} // namespace ls
