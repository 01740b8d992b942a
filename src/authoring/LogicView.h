#pragma once

#include <string>
#include <vector>

namespace ls {

/// The three text boxes of the logic editor.
enum class LogicBox
{
    Logic,    ///< LogicTextbox
    Question, ///< VQuestionBox
    Advice,   ///< VCAnswerBox
};

/// The logic editor's window, as `LogicEditor` sees it. Texts are UTF-8. Lines end with CR LF in texts that
/// the view gets, and with any line end in texts that it returns.
///
/// Its calls cause no events: `VarCombo_Click` and `AnswerCombo_Click` are only for choices of the author.
/// List indices count from 0; -1 is none.
class LogicView
{
public:
    virtual ~LogicView() = default;

    [[nodiscard]] virtual std::string Text(LogicBox box) const = 0;
    virtual void SetText(LogicBox box, const std::string& text) = 0;

    /// A box without a selected variable or choice is disabled: its text would belong to nothing.
    virtual void Enable(LogicBox box, bool enabled) = 0;

    /// Replaces the selection in the logic text, or inserts at the caret.
    virtual void InsertIntoLogic(const std::string& text) = 0;

    /// Refills `VarCombo` or `AnswerCombo`; nothing is selected.
    virtual void SetVariables(const std::vector<std::string>& names) = 0;
    virtual void SetChoices(const std::vector<std::string>& choices) = 0;

    /// Appends an entry; the selection does not change.
    virtual void AppendVariable(const std::string& name) = 0;
    virtual void AppendChoice(const std::string& choice) = 0;

    virtual void RemoveVariable(int index) = 0;
    virtual void RemoveChoice(int index) = 0;

    virtual void SelectVariable(int index) = 0;
    virtual void SelectChoice(int index) = 0;

    /// Puts the caret into a box, at the beginning of a line (from 1; 0 does not move it).
    virtual void GoTo(LogicBox box, int line) = 0;

    /// Shows the block's text, read-only. Returns when that window is closed.
    virtual void ShowSpecification(const std::string& text) = 0;
};

} // namespace ls
