#include "base/FileSystem.h"
#include "base/Messages.h"
#include "book/SaveBook.h"
#include "cli/CommandContext.h"
#include "cli/Commands.h"
#include "cli/JsonWriter.h"

#include <memory>

namespace ls {

namespace {

constexpr std::string_view Force = "--force";

// Refuses what would cost a file: the input itself, and any other unless the user forces it.
Status TestOutput(CommandContext& context, const std::string& path)
{
    FileSystem& files = context.TheSeams().files;
    if (files.SameFile(context.TheBook().OpenPath, path)) {
        const FileError open = MakeFileError(error::FileAlreadyOpen);
        context.Fail("Failed to open output file due to error #" + std::to_string(open.number) + ": " +
                         open.description,
                     Icon::Warning);
        return Status::FileFault;
    }
    if (files.Exists(path) && !context.Args().Has(Force)) {
        return context.Fail("The output file already exists, so I cannot save your book with this filename.",
                            Icon::Warning);
    }
    return Status::Done;
}

// Writes the book beside a file that is to be replaced, which keeps its name until the new one is complete.
WriteOutcome Write(CommandContext& context, const std::string& path)
{
    FileSystem& files = context.TheSeams().files;
    if (!files.Exists(path)) {
        return SaveBook(context.TheBook(), context.TheSeams(), path, &context.TheProgress());
    }
    const std::string whole = path + ".new";
    const WriteOutcome outcome =
        SaveBook(context.TheBook(), context.TheSeams(), whole, &context.TheProgress());
    if (outcome != WriteOutcome::Written) {
        return outcome;
    }
    if (const FileError failed = files.RenameOver(whole, path); !failed.Ok()) {
        context.TheSeams().messages.MsgBox("Failed to write due to error #" + std::to_string(failed.number) +
                                               ": " + failed.description,
                                           Icon::Warning);
        return WriteOutcome::Failed;
    }
    return WriteOutcome::Written;
}

Status WriteSize(CommandContext& context, const std::string& path)
{
    std::unique_ptr<BookFile> file;
    FilePos size = 0;
    if (!context.TheSeams().files.OpenForReading(path, Sharing::Shared, file).Ok() ||
        !file->Size(size).Ok()) {
        return context.GiveUp(); // the error that was met is told, and decides the status
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
