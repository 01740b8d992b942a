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
    bool derived = false;             ///< a rule concludes the variable
};

/// Shows the dialogue. The dialogue's rules have no other output except messages.
class AdvisorView
{
public:
    virtual ~AdvisorView() = default;

    /// Shows the question in the text box and its choices in the list; the empty one is selected.
    virtual void ShowQuestion(const Question& question) = 0;

    /// Shows the advice with that identifier in the text box and hides the list with its label. The text is
    /// empty if none was found.
    virtual void ShowAdvice(const std::string& identifier, const std::string& text) = 0;

    /// Shows another text in the text box, for example why there is no question.
    virtual void ShowText(const std::string& text) = 0;

    /// Changes the button's caption: "Close" when the dialogue is over.
    virtual void SetButtonCaption(const std::string& caption) = 0;

    /// Reports that the rules have taken the user's answer, before its result is shown.
    virtual void AnswerTaken() {}

    /// Closes the window.
    virtual void Unload() = 0;
};

} // namespace ls
