#include "base/CodePage.h"
#include "base/FindSpelling.h"
#include "base/LineCursor.h"
#include "base/Messages.h"
#include "base/NoFile.h"
#include "base/Processes.h"
#include "base/Text.h"
#include "book/BookLoader.h"
#include "book/BookWords.h"

namespace ls {

namespace {

bool ReportOpenError(const Seams& seams, const std::string& path, const FileError& error)
{
    seams.messages.MsgBox("Error opening <<" + FromPath(path) + ">> with code " + NumberAndDescription(error),
                          Icon::Critical);
    return false;
}

// Reads and parses the first line and leaves the cursor after it. An empty file has an empty first line.
FileError ReadHeader(Book& book, const Seams& seams, LineCursor& cursor)
{
    std::string line;
    if (!cursor.AtEnd()) {
        if (FileError error = cursor.ReadLine(line); !error.Ok()) {
            return error;
        }
    }
    if (!ParseBookHeader(line, book)) {
        seams.messages.MsgBox("Invalid Lodestar Book header: <<" + FromBook(line) +
                                  ">>.  Some information may not be loaded.",
                              Icon::Warning);
    }
    return {};
}

bool AcceptsPlainText(Book& book, const Seams& seams)
{
    if (seams.messages.MsgBox(
            "The file you opened is not a Lodestar Book or Advice file. Do you want to view it "
            "as a single topic text file?",
            Icon::Question, Buttons::OkCancel) != Reply::Ok) {
        return false;
    }
    book.BookVersion = 0;
    return true;
}

} // namespace

std::string PathToOpen(const Book& book, const Seams& seams)
{
    std::string path = book.BookPath;
    if (path.starts_with(ProgramFolderPrefix)) {
        path =
            JoinPath(seams.paths, seams.processes.ProgramFolder(), path.substr(ProgramFolderPrefix.size()));
    }
    if (!book.WorkDir.empty() && path.find(seams.paths.separator) == std::string::npos) {
        path = JoinPath(seams.paths, book.WorkDir, path);
    }
    return path;
}

void CloseBook(Book& book)
{
    book.File.reset();
    book.OpenPath.clear();
}

LineCursor CursorOf(const Book& book)
{
    static NoFile noFile; // it has no state
    return LineCursor(book.File ? *book.File : static_cast<BookFile&>(noFile));
}

bool OpenBook(Book& book, const Seams& seams)
{
    const std::string path = PathToOpen(book, seams);
    const std::string realPath = FindSpelling(seams.files, seams.paths, path);
    const Sharing sharing = book.LockBook ? Sharing::Locked : Sharing::Shared;
    FileError error = seams.files.OpenForReading(realPath, sharing, book.File);
    if (!error.Ok()) {
        return ReportOpenError(seams, path, error);
    }
    book.OpenPath = realPath;
    LineCursor cursor = CursorOf(book);
    error = ReadHeader(book, seams, cursor);
    if (!error.Ok()) {
        CloseBook(book);
        return ReportOpenError(seams, path, error);
    }
    if (!IsBook(book) && !AcceptsPlainText(book, seams)) {
        CloseBook(book);
        return false;
    }
    FilePos size = 0;
    if (book.BookStartPos == 0 || (book.File->Size(size).Ok() && book.BookStartPos > size)) {
        book.BookStartPos = cursor.Position();
    }
    book.TopicCount = 0;
    book.XrefCount = 0;
    return true;
}

} // namespace ls
