#include "book/SaveBook.h"

#include "base/FileSystem.h"
#include "base/Messages.h"

#include <memory>

namespace ls {

namespace {

constexpr int MaxParts = 99;

// A name for the file until it is whole. The one that a failed save left there stays, so that the author may
// try the same name again when there is room.
std::string FreePartName(FileSystem& files, const std::string& path)
{
    std::string name = path + ".part";
    for (int number = 2; number <= MaxParts && files.Exists(name); ++number) {
        name = path + ".part" + std::to_string(number);
    }
    return name;
}

WriteOutcome Fail(const Seams& seams, const char* what, const FileError& failed)
{
    seams.messages.MsgBox(std::string(what) + " due to error #" + std::to_string(failed.number) + ": " +
                              failed.description,
                          Icon::Warning);
    return WriteOutcome::Failed;
}

} // namespace

WriteOutcome SaveBook(const Book& book, const Seams& seams, const std::string& path, Progress* progress)
{
    const std::string part = FreePartName(seams.files, path);
    std::unique_ptr<OutputFile> output;
    if (FileError failed = seams.files.CreateNew(part, output); !failed.Ok()) {
        return Fail(seams, "Failed to open output file", failed);
    }
    const WriteOutcome outcome = WriteBook(book, seams, *output, progress);
    if (outcome == WriteOutcome::Cancelled) {
        output.reset();
        seams.files.Remove(part);
    }
    if (outcome != WriteOutcome::Written) {
        return outcome;
    }
    if (FileError failed = output->Finish(); !failed.Ok()) {
        return Fail(seams, "Failed to write", failed);
    }
    if (FileError failed = seams.files.RenameToNew(part, path); !failed.Ok()) {
        return Fail(seams, "Failed to write", failed);
    }
    return WriteOutcome::Written;
}

} // namespace ls
