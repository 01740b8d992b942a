#include "base/FileSystem.h"
#include "base/Messages.h"
#include "base/ReplaceFile.h"
#include "book/SaveBook.h"
#include "cli/CommandContext.h"
#include "cli/Commands.h"
#include "cli/JsonWriter.h"

#include <memory>

namespace ls {

namespace {

constexpr std::string_view Force = "--force";

// Refuses an output that would destroy a file: the input itself, and any existing file unless the user forces
// it.
Status TestOutput(CommandContext& context, const std::string& path)
{
    FileSystem& files = context.TheSeams().files;
    if (files.SameFile(context.TheBook().OpenPath, path)) {
        const FileError open = MakeFileError(error::FileAlreadyOpen);
        context.Fail("Failed to open output file" + DueTo(open), Icon::Warning);
        return Status::FileFault;
    }
    if (files.Exists(path) && !context.Args().Has(Force)) {
        return context.Fail("The output file already exists, so I cannot save your book with this filename.",
                            Icon::Warning);
    }
    return Status::Done;
}

WriteOutcome Fail(CommandContext& context, const std::string& what, const FileError& error)
{
    context.TheSeams().messages.MsgBox(what + DueTo(error), Icon::Warning);
    return WriteOutcome::Failed;
}

// Writes the book and replaces an existing file only when the new one is complete. Nothing was edited here,
// so a failure's partial output is useless and is removed.
WriteOutcome Replace(CommandContext& context, const std::string& path)
{
    std::unique_ptr<OutputFile> output;
    if (const FileError error = OpenToReplace(context.TheSeams().files, path, output); !error.Ok()) {
        return Fail(context, "Failed to open output file", error);
    }
    const WriteOutcome outcome =
        WriteBook(context.TheBook(), context.TheSeams(), *output, &context.TheProgress());
    if (outcome != WriteOutcome::Written) {
        return outcome;
    }
    const FileError error = output->Finish();
    return error.Ok() ? outcome : Fail(context, "Failed to write", error);
}

WriteOutcome Write(CommandContext& context, const std::string& path)
{
    return context.TheSeams().files.Exists(path)
               ? Replace(context, path)
               : SaveBook(context.TheBook(), context.TheSeams(), path, &context.TheProgress());
}

Status WriteSize(CommandContext& context, const std::string& path)
{
    std::unique_ptr<BookFile> file;
    FilePos size = 0;
    if (!context.TheSeams().files.OpenForReading(path, Sharing::Shared, file).Ok() ||
        !file->Size(size).Ok()) {
        return context.GiveUp(); // the error was reported and decides the status
    }
    if (context.Json()) {
        context.WriteJson([size](JsonWriter& json) { json.Key("size").Number(size); });
    } else {
        context.Line("File saved: " + std::to_string(size) + " bytes");
    }
    return Status::Done;
}

Status Run(CommandContext& context)
{
    if (context.OpenTheBook() != Opening::Done) {
        return context.GiveUp();
    }
    if (context.TheBook().TopicCount == 0) {
        context.Fail("I have nothing to save.");
        return context.GiveUp();
    }
    const std::string& path = context.Args().Operands().at(1);
    if (const Status status = TestOutput(context, path); status != Status::Done) {
        context.GiveUp();
        return status;
    }
    if (Write(context, path) != WriteOutcome::Written) {
        return context.GiveUp();
    }
    return WriteSize(context, path);
}

} // namespace

CommandSpec SaveCommand()
{
    return {"save",
            "BOOK OUT",
            2,
            2,
            "Rewrites a book as an unedited save writes it",
            "The header is written anew and every line ends in CR LF; nothing behind an end mark is kept.\n"
            "OUT is there only when it is whole. The book itself is never written over.",
            {{Force, "", "replace a file that exists"}, JsonOption, PlainOption},
            Run};
}

} // namespace ls
