#pragma once

#include "book/BookWords.h"
#include "check/BlockStore.h"
#include "check/CheckedBlock.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace ls {

/// The place where the question for a variable is registered.
struct Registration
{
    int topic = 0;
    int line = 0; ///< in the block that registers the question
    bool byDefine = false;
};

/// A rule and the block that holds it.
struct PlacedRule
{
    const CheckedBlock* block;
    const BlockRule* rule;
};

/// What the rules say about one variable.
struct VariableUse
{
    std::string name;
    int line = 0;           ///< the first rule in the own block that names it; 0 for none
    int conditionLine = 0;  ///< the first rule in the own block with a condition on it; 0 for none
    bool condition = false; ///< a rule of any block has a condition on it
    std::vector<PlacedRule> conclusions; ///< the rules that conclude it
    std::vector<PlacedRule> rules;       ///< all rules that name it, each once, in the order of the rules
};

/// The rules of a topic's dialogue: those of its own block and of the blocks that its DEFINE lines lead to.
/// The other blocks are added when their variables come up.
class RuleBase
{
public:
    RuleBase(const CheckedBlock& own, BlockStore& store);

    [[nodiscard]] const CheckedBlock& Own() const { return *m_own; }
    [[nodiscard]] BlockStore& Store() const { return *m_store; }
    [[nodiscard]] const std::vector<const CheckedBlock*>& Blocks() const { return m_blocks; }
    [[nodiscard]] const std::string& Target() const { return m_target; }

    /// All variables, in the order in which the rules first name them.
    [[nodiscard]] const std::vector<VariableUse>& Variables() const { return m_variables; }
    [[nodiscard]] const VariableUse* Find(const std::string& name) const;

    /// The place of a variable's question; nullptr if it is not registered.
    [[nodiscard]] const Registration* Question(const std::string& name) const;

    /// Whether the question is registered and has a text in that place.
    [[nodiscard]] bool HasQuestionText(const std::string& name) const;

    /// The block whose definitions hold the advice; nullptr if the book has no such block.
    [[nodiscard]] const CheckedBlock* AdviceHome() const;

    /// The values of a variable that its question offers, each once, in the order of the rules.
    [[nodiscard]] std::vector<std::string> Values(const VariableUse& variable) const;

private:
    void FollowDefines();
    void Register(const CheckedBlock& block);
    void AddRule(const CheckedBlock& block, const BlockRule& rule);
    VariableUse& Use(const std::string& name);

    const CheckedBlock* m_own;
    BlockStore* m_store;
    std::string m_target;
    std::vector<const CheckedBlock*> m_blocks;
    std::vector<VariableUse> m_variables;
    std::unordered_map<std::string, std::size_t> m_numbers; ///< indexes into m_variables, by name
    std::unordered_map<std::string, Registration> m_questions;
};

/// The value of a variable in the first place where the rule names it; nullptr if the rule does not name it.
[[nodiscard]] const std::string* ValueIn(const BlockRule& rule, const std::string& variable);

} // namespace ls
