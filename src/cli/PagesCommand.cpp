#include "cli/CommandContext.h"
#include "cli/Commands.h"
#include "cli/JsonWriter.h"
#include "cli/RunOutput.h"
#include "cli/TerminalSurface.h"
#include "render/print/PageRecorder.h"
#include "render/print/PrintSettings.h"
#include "render/print/PrintTopic.h"

#include <ostream>

namespace ls {

namespace {

constexpr std::string_view PageSize = "--page";
constexpr std::string_view Printable = "--printable";
constexpr std::string_view LineHeight = "--line-height";
constexpr std::string_view Cpi = "--cpi";
constexpr std::string_view Sideways = "--landscape";
constexpr std::string_view InColour = "--colour";

constexpr int Pica = 10;
constexpr int Elite = 12;
constexpr int LetterWidth = 12240;
constexpr int LetterHeight = 15840;

// The height of a printed line in twips.
constexpr int PicaHeight = 272;
constexpr int EliteHeight = 227;

struct Size
{
    int width;
    int height;
};

Size SizeOf(const Arguments& arguments, std::string_view option, Size otherwise)
{
    const std::vector<std::string> values = arguments.Values(option);
    return values.empty() ? otherwise : Size{std::stoi(values[0]), std::stoi(values[1])};
}

PrinterState StateOf(const Arguments& arguments)
{
    PrinterState state;
    state.landscape = arguments.Has(Sideways);
    state.colour = arguments.Has(InColour);
    const Size usual = state.landscape ? Size{LetterHeight, LetterWidth} : Size{LetterWidth, LetterHeight};
    const Size page = SizeOf(arguments, PageSize, usual);
    const Size printable = SizeOf(arguments, Printable, page);
    state.width = page.width;
    state.height = page.height;
    state.scaleWidth = printable.width;
    state.scaleHeight = printable.height;
    return state;
}

bool OptionsAgree(CommandContext& context)
{
    const int cpi = context.Args().Number(Cpi, Pica);
    if (cpi != Pica && cpi != Elite) {
        context.WrongUsage("--cpi is 10 or 12");
        return false;
    }
    const PrinterState state = StateOf(context.Args());
    if (state.scaleWidth > state.width || state.scaleHeight > state.height) {
        context.WrongUsage("--printable is larger than the page");
        return false;
    }
    return context.NamesTopic();
}

void WriteJson(CommandContext& context, const PrintSettings& setup, const PageRecorder& printer)
{
    context.WriteJson([&](JsonWriter& json) {
        json.Key("setup").BeginObject();
        json.Key("printable_width").Number(std::int64_t{setup.PrintableWidth});
        json.Key("printable_height").Number(std::int64_t{setup.PrintableHeight});
        json.Key("chars_per_line").Number(std::int64_t{setup.CharsPerLine});
        json.Key("lines_per_page").Number(std::int64_t{setup.LinesPerPage});
        json.Key("left_margin_chars").Number(std::int64_t{setup.LeftMarginChars});
        json.Key("top_margin_lines").Number(std::int64_t{setup.TopMarginLines});
        json.EndObject();
        json.Key("pages").BeginArray();
        for (const PageRecorder::Page& page : printer.Pages()) {
            json.BeginArray();
            for (const Run& run : page) {
                WriteRun(json, run);
            }
            json.EndArray();
        }
        json.EndArray();
    });
}

void WritePage(TerminalSurface& surface, const PageRecorder::Page& page)
{
    for (const Run& run : page) {
        surface.SetBold(run.bold);
        surface.SetItalic(run.italic);
        surface.SetUnderline(run.underline);
        surface.SetColour(run.colour);
        surface.Print(run.text, run.endRow);
    }
    surface.EndRow();
}

// On a terminal a line with the page's number precedes each page; elsewhere a form feed ends it.
void WriteText(CommandContext& context, const PageRecorder& printer)
{
    CliEnvironment& environment = context.Env();
    TerminalSurface surface(
        environment.out, {environment.outIsTerminal, ShowsStyles(environment), Count16::Max, Count16::Max});
    const std::string count = std::to_string(printer.Pages().size());
    int number = 0;
    for (const PageRecorder::Page& page : printer.Pages()) {
        if (environment.outIsTerminal) {
            context.Line("--- page " + std::to_string(++number) + " of " + count + " ---");
        }
        WritePage(surface, page);
        if (!environment.outIsTerminal) {
            environment.out << '\f';
        }
    }
}

Status PrintPages(CommandContext& context)
{
    std::string name;
    Count16 number;
    if (const Status status = context.ChooseTopic(name, number); status != Status::Done) {
        return status == Status::Usage ? status : context.GiveUp();
    }
    PrintSettings settings;
    settings.CharsPerInch = context.Args().Number(Cpi, Pica);
    settings.PrintInColour = context.Args().Has(InColour);
    const int usual = settings.CharsPerInch == Elite ? EliteHeight : PicaHeight;
    PageRecorder printer(StateOf(context.Args()), context.Args().Number(LineHeight, usual));
    const Printed printed =
        PrintTopic(context.TheBook(), context.TheSeams(), printer, settings, name, number);
    if (!printed.error.Ok()) {
        context.Fail(printed.error.description, Icon::Critical);
        return context.GiveUp();
    }
    if (context.Json()) {
        WriteJson(context, settings, printer);
    } else {
        WriteText(context, printer);
    }
    return printed.located ? Status::Done : Status::Fault;
}

Status RunPages(CommandContext& context)
{
    if (!OptionsAgree(context)) {
        return Status::Usage;
    }
    if (context.OpenTheBook() != Opening::Done) {
        return context.GiveUp();
    }
    return PrintPages(context);
}

} // namespace

CommandSpec PagesCommand()
{
    return {"pages",
            "BOOK TITLE",
            1,
            2,
            "Lays a topic out on pages, as it is printed",
            "Lengths are twips: 1440 are an inch, 567 a centimetre. A page ends with a form feed, on a\n"
            "terminal it begins with a line that tells its number. Without --page the paper is Letter,\n"
            "8.5 x 11 in., on its side with --landscape; a size that is given counts as it stands.",
            {{PageSize, "W H", "the sheet's width and height", 1, Count16::Max},
             {Printable, "W H", "of the part that can be printed on; else the whole sheet", 1, Count16::Max},
             {LineHeight, "T", "a line's height; else 272, with --cpi 12 it is 227", 1, Count16::Max},
             {Cpi, "N", "characters to the inch: 10 (Pica) or 12 (Elite)", Pica, Elite},
             {Sideways, "", "the margins of a sheet on its side"},
             {InColour, "", "headings in colour"},
             NumberOption,
             JsonOption,
             PlainOption},
            RunPages};
}

} // namespace ls
