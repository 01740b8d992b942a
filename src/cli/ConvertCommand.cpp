#include "base/CodePage.h"
#include "base/FindSpelling.h"
#include "base/Messages.h"
#include "base/ReplaceFile.h"
#include "book/BookLoader.h"
#include "book/ConvertText.h"
#include "cli/CommandContext.h"
#include "cli/Commands.h"
#include "cli/JsonWriter.h"

#include <memory>
#include <string>

namespace ls {

namespace {

constexpr std::string_view Force = "--force";

// "U+2192" with the character before it; without the character if it is invisible.
std::string NameOf(char32_t character)
{
    constexpr std::string_view Digits = "0123456789ABCDEF";
    std::string number;
    for (char32_t rest = character; rest > 0 || number.size() < 4; rest /= 16) {
        number.insert(0, 1, Digits[rest % 16]);
    }
    if (character < 0xA0) {
        return "U+" + number;
    }
    std::string text;
    AppendUtf8(text, character);
    return text + " (U+" + number + ")";
}

// "line 3", "lines 3, 7 and 9", "lines 3, 7, ... and 12 more"
std::string LinesText(const NoPlace& place)
{
    const std::string more = place.moreLines > 0 ? std::to_string(place.moreLines) + " more" : "";
    const std::size_t count = place.lines.size() + (more.empty() ? 0 : 1);
    std::string text = count == 1 ? "line" : "lines";
    for (std::size_t i = 0; i < count; ++i) {
        const std::string_view comma = i == 0 ? " " : (i + 1 == count ? " and " : ", ");
        text.append(comma).append(i < place.lines.size() ? std::to_string(place.lines[i]) : more);
    }
    return text;
}

// Reports every obstacle. The text is written only when there is none.
Status ReportFindings(CommandContext& context, const TextFindings& findings)
{
    if (findings.coding == TextCoding::Utf16) {
        return context.Fail("The file is UTF-16. Save it as UTF-8 first.");
    }
    if (findings.coding == TextCoding::BadUtf8) {
        return context.Fail("The file begins with the mark of UTF-8, but line " +
                            std::to_string(findings.badLine) + " is no UTF-8.");
    }
    for (const NoPlace& place : findings.noPlace) {
        context.Fail("The code page of books has no " + NameOf(place.character) + ": " + LinesText(place) +
                     ".");
    }
    return findings.noPlace.empty() ? Status::Done : Status::Fault;
}

// Refuses an output that would destroy a file, as saving does: the input itself, and any existing file unless
// the user forces it.
Status OpenOutput(CommandContext& context, const std::string& input, std::unique_ptr<OutputFile>& output)
{
    FileSystem& files = context.TheSeams().files;
    const std::string& path = context.Args().Operands().at(1);
    const bool exists = files.Exists(path);
    FileError error;
    if (files.SameFile(input, path)) {
        error = MakeFileError(error::FileAlreadyOpen);
    } else if (exists && !context.Args().Has(Force)) {
        return context.Fail("The output file already exists; --force replaces it.", Icon::Warning);
    } else {
        error = exists ? OpenToReplace(files, path, output) : OpenToCreate(files, path, output);
    }
    if (!error.Ok()) {
        context.Fail("Failed to open output file" + DueTo(error), Icon::Warning);
        return Status::FileFault;
    }
    return Status::Done;
}

Status Write(CommandContext& context, const std::string& path, BookFile& input, const TextFindings& findings,
             OutputFile& output, ConvertedLines& lines)
{
    FileError error = ConvertText(input, findings, output, &context.TheProgress(), lines);
    if (error.Ok()) {
        error = output.Finish();
    }
    context.TheProgress().Erase();
    if (!error.Ok() && context.Files().FailedPath() == path) {
        context.Fail("Error reading <<" + FromPath(path) + ">> with code " + NumberAndDescription(error),
                     Icon::Critical);
        return Status::FileFault;
    }
    if (!error.Ok()) {
        context.Fail("Failed to write" + DueTo(error), Icon::Warning);
        return Status::FileFault;
    }
    return Status::Done;
}

Status Convert(CommandContext& context, TextFindings& findings, ConvertedLines& lines)
{
    const Seams& seams = context.TheSeams();
    context.TheBook().BookPath = context.Args().Operands().front();
    const std::string path =
        FindSpelling(seams.files, seams.paths, PathToOpen(context.TheBook(), context.TheSeams()));
    std::unique_ptr<BookFile> input;
    FileError error = seams.files.OpenForReading(path, Sharing::Shared, input);
    if (error.Ok()) {
        error = FindUnconvertible(*input, &context.TheProgress(), findings);
        context.TheProgress().Erase();
    }
    if (!error.Ok()) {
        context.Fail("Error opening <<" + FromPath(path) + ">> with code " + NumberAndDescription(error),
                     Icon::Critical);
        return Status::FileFault;
    }
    if (const Status status = ReportFindings(context, findings); status != Status::Done) {
        return status;
    }
    std::unique_ptr<OutputFile> output;
    if (const Status status = OpenOutput(context, path, output); status != Status::Done) {
        return status;
    }
    return Write(context, path, *input, findings, *output, lines);
}

Status Run(CommandContext& context)
{
    TextFindings findings;
    ConvertedLines lines;
    if (const Status status = Convert(context, findings, lines); status != Status::Done) {
        context.GiveUp();
        return status;
    }
    if (context.Json()) {
        context.WriteJson([&lines](JsonWriter& json) {
            json.Key("lines").Number(lines.lines).Key("converted").Number(lines.converted);
        });
        return Status::Done;
    }
    context.Line("File saved: " + std::to_string(lines.lines) + (lines.lines == 1 ? " line, " : " lines, ") +
                 std::to_string(lines.converted) + " converted");
    if (findings.coding == TextCoding::CodePage) {
        context.Line("The text is no UTF-8: its bytes were kept as Windows-1252.");
    }
    return Status::Done;
}

} // namespace

CommandSpec ConvertCommand()
{
    return {
        "convert",
        "FILE OUT",
        2,
        2,
        "Makes book text of a text file: its line ends, and UTF-8",
        "Every line ends in CR LF then. UTF-8 becomes Windows-1252, the code page of books; characters\n"
        "that it lacks are named with their lines, and nothing is written. A text that is no UTF-8 keeps\n"
        "its bytes. OUT is there only when it is whole, and FILE is never written over. In JSON, \"lines\"\n"
        "counts the lines, \"converted\" those of them that changed.",
        {{Force, "", "replace a file that exists"}, JsonOption},
        Run};
}

} // namespace ls
