#pragma once

#include "base/ProgramEnd.h"

#include <optional>
#include <string>
#include <string_view>

namespace ls {

/// The title of every box, and the program's name as its people read it.
inline constexpr std::string_view AppTitle = "Lodestar Advisor";

/// Warning and Exclamation show the same picture; they are kept apart as the messages name them.
enum class Icon
{
    None,
    Critical,
    Exclamation,
    Warning,
    Information,
    Question
};

enum class Buttons
{
    Ok,
    OkCancel,
    YesNo,
    YesNoCancel
};

enum class Reply
{
    Ok,
    Cancel,
    Yes,
    No
};

/// The reply that changes nothing: Cancel, No, or OK where nothing is asked.
[[nodiscard]] Reply SafeReply(Buttons buttons);

/// The icon's word: "critical", "exclamation", "warning", "information", "question"; empty for none.
[[nodiscard]] std::string_view IconWord(Icon icon);

/// "OK", "Cancel", "Yes" or "No".
[[nodiscard]] std::string_view ReplyWord(Reply reply);

/// Everything that is said to or asked of the user. Texts are UTF-8: book text enters by `FromBook`, a path
/// by `FromPath`.
///
/// Once a fault has ended the program nothing is shown any more, and every question gets its safe answer.
class Messages
{
public:
    explicit Messages(const ProgramEnd& end) : m_end(&end) {}
    virtual ~Messages() = default;
    Messages(const Messages&) = delete;
    Messages& operator=(const Messages&) = delete;

    /// A box titled `AppTitle`.
    Reply MsgBox(const std::string& text, Icon icon, Buttons buttons = Buttons::Ok)
    {
        return m_end->Ended() ? SafeReply(buttons) : ShowBox(text, icon, buttons, std::string(AppTitle));
    }

    /// Asks for a line of text; nothing when the user cancels.
    std::optional<std::string> InputBox(const std::string& prompt, const std::string& title,
                                        const std::string& initial)
    {
        return m_end->Ended() ? std::nullopt : ShowInputBox(prompt, title, initial);
    }

protected:
    virtual Reply ShowBox(const std::string& text, Icon icon, Buttons buttons, const std::string& title) = 0;
    virtual std::optional<std::string> ShowInputBox(const std::string& prompt, const std::string& title,
                                                    const std::string& initial) = 0;

private:
    const ProgramEnd* m_end;
};

/// The reminder of commands that need a topic on show.
inline constexpr const char* DisplayTopicFirst =
    "Please display the topic first by choosing it from the list and clicking Go.";

/// The box for a count that passed 32,767; shown once by the operation that met it.
void ShowOverflow(Messages& messages);

} // namespace ls
