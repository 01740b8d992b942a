#include "book/LineEnds.h"

#include "base/CodePage.h"
#include "base/Count16.h"
#include "base/FindSpelling.h"
#include "base/Messages.h"
#include "base/StdSubs.h"
#include "book/Book.h"
#include "book/BookLoader.h"

#include <string_view>
#include <vector>

namespace ls {

namespace {

constexpr std::size_t BlockSize = 64 * 1024;
constexpr std::string_view PartType = ".part";

// Appends `block` to `text` with each lone LF as CR LF. `previous` is the character before the block.
void AppendWithCrLf(std::string& text, std::string_view block, char previous)
{
    for (const char c : block) {
        if (c == '\n' && previous != '\r') {
            text += '\r';
        }
        text += c;
        previous = c;
    }
}

// The next numbered name that is free, and whose partial file is free too. Empty if all names are taken.
std::string FreeNumberedName(const Seams& seams, const std::string& path)
{
    std::string name = path;
    for (int tries = 0; tries < Count16::Max; ++tries) {
        name = NumberedName(seams.paths, name);
        if (!seams.files.Exists(name) && !seams.files.Exists(name + std::string(PartType))) {
            return name;
        }
    }
    return {};
}

FileError WritePart(FileSystem& files, BookFile& from, const std::string& part)
{
    std::unique_ptr<OutputFile> to;
    FileError error = files.CreateNew(part, to);
    if (!error.Ok()) {
        return error;
    }
    error = CopyWithCrLf(from, *to);
    if (error.Ok()) {
        error = to->Finish();
    }
    if (!error.Ok()) {
        to.reset();
        files.RemoveIfPossible(part);
    }
    return error;
}

// Writes under another name first, so that a cut copy is never mistaken for a whole book.
FileError MakeCopy(FileSystem& files, BookFile& from, const std::string& copy)
{
    const std::string part = copy + std::string(PartType);
    FileError error = WritePart(files, from, part);
    if (error.Ok()) {
        error = files.RenameToNew(part, copy);
        if (!error.Ok()) {
            files.RemoveIfPossible(part);
        }
    }
    return error;
}

} // namespace

bool HasUnixLineEnds(BookFile& file)
{
    std::vector<char> block(BlockSize);
    std::size_t got = 0;
    if (!file.ReadAt(1, block.data(), block.size(), got).Ok()) {
        return false;
    }
    const std::string_view head(block.data(), got);
    return head.find('\n') != std::string_view::npos && head.find('\r') == std::string_view::npos;
}

FileError CopyWithCrLf(BookFile& from, OutputFile& to)
{
    std::vector<char> block(BlockSize);
    std::string text;
    char previous = '\0';
    FilePos pos = 1;
    for (;;) {
        std::size_t got = 0;
        if (FileError error = from.ReadAt(pos, block.data(), block.size(), got); !error.Ok() || got == 0) {
            return error;
        }
        text.clear();
        AppendWithCrLf(text, {block.data(), got}, previous);
        if (FileError error = to.Write(text); !error.Ok()) {
            return error;
        }
        previous = block[got - 1];
        pos += static_cast<FilePos>(got);
    }
}

std::string OfferConvertedCopy(const Book& book, const Seams& seams)
{
    const std::string path = PathToOpen(book, seams);
    const std::string realPath = FindSpelling(seams.files, seams.paths, path);
    std::unique_ptr<BookFile> file;
    if (!seams.files.OpenForReading(realPath, Sharing::Shared, file).Ok() || !HasUnixLineEnds(*file)) {
        return book.BookPath; // `OpenBook` reports the error
    }
    if (seams.messages.MsgBox("<<" + FromPath(path) +
                                  ">> has Unix line ends.  Do you want to open a converted copy?",
                              Icon::Question, Buttons::YesNo) != Reply::Yes) {
        return book.BookPath;
    }
    const std::string copy = FreeNumberedName(seams, realPath);
    const FileError error =
        copy.empty() ? MakeFileError(error::FileAlreadyExists) : MakeCopy(seams.files, *file, copy);
    if (error.Ok()) {
        return copy;
    }
    seams.messages.MsgBox("Failed to write the converted copy <<" + FromPath(copy) + ">>" + DueTo(error),
                          Icon::Warning);
    return book.BookPath;
}

} // namespace ls
