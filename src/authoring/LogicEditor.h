#pragma once

#include "authoring/LogicBlock.h"
#include "authoring/LogicView.h"
#include "base/Seams.h"
#include "book/BookWords.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace ls {

struct Book;

/// What `KeywordCombo` lists.
inline constexpr std::array<const char*, 3> LogicKeywords = {AssumeWord.data(), TargetWord.data(),
                                                             DefineWord.data()};

/// The rules of the logic editor. It edits the logic block of the topic on show, which must be in memory. It
/// gets the events of the form and shows texts and lists through the view.
///
/// The texts in the boxes belong to the selected variable and choice. They are stored before anything is
/// selected, added, removed, shown or saved, so no order of events can lose one.
class LogicEditor
{
public:
    LogicEditor(Book& book, const Seams& seams, LogicView& view) : m_book(book), m_seams(seams), m_view(view)
    {
    }

    /// Parses the block and fills boxes and lists; nothing is selected. False, after the "Overflow" box, for
    /// a block with more than 32,767 variables or choices; the form must not open then.
    [[nodiscard]] bool Form_Load();

    /// The author selected an entry of a list.
    void VarCombo_Click(int index);
    void AnswerCombo_Click(int index);

    void VQuestionBox_LostFocus();
    void VCAnswerBox_LostFocus();

    void VarAddButton_Click();
    void VarDelButton_Click();
    void AddAnsButton_Click();
    void DelAnsButton_Click();

    /// F2, F3, F4. The keyword is the text of `KeywordCombo`, empty when none is chosen.
    void KeywordInsertButton_Click(const std::string& keyword);
    void InsertButton_Click();
    void InsAdvButton_Click();

    void ShowSpecItem_Click();

    /// Done: true if the block was stored and the form is to close.
    ///
    /// A warning names the first character that books cannot hold. One question lists the parts of the old
    /// block that would be dropped, another one the typed text that would be read back differently. After a
    /// warning or Cancel the editor stays open.
    [[nodiscard]] bool SaveButton_Click();

    /// Whether anything differs from what was loaded; for `MayDropText` when the window closes without Done.
    [[nodiscard]] bool Changed();

    /// The block as Done would write it, as book text. Nothing if a text has a character that books cannot
    /// hold. Shows no message.
    [[nodiscard]] std::optional<LogicBlock> Block();

    /// The text of the block as Done would write it, in UTF-8, including characters that books cannot hold.
    /// Shows no message.
    [[nodiscard]] std::string RunningText();

private:
    struct Choice
    {
        std::string name;
        std::string advice;
    };
    struct Variable
    {
        std::string name;
        std::string question;
        std::vector<Choice> choices;
        std::unordered_set<std::string> choiceKeys; ///< the names as the advisor compares them
    };
    struct Place
    {
        LogicBox box = LogicBox::Logic;
        int variable = -1;
        int choice = -1;
    };
    struct Unwritable
    {
        Place place;
        int line = 0;
        std::string where; ///< "Line 3 of the logic text"
        char32_t character = 0;
    };
    class BookTexts;

    void Fill(const LogicBlock& block);
    [[nodiscard]] Variable* Selected();
    [[nodiscard]] Choice* SelectedChoice();
    [[nodiscard]] std::size_t ChoiceCount() const;
    void StoreTexts();
    void Show(int variable, int choice);
    void ShowChoice(int choice);
    void GoTo(const Place& place, int line);
    [[nodiscard]] std::optional<std::string> AskName(const std::string& prompt);
    [[nodiscard]] std::optional<LogicBlock> ToBookText(Unwritable* unwritable) const;
    [[nodiscard]] std::optional<LogicBlock> WritableBlock();
    [[nodiscard]] bool MayLose();
    [[nodiscard]] bool MayMisread(const LogicBlock& block);

    Book& m_book;
    Seams m_seams;
    LogicView& m_view;

    std::string m_logicText;
    std::vector<Variable> m_variables;
    std::unordered_set<std::string> m_keys; ///< the variables' names as the advisor compares them
    std::vector<BareEntry> m_bareEntries;
    std::vector<LostPart> m_lost;
    int m_variable = -1;
    int m_choice = -1;
    bool m_changed = false;
};

} // namespace ls
