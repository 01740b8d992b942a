#pragma once

#include "support/Json.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ls::test {

/// The texts, each in brackets.
inline std::string JoinedTexts(const std::vector<std::string>& texts)
{
    std::string joined;
    for (const std::string& text : texts) {
        joined += "[" + text + "]";
    }
    return joined;
}

/// One line for a dialogue's event in JSON.
inline std::string EventLine(const Json& event)
{
    if (event.Has("run")) {
        return "run " + std::to_string(event["run"].Int()) + " " + event["topic"].String();
    }
    if (event.Has("question")) {
        return "question " + event["question"].String() + (event["derived"].Bool() ? " derived" : "") + " " +
               JoinedTexts(event["choices"].Strings()) + ": " + event["text"].String();
    }
    if (event.Has("invalid_answer")) {
        return "invalid answer " + event["invalid_answer"].String() + " " +
               JoinedTexts(event["choices"].Strings());
    }
    if (event.Has("box")) {
        EXPECT_EQ(event["icon"].IsNull(), event["icon"].String().empty());
        return "box " + event["icon"].String() + "|" + event["box"].String() + "|" + event["reply"].String();
    }
    if (event.Has("advice")) {
        return "advice " + event["advice"].String() + ": " + event["text"].String();
    }
    if (event.Has("text")) {
        return "text " + event["text"].String();
    }
    if (event.Has("no_advisor")) {
        return "no advisor " + event["no_advisor"].String();
    }
    if (event.Has("answer")) {
        return "answer " + event["answer"].String();
    }
    if (event.Has("waiting")) {
        return "waiting " + event["waiting"].String();
    }
    if (event.Has("button")) {
        return "button " + event["button"].String();
    }
    return "program ends: " + event["program_ends"].String();
}

} // namespace ls::test
