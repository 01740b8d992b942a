#include "cli/ExploreOutput.h"

#include "base/CodePage.h"
#include "base/Text.h"
#include "check/AdvisorCoverage.h"
#include "cli/CommandContext.h"
#include "cli/JsonWriter.h"
#include "cli/TerminalText.h"

#include <algorithm>

namespace ls {

namespace {

using Kind = DialogueEnd::Kind;

bool IsDeadEnd(Kind kind)
{
    return kind != Kind::Advice && kind != Kind::ProgramEnds;
}

std::string_view Reason(Kind kind)
{
    switch (kind) {
    case Kind::NoText:
        return "no text for a question";
    case Kind::NoQuestion:
        return "no question";
    case Kind::LoadFailed:
        return "logic not loaded";
    default:
        return "no rule left";
    }
}

// "LIGHTS = YES, TANK = ? - unsure"
std::string AnswersText(const DialogueEnd& end)
{
    std::string text;
    for (const GivenAnswer& answer : end.answers) {
        text += (text.empty() ? "" : ", ") + FromBook(answer.var) + " = " + FromBook(answer.choice);
    }
    return text.empty() ? "at once" : "after " + text;
}

std::int64_t CountOf(const DialogueMap& map, bool (*is)(Kind))
{
    return std::count_if(map.ends.begin(), map.ends.end(), [is](const auto& end) { return is(end.kind); });
}

std::string Counted(std::int64_t count, const std::string& one, const std::string& many)
{
    return std::to_string(count) + " " + (count == 1 ? one : many);
}

// The text shown at the end of the dialogue, on one line.
std::string ShownText(const DialogueEnd& end)
{
    std::string text = FromBook(end.text);
    for (std::size_t at = 0; (at = text.find(LineEnd, at)) != std::string::npos;) {
        text.replace(at, LineEnd.size(), " ");
    }
    return text;
}

void PrintEnd(CommandContext& context, const DialogueEnd& end)
{
    const std::string answers = AnswersText(end);
    if (end.kind == Kind::Advice) {
        context.Line("Advice " + FromBook(end.name) + " " + answers);
        context.Line("    " + (end.text.empty() ? "(without a text)" : ShownText(end)));
    } else if (end.kind == Kind::ProgramEnds) {
        context.Line("The program ends " + answers + ": " + end.name);
    } else {
        context.Line("Dead end " + answers + ": " + std::string(Reason(end.kind)));
        if (!end.text.empty()) {
            context.Line("    " + ShownText(end));
        }
    }
    for (const std::string& box : end.boxes) {
        context.Line("    Box: " + box);
    }
}

void PrintSummary(CommandContext& context, const AdvisorCoverage& coverage)
{
    const DialogueMap& map = coverage.map;
    const auto never = static_cast<std::int64_t>(coverage.neverReached.size());
    context.Line(
        Counted(CountOf(map, [](Kind kind) { return kind == Kind::Advice; }), "piece of advice",
                "pieces of advice") +
        " reached, " + std::to_string(never) + " not; " +
        Counted(CountOf(map, IsDeadEnd), "dead end", "dead ends") + "; " +
        Counted(CountOf(map, [](Kind kind) { return kind == Kind::ProgramEnds; }), "fault", "faults") +
        " that would end the program; " + Counted(map.states, "state", "states") + " of the dialogue");
    if (map.cut) {
        context.Line("The search was cut: there may be more. --limit sets how many states are looked at.");
    }
}

void PrintCoverage(CommandContext& context, const std::string& title, const AdvisorCoverage& coverage)
{
    const DialogueMap& map = coverage.map;
    context.Line("Advisor: " + title);
    const auto print = [&](bool (*is)(Kind)) {
        for (const DialogueEnd& end : map.ends) {
            if (is(end.kind)) {
                PrintEnd(context, end);
            }
        }
    };
    print([](Kind kind) { return kind == Kind::Advice; });
    for (const std::string& id : coverage.neverReached) {
        context.Line((map.cut ? "Not reached so far: " : "Never reached: ") + FromBook(id));
    }
    print(IsDeadEnd);
    print([](Kind kind) { return kind == Kind::ProgramEnds; });
    PrintSummary(context, coverage);
}

void WriteWay(JsonWriter& json, const DialogueEnd& end)
{
    json.Key("answers").BeginArray();
    for (const GivenAnswer& answer : end.answers) {
        json.BeginObject()
            .Key("question")
            .BookText(answer.var)
            .Key("answer")
            .BookText(answer.choice)
            .EndObject();
    }
    json.EndArray().Key("boxes").BeginArray();
    for (const std::string& box : end.boxes) {
        json.String(box);
    }
    json.EndArray().EndObject();
}

void WriteEnds(JsonWriter& json, std::string_view key, const DialogueMap& map, bool (*is)(Kind))
{
    json.Key(key).BeginArray();
    for (const DialogueEnd& end : map.ends) {
        if (!is(end.kind)) {
            continue;
        }
        json.BeginObject();
        if (end.kind == Kind::Advice) {
            json.Key("advice").BookText(end.name).Key("text").BookText(end.text);
        } else if (end.kind == Kind::ProgramEnds) {
            json.Key("reason").String(end.name);
        } else {
            json.Key("reason").String(Reason(end.kind)).Key("text").BookText(end.text);
        }
        WriteWay(json, end);
    }
    json.EndArray();
}

void WriteMembers(JsonWriter& json, const std::string& title, const AdvisorCoverage& coverage)
{
    const DialogueMap& map = coverage.map;
    json.Key("topic").String(title);
    json.Key("target").BookText(coverage.target);
    json.Key("states").Number(std::int64_t{map.states});
    json.Key("cut").Bool(map.cut);
    WriteEnds(json, "advice", map, [](Kind kind) { return kind == Kind::Advice; });
    json.Key("never_reached").BeginArray();
    for (const std::string& id : coverage.neverReached) {
        json.BookText(id);
    }
    json.EndArray();
    WriteEnds(json, "dead_ends", map, IsDeadEnd);
    WriteEnds(json, "program_ends", map, [](Kind kind) { return kind == Kind::ProgramEnds; });
}

} // namespace

void WriteCoverage(CommandContext& context, const std::string& title, const AdvisorCoverage& coverage)
{
    if (context.Json()) {
        context.WriteJson([&](JsonWriter& json) { WriteMembers(json, title, coverage); });
    } else {
        PrintCoverage(context, title, coverage);
    }
}

} // namespace ls
