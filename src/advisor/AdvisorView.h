#pragma once

#include <string>
#include <vector>

namespace ls {

/// A question with its choices. All texts are book text.
struct Question
{
    std::string var;
    std::string text;
    std::vector<std::string> choices; ///< the first is empty; "? - unsure" follows for a derived variable
    bool derived = false;             ///< some rule concludes the variable
};

/// What shows the dialogue. With the messages it is the only way out of its rules.
class AdvisorView
{
public:
    virtual ~AdvisorView() = default;

    /// Shows the question in the text box and its choices in the list, the empty one selected.
    virtual void ShowQuestion(const Question& question) = 0;

    /// Shows the advice of that identifier in the text box and hides the list and its label. The text is
    /// empty when none was found.
    virtual void ShowAdvice(const std::string& identifier, const std::string& text) = 0;

    /// Shows a text in the text box, e.g. why there is no question.
    virtual void ShowText(const std::string& text) = 0;

    /// Gives the button another caption: "Close" when the dialogue is over.
    virtual void SetButtonCaption(const std::string& caption) = 0;

    /// Tells that the reader's answer was taken up by the rules, before what follows from it is shown.
    virtual void AnswerTaken() {}

    /// Closes the window.
    virtual void Unload() = 0;
};

} // namespace ls
