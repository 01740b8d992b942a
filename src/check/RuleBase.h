#pragma once

#include "check/BlockStore.h"
#include "check/CheckedBlock.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace ls {

/// Where the question for a variable is registered.
struct Registration
{
    int topic = 0;
    int line = 0; ///< in the block that registers it
    bool byDefine = false;
};

/// A rule with the block in which it stands.
struct PlacedRule
{
    const CheckedBlock* block;
    const BlockRule* rule;
};

/// What the rules say of one variable.
struct VariableUse
{
    std::string name;
    int line = 0;                        ///< first named in the own block; 0 when only in others
    int conditionLine = 0;               ///< first a condition there
    bool condition = false;              ///< a condition anywhere
    std::vector<PlacedRule> conclusions; ///< the rules that conclude it
    std::vector<PlacedRule> rules;       ///< all rules that name it, each once, in the order of the rules
};

/// The target of a dialogue whose rules name none.
inline constexpr std::string_view DefaultGoal = "AV";

/// The rules of a topic's dialogue: those of its own block, and of the blocks that its DEFINE lines lead to,
/// which join in as their variables come up.
class RuleBase
{
public:
    RuleBase(const CheckedBlock& own, BlockStore& store);

    [[nodiscard]] const CheckedBlock& Own() const { return *m_own; }
    [[nodiscard]] BlockStore& Store() const { return *m_store; }
    [[nodiscard]] const std::vector<const CheckedBlock*>& Blocks() const { return m_blocks; }
    [[nodiscard]] const std::string& Target() const { return m_target; }

    /// All variables, in the order in which the rules name them.
    [[nodiscard]] const std::vector<VariableUse>& Variables() const { return m_variables; }
    [[nodiscard]] const VariableUse* Find(const std::string& name) const;

    /// Where a variable's question is found; nullptr when it is nowhere registered.
    [[nodiscard]] const Registration* Question(const std::string& name) const;

    /// Whether a question of that name with a text is found where it is registered.
    [[nodiscard]] bool HasQuestionText(const std::string& name) const;

    /// The block in whose definitions the advice is searched; nullptr when that is no block of the book.
    [[nodiscard]] const CheckedBlock* AdviceHome() const;

    /// The values of a variable as its question offers them, each once, in the order of the rules.
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
    std::unordered_map<std::string, std::size_t> m_numbers; ///< of m_variables
    std::unordered_map<std::string, Registration> m_questions;
};

/// The value that a rule gives or asks of a variable: the first place where it names it counts. nullptr when
/// it names it nowhere.
[[nodiscard]] const std::string* ValueIn(const BlockRule& rule, const std::string& variable);

} // namespace ls
