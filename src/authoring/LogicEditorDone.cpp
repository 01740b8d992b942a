#include "authoring/LogicEditor.h"

#include "authoring/LogicFaults.h"
#include "authoring/TextEditing.h"
#include "base/CodePage.h"
#include "base/Messages.h"
#include "base/Text.h"
#include "book/Book.h"

#include <utility>

namespace ls {

// Turns the editor's texts into book text. Stops at the first character that books cannot hold and reports
// its place.
class LogicEditor::BookTexts
{
public:
    explicit BookTexts(Unwritable* unwritable) : m_unwritable(unwritable) {}

    std::string Take(const std::string& utf8, Place place, const std::string& owner)
    {
        Unmapped unmapped;
        std::optional<std::string> text = m_ok ? ToBook(utf8, &unmapped) : std::nullopt;
        if (!text && m_ok && m_unwritable != nullptr) {
            *m_unwritable = {place, unmapped.line, "Line " + std::to_string(unmapped.line) + " of " + owner,
                             unmapped.character};
        }
        m_ok = text.has_value();
        return std::move(text).value_or(std::string());
    }

    [[nodiscard]] bool Ok() const { return m_ok; }

private:
    Unwritable* m_unwritable;
    bool m_ok = true;
};

void LogicEditor::ShowSpecItem_Click()
{
    StoreTexts();
    const std::optional<LogicBlock> block = WritableBlock();
    const std::optional<std::string> text = block ? BuildLogicBlock(*block, m_seams) : std::nullopt;
    if (text) {
        m_view.ShowSpecification(FromBook(*text));
    }
}

bool LogicEditor::SaveButton_Click()
{
    StoreTexts();
    const std::optional<LogicBlock> block = WritableBlock();
    std::optional<std::string> text = block ? BuildLogicBlock(*block, m_seams) : std::nullopt;
    if (!text || !MayLose() || !MayMisread(*block)) {
        return false;
    }
    m_book.TopicRecs(m_book.CurrentTopicNo).Logic = std::move(*text);
    m_book.BookChanged = true;
    m_seams.messages.MsgBox("The changes will not take effect until you save the file.", Icon::Information);
    return true;
}

bool LogicEditor::Changed()
{
    StoreTexts();
    return m_changed;
}

std::optional<LogicBlock> LogicEditor::Block()
{
    StoreTexts();
    return ToBookText(nullptr);
}

std::string LogicEditor::RunningText()
{
    StoreTexts();
    LogicBlock block;
    // `BuildLogicBlock` refuses an empty text with a box.
    block.logicText = m_logicText.empty() ? std::string(LineEnd) : m_logicText;
    for (const Variable& variable : m_variables) {
        block.variables.push_back({variable.name, variable.question});
        for (const Choice& choice : variable.choices) {
            block.choices.push_back({variable.name, choice.name, choice.advice});
        }
    }
    for (const BareEntry& entry : m_bareEntries) {
        block.bareEntries.push_back({FromBook(entry.identifier), FromBook(entry.text)});
    }
    return BuildLogicBlock(block, m_seams).value_or(std::string());
}

bool LogicEditor::MayLose()
{
    return m_lost.empty() ||
           m_seams.messages.MsgBox(LostPartsQuestion(m_lost), Icon::Question, Buttons::OkCancel) == Reply::Ok;
}

bool LogicEditor::MayMisread(const LogicBlock& block)
{
    const std::vector<LogicFault> faults = FindLogicFaults(block);
    if (faults.empty() || m_seams.messages.MsgBox(LogicFaultsQuestion(faults), Icon::Question,
                                                  Buttons::OkCancel) == Reply::Ok) {
        return true;
    }
    const LogicFault& first = faults.front();
    GoTo({first.box, first.variable, first.choice}, first.line);
    return false;
}

void LogicEditor::GoTo(const Place& place, int line)
{
    if (place.variable >= 0) {
        Show(place.variable, place.choice < 0 ? 0 : place.choice);
    }
    m_view.GoTo(place.box, line);
}

// The block as book text. Nothing after a message: there are no logic lines, or a text has a character that
// books cannot hold; then the caret is put there.
std::optional<LogicBlock> LogicEditor::WritableBlock()
{
    if (m_logicText.empty()) {
        m_seams.messages.MsgBox(NoLogicMessage, Icon::Exclamation);
        return std::nullopt;
    }
    Unwritable unwritable{};
    std::optional<LogicBlock> block = ToBookText(&unwritable);
    if (!block) {
        ShowUnmapped(m_seams, unwritable.where, unwritable.character);
        GoTo(unwritable.place, unwritable.line);
    }
    return block;
}

std::optional<LogicBlock> LogicEditor::ToBookText(Unwritable* unwritable) const
{
    BookTexts texts(unwritable);
    LogicBlock block;
    block.logicText = texts.Take(m_logicText, {LogicBox::Logic, -1, -1}, "the logic text");
    for (std::size_t v = 0; v < m_variables.size(); ++v) {
        const Variable& variable = m_variables[v];
        const auto place = static_cast<int>(v);
        const std::string name = ToBook(variable.name).value_or(std::string());
        block.variables.push_back({name, texts.Take(variable.question, {LogicBox::Question, place, -1},
                                                    "the question for \"" + variable.name + "\"")});
        for (std::size_t c = 0; c < variable.choices.size(); ++c) {
            const Choice& choice = variable.choices[c];
            const std::string owner = "the advice for \"" + variable.name + "(" + choice.name + ")\"";
            block.choices.push_back(
                {name, ToBook(choice.name).value_or(std::string()),
                 texts.Take(choice.advice, {LogicBox::Advice, place, static_cast<int>(c)}, owner)});
        }
    }
    block.bareEntries = m_bareEntries;
    return texts.Ok() ? std::optional(std::move(block)) : std::nullopt;
}

} // namespace ls
