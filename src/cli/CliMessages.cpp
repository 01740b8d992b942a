#include "cli/CliMessages.h"

#include "cli/JsonWriter.h"
#include "cli/ProgressLine.h"
#include "cli/TerminalText.h"

#include <ostream>

namespace ls {

Reply CliMessages::Answer(const std::string& text, Buttons buttons) const
{
    if (buttons == Buttons::Ok) {
        return Reply::Ok;
    }
    for (const auto& [beginning, reply] : m_answers) {
        if (text.starts_with(beginning)) {
            return reply;
        }
    }
    return SafeReply(buttons);
}

void CliMessages::Add(Shown shown)
{
    m_progress->Erase();
    const std::string_view icon = IconWord(shown.icon);
    *m_err << icon << (icon.empty() ? "" : ": ") << ForStream(shown.text, m_errIsTerminal) << '\n';
    m_shown.push_back(std::move(shown));
}

Reply CliMessages::ShowBox(const std::string& text, Icon icon, Buttons buttons, const std::string& /*title*/)
{
    const Reply reply = Answer(text, buttons);
    Add({icon, text, reply, buttons != Buttons::Ok});
    return reply;
}

std::optional<std::string> CliMessages::ShowInputBox(const std::string& prompt, const std::string& /*title*/,
                                                     const std::string& /*initial*/)
{
    Add({Icon::Question, prompt, Reply::Cancel, true});
    return std::nullopt;
}

void CliMessages::Write(JsonWriter& json) const
{
    json.BeginArray();
    for (const Shown& shown : m_shown) {
        json.BeginObject().Key("icon");
        if (shown.icon == Icon::None) {
            json.Null();
        } else {
            json.String(IconWord(shown.icon));
        }
        json.Key("text").String(shown.text).Key("reply").String(ReplyWord(shown.reply)).EndObject();
    }
    json.EndArray();
}

} // namespace ls
