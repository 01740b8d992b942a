#pragma once

#include "base/Messages.h"

#include <iosfwd>
#include <string>
#include <utility>
#include <vector>

namespace ls {

class JsonWriter;
class ProgressLine;

/// Boxes on the command line. Each is written to standard error as "icon: text" and is stored for the JSON
/// output. A question gets the answer that an option set for it, else its safe answer.
class CliMessages : public Messages
{
public:
    /// A box that was shown.
    struct Shown
    {
        Icon icon = Icon::None;
        std::string text; ///< UTF-8
        Reply reply = Reply::Ok;
        bool asked = false;
    };

    CliMessages(const ProgramEnd& end, std::ostream& err, bool errIsTerminal, ProgressLine& progress)
        : Messages(end), m_err(&err), m_errIsTerminal(errIsTerminal), m_progress(&progress)
    {
    }

    /// Sets the reply for questions whose text begins with `textBeginning`.
    void AnswerTo(std::string textBeginning, Reply reply)
    {
        m_answers.emplace_back(std::move(textBeginning), reply);
    }

    [[nodiscard]] const std::vector<Shown>& All() const { return m_shown; }

    /// The value of "messages": a list of {"icon", "text", "reply"}.
    void Write(JsonWriter& json) const;

protected:
    Reply ShowBox(const std::string& text, Icon icon, Buttons buttons, const std::string& title) override;
    std::optional<std::string> ShowInputBox(const std::string& prompt, const std::string& title,
                                            const std::string& initial) override;

private:
    [[nodiscard]] Reply Answer(const std::string& text, Buttons buttons) const;
    void Add(Shown shown);

    std::ostream* m_err;
    bool m_errIsTerminal;
    ProgressLine* m_progress;
    std::vector<std::pair<std::string, Reply>> m_answers;
    std::vector<Shown> m_shown;
};

} // namespace ls
