#include "cli/AdvisorOutput.h"

#include "advisor/AdvisorRunner.h"
#include "base/Messages.h"
#include "cli/CommandContext.h"
#include "cli/JsonWriter.h"
#include "cli/TerminalText.h"

#include <algorithm>
#include <string>
#include <vector>

namespace ls {

namespace {

using Kind = AdvisorEvent::Kind;

void WriteTexts(JsonWriter& json, std::string_view key, const std::vector<std::string>& texts)
{
    json.Key(key).BeginArray();
    for (const std::string& text : texts) {
        json.String(text);
    }
    json.EndArray();
}

void WriteBox(JsonWriter& json, const AdvisorEvent& event)
{
    json.Key("box").String(event.name).Key("icon");
    if (event.icon == Icon::None) {
        json.Null();
    } else {
        json.String(IconWord(event.icon));
    }
    json.Key("reply").String(ReplyWord(event.reply));
}

void WriteMembers(JsonWriter& json, const AdvisorEvent& event)
{
    switch (event.kind) {
    case Kind::Run:
        json.Key("run").Number(std::int64_t{event.run}).Key("topic").String(event.name);
        break;
    case Kind::NoAdvisor:
        json.Key("no_advisor").String(event.name);
        break;
    case Kind::Question:
        json.Key("question").String(event.name).Key("text").String(event.text);
        WriteTexts(json, "choices", event.choices);
        json.Key("derived").Bool(event.derived);
        break;
    case Kind::Answer:
        json.Key("answer").String(event.name);
        break;
    case Kind::InvalidAnswer:
        json.Key("invalid_answer").String(event.name);
        WriteTexts(json, "choices", event.choices);
        break;
    case Kind::Waiting:
        json.Key("waiting").String(event.name);
        break;
    case Kind::Trace:
        json.Key("trace").BeginObject();
        WriteTexts(json, "rules", event.rules);
        WriteTexts(json, "targets", event.targets);
        json.EndObject();
        break;
    case Kind::Box:
        WriteBox(json, event);
        break;
    case Kind::Text:
        json.Key("text").String(event.text);
        break;
    case Kind::Advice:
        json.Key("advice").String(event.name).Key("text").String(event.text);
        break;
    case Kind::Button:
        json.Key("button").String(event.name);
        break;
    case Kind::ProgramEnds:
        json.Key("program_ends").String(event.name);
        break;
    }
}

// Prints a text of several lines, each as a line of the output.
void PrintText(CommandContext& context, const std::string& text)
{
    const std::string lines = WithNewlines(text);
    for (std::size_t at = 0; at < lines.size();) {
        const std::size_t end = std::min(lines.find('\n', at), lines.size());
        context.Line(lines.substr(at, end - at));
        at = end + 1;
    }
}

void PrintQuestion(CommandContext& context, const AdvisorEvent& event)
{
    context.Line("");
    PrintText(context, event.text);
    for (std::size_t i = 0; i < event.choices.size(); ++i) {
        context.Line("  " + std::to_string(i + 1) + ") " + event.choices[i]);
    }
}

void PrintTrace(CommandContext& context, const AdvisorEvent& event)
{
    for (const std::string& rule : event.rules) {
        context.Line("    rule " + rule);
    }
    for (const std::string& target : event.targets) {
        context.Line("    goal " + target);
    }
}

} // namespace

void WriteEvent(JsonWriter& json, const AdvisorEvent& event)
{
    json.BeginObject();
    WriteMembers(json, event);
    json.EndObject();
}

void PrintEvent(CommandContext& context, const AdvisorEvent& event)
{
    switch (event.kind) {
    case Kind::Run:
        if (event.run > 1) {
            context.Line("");
        }
        context.Line("Advisor: " + event.name);
        break;
    case Kind::NoAdvisor:
        context.Line("The topic has no advisor.");
        break;
    case Kind::Question:
        PrintQuestion(context, event);
        break;
    case Kind::Answer:
        context.Line("> " + event.name);
        break;
    case Kind::InvalidAnswer:
        context.Line("> " + event.name);
        context.Line("This answer is not offered.");
        break;
    case Kind::Waiting:
        context.Line("No answer is left for this question.");
        break;
    case Kind::Trace:
        PrintTrace(context, event);
        break;
    case Kind::Text:
        context.Line("");
        PrintText(context, event.text);
        break;
    case Kind::Advice:
        context.Line("");
        context.Line("Advice " + event.name + ":");
        PrintText(context, event.text);
        break;
    case Kind::ProgramEnds:
        context.Line("The dialogue ended the program: " + event.name + ".");
        break;
    case Kind::Box:
    case Kind::Button:
        break;
    }
}

} // namespace ls
