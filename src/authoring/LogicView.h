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

/// The logic editor's window as its rules see it: they decide, it only shows. Texts are UTF-8; a box gives
/// its lines parted by any line end, and gets them parted by CR LF.
///
/// What it is told here it shows without answering by an event: `VarCombo_Click` and `AnswerCombo_Click` are
/// for the author's own choices. Indices of the lists count from 0; -1 is none.
class LogicView
{
public:
    virtual ~LogicView() = default;

    [[nodiscard]] virtual std::string Text(LogicBox box) const = 0;
    virtual void SetText(LogicBox box, const std::string& text) = 0;

    /// A box for something that is not selected takes no text: it would belong to nothing.
    virtual void Enable(LogicBox box, bool enabled) = 0;

    /// Replaces what is selected in the logic text, or inserts at the caret.
    virtual void InsertIntoLogic(const std::string& text) = 0;

    /// Fills `VarCombo` or `AnswerCombo` anew, nothing selected.
    virtual void SetVariables(const std::vector<std::string>& names) = 0;
    virtual void SetChoices(const std::vector<std::string>& choices) = 0;

    /// Adds behind the last entry; the selection stays.
    virtual void AppendVariable(const std::string& name) = 0;
    virtual void AppendChoice(const std::string& choice) = 0;

    virtual void RemoveVariable(int index) = 0;
    virtual void RemoveChoice(int index) = 0;

    virtual void SelectVariable(int index) = 0;
    virtual void SelectChoice(int index) = 0;

    /// Puts the caret into a box, at a line (from 1; 0 leaves it where it is).
    virtual void GoTo(LogicBox box, int line) = 0;

    /// Shows the block's text, read-only, and returns when that window is closed.
    virtual void ShowSpecification(const std::string& text) = 0;
};

} // namespace ls
