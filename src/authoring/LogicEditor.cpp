#include "authoring/LogicEditor.h"

#include "authoring/TextEditing.h"
#include "base/CodePage.h"
#include "base/Count16.h"
#include "base/ItemAt.h"
#include "base/Messages.h"
#include "base/Text.h"
#include "book/Book.h"

#include <utility>

namespace ls {

namespace {

constexpr std::size_t Most = Count16::Max; // of variables, and of choices of all variables together

// A name as the advisor compares it. Names in the lists are book text already, so `ToBook` cannot fail.
std::string KeyOf(const std::string& utf8)
{
    return UpperCase(ToBook(utf8).value_or(utf8));
}

template <typename Item>
void Erase(std::vector<Item>& items, int index)
{
    items.erase(items.begin() + index);
}

// The entry to select after one was deleted: the next one, or else the last.
int After(int deleted, std::size_t left)
{
    return deleted < static_cast<int>(left) ? deleted : static_cast<int>(left) - 1;
}

void Refuse(const Seams& seams, const char* text)
{
    seams.messages.MsgBox(text, Icon::Exclamation);
}

// Stores the text of a box unless it differs in line ends only. True if it was stored.
bool Store(std::string& stored, const std::string& inBox)
{
    std::string text = WithCrLf(inBox);
    if (text == stored || text == WithCrLf(stored)) {
        return false;
    }
    stored = std::move(text);
    return true;
}

} // namespace

bool LogicEditor::Form_Load()
{
    const LogicBlock block = ParseLogicBlock(m_book.TopicRecs(m_book.CurrentTopicNo).Logic);
    if (block.variables.size() > Most || block.choices.size() > Most) {
        ShowOverflow(m_seams.messages);
        return false;
    }
    Fill(block);
    m_view.SetText(LogicBox::Logic, m_logicText);
    std::vector<std::string> names;
    names.reserve(m_variables.size());
    for (const Variable& variable : m_variables) {
        names.push_back(variable.name);
    }
    m_view.SetVariables(names);
    Show(-1, -1);
    return true;
}

void LogicEditor::Fill(const LogicBlock& block)
{
    m_logicText = FromBook(block.logicText);
    m_bareEntries = block.bareEntries;
    m_lost = block.lost;
    m_variables.clear();
    m_keys.clear();
    m_changed = false;
    // Choices of one variable are adjacent, in the order of the variables.
    auto choice = block.choices.begin();
    for (const LogicVariable& read : block.variables) {
        Variable variable;
        variable.name = FromBook(read.name);
        variable.question = FromBook(read.question);
        for (; choice != block.choices.end() && choice->variable == read.name; ++choice) {
            variable.choices.push_back({FromBook(choice->choice), FromBook(choice->advice)});
            variable.choiceKeys.insert(UpperCase(choice->choice));
        }
        m_keys.insert(UpperCase(read.name));
        m_variables.push_back(std::move(variable));
    }
}

LogicEditor::Variable* LogicEditor::Selected()
{
    return ItemAt(m_variables, m_variable);
}

LogicEditor::Choice* LogicEditor::SelectedChoice()
{
    Variable* variable = Selected();
    return variable == nullptr ? nullptr : ItemAt(variable->choices, m_choice);
}

std::size_t LogicEditor::ChoiceCount() const
{
    std::size_t count = 0;
    for (const Variable& variable : m_variables) {
        count += variable.choices.size();
    }
    return count;
}

void LogicEditor::StoreTexts()
{
    m_changed = Store(m_logicText, m_view.Text(LogicBox::Logic)) || m_changed;
    VQuestionBox_LostFocus();
    VCAnswerBox_LostFocus();
}

void LogicEditor::VQuestionBox_LostFocus()
{
    if (Variable* variable = Selected()) {
        m_changed = Store(variable->question, m_view.Text(LogicBox::Question)) || m_changed;
    }
}

void LogicEditor::VCAnswerBox_LostFocus()
{
    if (Choice* choice = SelectedChoice()) {
        m_changed = Store(choice->advice, m_view.Text(LogicBox::Advice)) || m_changed;
    }
}

// Selects a variable and one of its choices (0: the first, if any), and shows their texts.
void LogicEditor::Show(int variable, int choice)
{
    m_variable = variable;
    m_choice = -1;
    m_view.SelectVariable(variable);
    const Variable* selected = Selected();
    m_view.SetText(LogicBox::Question, selected == nullptr ? std::string() : selected->question);
    m_view.Enable(LogicBox::Question, selected != nullptr);
    std::vector<std::string> names;
    if (selected != nullptr) {
        names.reserve(selected->choices.size());
        for (const Choice& entry : selected->choices) {
            names.push_back(entry.name);
        }
    }
    m_view.SetChoices(names);
    ShowChoice(names.empty() ? -1 : choice);
}

void LogicEditor::ShowChoice(int choice)
{
    m_choice = choice;
    m_view.SelectChoice(choice);
    const Choice* selected = SelectedChoice();
    m_view.SetText(LogicBox::Advice, selected == nullptr ? std::string() : selected->advice);
    m_view.Enable(LogicBox::Advice, selected != nullptr);
}

void LogicEditor::VarCombo_Click(int index)
{
    StoreTexts();
    if (index != m_variable) {
        Show(index, 0);
    }
}

void LogicEditor::AnswerCombo_Click(int index)
{
    StoreTexts();
    if (index != m_choice) {
        ShowChoice(index);
    }
}

// Asks for a name and trims it. Nothing if the author cancels or enters none, or after the warning about a
// character that books cannot hold.
std::optional<std::string> LogicEditor::AskName(const std::string& prompt)
{
    const std::optional<std::string> typed = m_seams.messages.InputBox(prompt, std::string(AppTitle), {});
    if (!typed || Trim(*typed).empty()) {
        return std::nullopt;
    }
    Unmapped unmapped;
    if (!ToBook(*typed, &unmapped)) {
        ShowUnmapped(m_seams, "The name", unmapped.character);
        return std::nullopt;
    }
    return std::string(Trim(*typed));
}

void LogicEditor::VarAddButton_Click()
{
    StoreTexts();
    std::optional<std::string> name = AskName("Type the name for the variable to be added.");
    if (!name) {
        return;
    }
    if (m_keys.count(KeyOf(*name)) != 0) {
        Refuse(m_seams, "There is already a variable with this name.");
        return;
    }
    if (m_variables.size() >= Most) {
        ShowOverflow(m_seams.messages);
        return;
    }
    m_keys.insert(KeyOf(*name));
    m_view.AppendVariable(*name);
    m_variables.emplace_back();
    m_variables.back().name = std::move(*name);
    m_changed = true;
    Show(static_cast<int>(m_variables.size()) - 1, 0);
}

void LogicEditor::VarDelButton_Click()
{
    StoreTexts();
    const Variable* variable = Selected();
    if (variable == nullptr) {
        Refuse(m_seams, "To delete a variable, first you must pick it from the list.");
        return;
    }
    const int deleted = m_variable;
    m_keys.erase(KeyOf(variable->name));
    Erase(m_variables, deleted);
    m_changed = true;
    m_view.RemoveVariable(deleted);
    Show(After(deleted, m_variables.size()), 0);
}

void LogicEditor::AddAnsButton_Click()
{
    StoreTexts();
    if (Selected() == nullptr) {
        Refuse(m_seams, "Before adding a choice, first select a variable.");
        return;
    }
    std::optional<std::string> name = AskName("Type the choice to be added.");
    Variable* variable = Selected();
    if (!name || variable == nullptr) {
        return;
    }
    if (variable->choiceKeys.count(KeyOf(*name)) != 0) {
        Refuse(m_seams, "There is already a choice with this name.");
        return;
    }
    if (ChoiceCount() >= Most) {
        ShowOverflow(m_seams.messages);
        return;
    }
    variable->choiceKeys.insert(KeyOf(*name));
    m_view.AppendChoice(*name);
    variable->choices.push_back({std::move(*name), {}});
    m_changed = true;
    ShowChoice(static_cast<int>(variable->choices.size()) - 1);
}

void LogicEditor::DelAnsButton_Click()
{
    StoreTexts();
    Variable* variable = Selected();
    if (variable == nullptr || variable->choices.empty()) {
        Refuse(m_seams, "Before deleting a choice, choose a variable that has some.");
        return;
    }
    const Choice* choice = SelectedChoice();
    if (choice == nullptr) {
        Refuse(m_seams, "To delete a choice, first you must pick it from the list.");
        return;
    }
    const int deleted = m_choice;
    variable->choiceKeys.erase(KeyOf(choice->name));
    Erase(variable->choices, deleted);
    m_changed = true;
    m_view.RemoveChoice(deleted);
    ShowChoice(After(deleted, variable->choices.size()));
}

void LogicEditor::KeywordInsertButton_Click(const std::string& keyword)
{
    if (keyword.empty()) {
        Refuse(m_seams, "To insert a keyword into the text box, first pick a keyword from the list.");
        return;
    }
    m_view.InsertIntoLogic(keyword);
}

void LogicEditor::InsertButton_Click()
{
    const Variable* variable = Selected();
    if (variable == nullptr) {
        Refuse(m_seams, "To insert a variable name into the text box, first pick a variable from the list.");
        return;
    }
    m_view.InsertIntoLogic(variable->name);
}

void LogicEditor::InsAdvButton_Click()
{
    const Choice* choice = SelectedChoice();
    if (choice == nullptr) {
        Refuse(m_seams,
               "To insert a choice, you must first select a variable and achoice from the pick lists.");
        return;
    }
    m_view.InsertIntoLogic(Selected()->name + "(" + choice->name + ")=");
}

} // namespace ls
