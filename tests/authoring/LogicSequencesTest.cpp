#include "RecordingLogicView.h"
#include "authoring/LogicEditor.h"
#include "base/Text.h"
#include "book/Book.h"
#include "support/TestSeams.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace ls {
namespace {

using Strings = std::vector<std::string>;

struct ModelChoice
{
    std::string name;
    std::string advice;
};

struct ModelVariable
{
    std::string name;
    std::string question;
    std::vector<ModelChoice> choices;
};

template <typename Item>
bool Has(const std::vector<Item>& items, const std::string& name)
{
    return std::any_of(items.begin(), items.end(),
                       [&name](const Item& item) { return UpperCase(item.name) == UpperCase(name); });
}

template <typename Item>
Strings Names(const std::vector<Item>& items)
{
    Strings names;
    for (const Item& item : items) {
        names.push_back(item.name);
    }
    return names;
}

/// Does random steps of an author and checks the lists and boxes after each one.
class Author
{
public:
    explicit Author(unsigned seed) : m_random(seed)
    {
        EXPECT_TRUE(m_book.TopicCount.Add());
        m_book.CurrentTopicNo = 1;
        EXPECT_TRUE(m_editor.Form_Load());
        m_view[LogicBox::Logic] = "x\n";
    }

    void Step()
    {
        switch (Number(8)) {
        case 0:
            AddVariable();
            break;
        case 1:
            AddChoice();
            break;
        case 2:
            DeleteVariable();
            break;
        case 3:
            DeleteChoice();
            break;
        case 4:
            PickVariable();
            break;
        case 5:
            PickChoice();
            break;
        default:
            Type();
        }
    }

    void ExpectShown()
    {
        ASSERT_EQ(m_view.variables, Names(m_variables));
        ASSERT_EQ(m_view.variable, m_variable);
        ASSERT_EQ(m_view.choices, Names(Choices()));
        ASSERT_EQ(m_view.choice, m_choice);
        ASSERT_EQ(m_view[LogicBox::Question], m_variable < 0 ? "" : Variable().question);
        ASSERT_EQ(m_view[LogicBox::Advice], m_choice < 0 ? "" : Choice().advice);
        ASSERT_EQ(m_view.Takes(LogicBox::Question), m_variable >= 0);
        ASSERT_EQ(m_view.Takes(LogicBox::Advice), m_choice >= 0);
    }

    void ExpectWritten()
    {
        ASSERT_TRUE(m_editor.SaveButton_Click());
        const LogicBlock block = ParseLogicBlock(m_book.TopicRecs(1).Logic);
        LogicBlock expected;
        for (const ModelVariable& variable : m_variables) {
            expected.variables.push_back({variable.name, variable.question});
            for (const ModelChoice& choice : variable.choices) {
                expected.choices.push_back({variable.name, choice.name, choice.advice});
            }
        }
        ASSERT_EQ(block.variables, expected.variables);
        ASSERT_EQ(block.choices, expected.choices);
        ASSERT_EQ(block.logicText, "x\r\n");
        m_world.messages.Take();
    }

private:
    int Number(int below) { return static_cast<int>(m_random() % static_cast<unsigned>(below)); }
    std::string Name() { return (Number(2) == 0 ? "v" : "V") + std::to_string(Number(9)); }

    ModelVariable& Variable() { return m_variables[static_cast<std::size_t>(m_variable)]; }
    ModelChoice& Choice() { return Variable().choices[static_cast<std::size_t>(m_choice)]; }
    std::vector<ModelChoice> Choices()
    {
        return m_variable < 0 ? std::vector<ModelChoice>() : Variable().choices;
    }

    void Select(int variable)
    {
        m_variable = variable;
        m_choice = Choices().empty() ? -1 : 0;
    }

    void AddVariable()
    {
        const std::string name = Name();
        m_world.messages.inputs = {" " + name};
        m_editor.VarAddButton_Click();
        if (!Has(m_variables, name)) {
            m_variables.push_back({name, {}, {}});
            Select(static_cast<int>(m_variables.size()) - 1);
        }
    }

    void AddChoice()
    {
        const std::string name = Name();
        if (m_variable >= 0) {
            m_world.messages.inputs = {name};
        }
        m_editor.AddAnsButton_Click();
        if (m_variable >= 0 && !Has(Variable().choices, name)) {
            Variable().choices.push_back({name, {}});
            m_choice = static_cast<int>(Variable().choices.size()) - 1;
        }
    }

    void DeleteVariable()
    {
        m_editor.VarDelButton_Click();
        if (m_variable >= 0) {
            m_variables.erase(m_variables.begin() + m_variable);
            Select(std::min(m_variable, static_cast<int>(m_variables.size()) - 1));
        }
    }

    void DeleteChoice()
    {
        m_editor.DelAnsButton_Click();
        if (m_choice >= 0) {
            Variable().choices.erase(Variable().choices.begin() + m_choice);
            m_choice = std::min(m_choice, static_cast<int>(Variable().choices.size()) - 1);
        }
    }

    void PickVariable()
    {
        const int picked = m_variables.empty() ? -1 : Number(static_cast<int>(m_variables.size()));
        m_editor.VarCombo_Click(picked);
        if (picked != m_variable) {
            Select(picked);
        }
    }

    void PickChoice()
    {
        const auto count = static_cast<int>(Choices().size());
        m_choice = count == 0 ? -1 : Number(count);
        m_editor.AnswerCombo_Click(m_choice);
    }

    void Type()
    {
        const std::string text = "t" + std::to_string(Number(1000));
        if (Number(2) == 0 && m_variable >= 0) {
            m_view[LogicBox::Question] = text;
            Variable().question = text;
        } else if (m_choice >= 0) {
            m_view[LogicBox::Advice] = text;
            Choice().advice = text;
        }
    }

    std::mt19937 m_random;
    test::TestSeams m_world;
    Book m_book;
    test::RecordingLogicView m_view;
    LogicEditor m_editor{m_book, m_world.Get(), m_view};

    std::vector<ModelVariable> m_variables;
    int m_variable = -1;
    int m_choice = -1;
};

TEST(LogicSequences, whatIsTypedAndPicked_isShownAndWritten)
{
    for (unsigned seed = 1; seed <= 300; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        Author author(seed);
        for (int step = 0; step < 80; ++step) {
            author.Step();
            author.ExpectShown();
            if (testing::Test::HasFatalFailure()) {
                return;
            }
        }
        author.ExpectWritten();
        if (testing::Test::HasFatalFailure()) {
            return;
        }
    }
}

} // namespace
} // namespace ls
