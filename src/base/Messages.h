#pragma once

#include "base/ProgramEnd.h"

#include <optional>
#include <string>
#include <string_view>

namespace ls {

/// The title of every box: the program's name as users know it.
inline constexpr std::string_view AppTitle = "Lodestar Advisor";

/// Warning and Exclamation show the same picture; each message names one of them.
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

/// The reply that changes nothing: Cancel, No, or OK where the box has no other button.
[[nodiscard]] Reply SafeReply(Buttons buttons);

/// The icon's word: "critical", "exclamation", "warning", "information", "question"; empty for none.
[[nodiscard]] std::string_view IconWord(Icon icon);

/// "OK", "Cancel", "Yes" or "No".
[[nodiscard]] std::string_view ReplyWord(Reply reply);

/// Shows messages to the user and asks questions. Texts are UTF-8: convert book text with `FromBook`, a path
/// with `FromPath`.
///
/// After a fault has ended the program nothing is shown, and every question gets its safe answer.
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

/// The message of commands that need a displayed topic.
inline constexpr const char* DisplayTopicFirst =
    "Please display the topic first by choosing it from the list and clicking Go.";

/// Shows the box for a count past 32,767. The operation that overflowed calls it once.
void ShowOverflow(Messages& messages);

} // namespace ls
