#include "base/CodePage.h"
#include "cli/CommandContext.h"
#include "cli/Commands.h"
#include "cli/JsonWriter.h"
#include "cli/RunOutput.h"
#include "cli/TerminalSurface.h"
#include "render/text/DrawLines.h"
#include "render/text/RunList.h"
#include "render/text/ShowTopic.h"
#include "render/text/WrapSegment.h"

#include <algorithm>
#include <cstdio>

namespace ls {

namespace {

constexpr std::string_view Width = "--width";
constexpr std::string_view Runs = "--runs";
constexpr std::string_view First = "--first";
constexpr std::string_view Rows = "--rows";
constexpr int UsualWidth = 80;

int WidthOf(const CommandContext& context)
{
    const int columns = context.Env().columns > 0 ? context.Env().columns : UsualWidth;
    return context.Args().Number(Width, std::clamp(columns, LeastLineWidth, Count16::Max));
}

// Draws the rows that --first and --rows ask for; all rows without them.
void Draw(const CommandContext& context, TextSurface& surface, const ShownTopic& shown, float version)
{
    const int first = context.Args().Number(First, 1);
    const int rows = context.Args().Number(Rows, Count16::Max);
    DrawRows(surface, shown.lines, first, std::min(rows, shown.lines.Count - first + 1), version);
}

void WriteTopicJson(CommandContext& context, const ShownTopic& shown)
{
    context.WriteJson(
        [&shown](JsonWriter& json) {
            json.Key("count").Number(std::int64_t{shown.lines.Count});
            json.Key("lines").BeginArray();
            for (int i = 1; i <= shown.lines.Count; ++i) {
                json.BookText(shown.lines(i));
            }
            json.EndArray();
            json.Key("xref_button").Bool(shown.xrefButton);
            json.Key("advisor_button").Bool(shown.advisorButton);
            json.Key("logic_pos").Number(shown.logicPos);
        },
        true);
}

// A run as a line for people: "12:5 b-u #7f0000 |Title|", with "end" when it ends its row.
std::string RunText(const CommandContext& context, const Run& run)
{
    char colour[8];
    std::snprintf(colour, sizeof colour, "#%02x%02x%02x", unsigned{run.colour.red},
                  unsigned{run.colour.green}, unsigned{run.colour.blue});
    const std::string styles = {run.bold ? 'b' : '-', run.italic ? 'i' : '-', run.underline ? 'u' : '-'};
    return std::to_string(run.row) + ":" + std::to_string(run.firstColumn) + " " + styles + " " + colour +
           " |" + context.Shown(run.text) + "|" + (run.endRow ? " end" : "");
}

void WriteRuns(CommandContext& context, const ShownTopic& shown)
{
    RunList list(WidthOf(context), Count16::Max);
    Draw(context, list, shown, context.TheBook().BookVersion);
    if (context.Json()) {
        context.WriteJson([&list](JsonWriter& json) {
            json.Key("runs").BeginArray();
            for (const Run& run : list.Runs()) {
                WriteRun(json, run);
            }
            json.EndArray();
        });
        return;
    }
    for (const Run& run : list.Runs()) {
        context.Line(RunText(context, run));
    }
}

void WriteDrawn(CommandContext& context, const ShownTopic& shown)
{
    TerminalSurface surface(context.Env().out, {context.Env().outIsTerminal, ShowsStyles(context.Env()),
                                                WidthOf(context), Count16::Max});
    Draw(context, surface, shown, context.TheBook().BookVersion);
    surface.EndRow();
}

// Prepares the chosen topic. `Fault` after a message.
Status Prepare(CommandContext& context, ShownTopic& shown)
{
    std::string name;
    Count16 number;
    if (const Status status = context.ChooseTopic(name, number); status != Status::Done) {
        return status;
    }
    const Book& book = context.TheBook();
    const std::string asked = name;
    switch (ShowTopic(book, context.TheSeams(), name, number, WidthOf(context), shown)) {
    case ShowResult::Shown:
        return Status::Done;
    case ShowResult::Nothing:
        return context.Fail("Topic [" + FromBook(asked) + "] was not found.", Icon::Warning);
    case ShowResult::Cleared:
        break;
    }
    return Status::Fault;
}

bool OptionsAgree(CommandContext& context)
{
    const Arguments& args = context.Args();
    if (context.Json() && !args.Has(Runs) && (args.Has(First) || args.Has(Rows))) {
        context.WrongUsage("--first and --rows go with --runs in JSON, where \"lines\" is the whole topic");
        return false;
    }
    return context.NamesTopic();
}

Status RunShow(CommandContext& context)
{
    if (!OptionsAgree(context)) {
        return Status::Usage;
    }
    if (context.OpenTheBook() != Opening::Done) {
        return context.GiveUp();
    }
    ShownTopic shown;
    const Status status = Prepare(context, shown);
    if (status != Status::Done) {
        return status == Status::Usage ? status : context.GiveUp();
    }
    if (context.Args().Has(Runs)) {
        WriteRuns(context, shown);
    } else if (context.Json()) {
        WriteTopicJson(context, shown);
    } else {
        WriteDrawn(context, shown);
    }
    return Status::Done;
}

} // namespace

CommandSpec ShowCommand()
{
    return {"show",
            "BOOK TITLE",
            1,
            2,
            "Shows a topic, wrapped, with its styles where the output is a terminal",
            "Without --width the topic is as wide as the terminal, else 80 characters. As in the desktop\n"
            "program styles are plain at the line of --first, whatever was opened above it.",
            {{Width, "W", "characters in a line", LeastLineWidth, Count16::Max},
             {Runs, "", "the pieces that are drawn, each with its style"},
             {First, "F", "begin with display line F", 1, Count16::Max},
             {Rows, "R", "draw no more than R display lines", 1, Count16::Max},
             NumberOption,
             JsonOption,
             PlainOption},
            RunShow};
}

} // namespace ls
