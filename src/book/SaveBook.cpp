#include "book/SaveBook.h"

#include "base/FileSystem.h"
#include "base/Messages.h"

#include <memory>

namespace ls {

namespace {

constexpr int MaxParts = 99;

// A free name for the unfinished file. A failed save leaves its unfinished file. The number in the name lets
// the author try again with the same final name.
std::string FreePartName(FileSystem& files, const std::string& path)
{
    std::string name = path + ".part";
    for (int number = 2; number <= MaxParts && files.Exists(name); ++number) {
        name = path + ".part" + std::to_string(number);
    }
    return name;
}

WriteOutcome Fail(const Seams& seams, const char* what, const FileError& error)
{
    seams.messages.MsgBox(std::string(what) + DueTo(error), Icon::Warning);
    return WriteOutcome::Failed;
}

} // namespace

WriteOutcome SaveBook(const Book& book, const Seams& seams, const std::string& path, Progress* progress)
{
    const std::string part = FreePartName(seams.files, path);
    std::unique_ptr<OutputFile> output;
    if (FileError error = seams.files.CreateNew(part, output); !error.Ok()) {
        return Fail(seams, "Failed to open output file", error);
    }
    const WriteOutcome outcome = WriteBook(book, seams, *output, progress);
    if (outcome == WriteOutcome::Cancelled) {
        output.reset();
        seams.files.RemoveIfPossible(part);
    }
    if (outcome != WriteOutcome::Written) {
        return outcome;
    }
    if (FileError error = output->Finish(); !error.Ok()) {
        return Fail(seams, "Failed to write", error);
    }
    if (FileError error = seams.files.RenameToNew(part, path); !error.Ok()) {
        return Fail(seams, "Failed to write", error);
    }
    return WriteOutcome::Written;
}

} // namespace ls
