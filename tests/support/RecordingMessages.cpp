#include "support/RecordingMessages.h"

#include <gtest/gtest.h>

#include <utility>

namespace ls::test {

std::string IconName(Icon icon)
{
    switch (icon) {
    case Icon::Critical:
        return "critical";
    case Icon::Exclamation:
        return "exclamation";
    case Icon::Warning:
        return "warning";
    case Icon::Information:
        return "information";
    case Icon::Question:
        return "question";
    case Icon::None:
        break;
    }
    return "none";
}

namespace {

std::string ButtonsName(Buttons buttons)
{
    switch (buttons) {
    case Buttons::OkCancel:
        return "|OKCancel";
    case Buttons::YesNo:
        return "|YesNo";
    case Buttons::YesNoCancel:
        return "|YesNoCancel";
    case Buttons::Ok:
        break;
    }
    return "";
}

} // namespace

RecordingMessages::~RecordingMessages()
{
    EXPECT_TRUE(replies.empty()) << replies.size() << " expected boxes never came";
    EXPECT_TRUE(inputs.empty()) << inputs.size() << " expected input boxes never came";
}

std::vector<std::string> RecordingMessages::Take()
{
    return std::exchange(boxes, {});
}

Reply RecordingMessages::ShowBox(const std::string& text, Icon icon, Buttons buttons,
                                 const std::string& title)
{
    boxes.push_back(IconName(icon) + "|" + title + "|" + text + ButtonsName(buttons));
    if (buttons == Buttons::Ok) {
        return Reply::Ok;
    }
    if (replies.empty()) {
        ADD_FAILURE() << "a box asked and the script has no reply: " << boxes.back();
        return SafeReply(buttons);
    }
    const Reply reply = replies.front();
    replies.pop_front();
    return reply;
}

std::optional<std::string> RecordingMessages::ShowInputBox(const std::string& prompt,
                                                           const std::string& title,
                                                           const std::string& initial)
{
    boxes.push_back("input|" + title + "|" + prompt + "|" + initial);
    if (inputs.empty()) {
        ADD_FAILURE() << "an input box came and the script has no answer: " << boxes.back();
        return std::nullopt;
    }
    std::optional<std::string> input = inputs.front();
    inputs.pop_front();
    return input;
}

} // namespace ls::test
