#include "base/LineCursor.h"
#include "book/BookLoader.h"
#include "cli/CommandContext.h"
#include "cli/Commands.h"
#include "cli/JsonWriter.h"
#include "cli/TerminalText.h"
#include "render/html/ExportItem.h"
#include "render/html/ExportTopic.h"

#include <ostream>

namespace ls {

namespace {

constexpr std::string_view Output = "-o";
constexpr std::string_view Force = "--force";

// Holds the written bytes in memory, and also writes them to a file if there is one.
class KeptOutput : public OutputFile
{
public:
    FileError Write(std::string_view bytes) override
    {
        text += bytes;
        return file ? file->Write(bytes) : FileError{};
    }
    FileError Finish() override { return file ? file->Finish() : FileError{}; }

    std::string text;
    std::unique_ptr<OutputFile> file;
};

// The chosen topic. It must be in the book, because here it was typed and not picked from a list.
Status FindTopic(CommandContext& context, std::string& name, Count16& number)
{
    if (const Status status = context.ChooseTopic(name, number); status != Status::Done) {
        return status;
    }
    LineCursor cursor = CursorOf(context.TheBook());
    LocateTopic(context.TheBook(), context.TheSeams(), cursor, name, number);
    return name.empty() ? Status::Fault : Status::Done;
}

Status OpenOutput(CommandContext& context, const std::string& path, KeptOutput& output)
{
    FileSystem& files = context.TheSeams().files;
    const bool input = files.SameFile(context.TheBook().OpenPath, path);
    const bool force = context.Args().Has(Force);
    if (!input && files.Exists(path) && !force) {
        return context.Fail("The output file already exists; --force replaces it.", Icon::Warning);
    }
    output.file = OpenExportFile(context.TheBook(), context.TheSeams(), path, force);
    return output.file ? Status::Done : Status::FileFault;
}

Status Export(CommandContext& context, KeptOutput& output)
{
    std::string name;
    Count16 number;
    Status status = FindTopic(context, name, number);
    const std::vector<std::string> path = context.Args().Values(Output);
    if (status == Status::Done && !path.empty()) {
        status = OpenOutput(context, path.front(), output);
    }
    if (status != Status::Done) {
        return status;
    }
    return ExportTopic(context.TheBook(), context.TheSeams(), name, number, output) ? Status::Done
                                                                                    : Status::FileFault;
}

// Writes the export's bytes unchanged, so that redirected output equals the file of -o. On a terminal it is
// text.
void WriteHtml(CommandContext& context, const std::string& html)
{
    if (context.Json()) {
        context.WriteJson([&html](JsonWriter& json) { json.Key("html").BookText(html); });
    } else if (context.Env().outIsTerminal) {
        context.Env().out << context.Shown(WithNewlines(html));
    } else {
        context.Env().out << html;
    }
}

Status Run(CommandContext& context)
{
    if (!context.NamesTopic()) {
        return Status::Usage;
    }
    if (context.OpenTheBook() != Opening::Done) {
        return context.GiveUp();
    }
    KeptOutput output;
    const Status status = Export(context, output);
    if (status == Status::Usage) {
        return status;
    }
    if (status != Status::Done) {
        context.GiveUp();
        return status;
    }
    if (context.Json() || !output.file) {
        WriteHtml(context, output.text);
    }
    return Status::Done;
}

} // namespace

CommandSpec ExportCommand()
{
    return {
        "export",
        "BOOK TITLE",
        1,
        2,
        "Writes a topic as an HTML document",
        "The document holds the book's own bytes, with CR LF at the end of each line. FILE gets its name\n"
        "only when it is complete, and the book itself is never written over.",
        {{Output, "FILE", "write to FILE instead of standard output"},
         {Force, "", "replace a FILE that exists"},
         NumberOption,
         JsonOption},
        Run};
}

} // namespace ls
