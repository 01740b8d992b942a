#include "render/html/ExportItem.h"

#include "base/CodePage.h"
#include "base/Messages.h"
#include "base/ReplaceFile.h"
#include "book/Book.h"
#include "render/html/ExportTopic.h"

namespace ls {

namespace {

// Refuses the open book's file, as its topics are read during the export.
FileError OpenFile(const Book& book, FileSystem& files, const std::string& path, bool replace,
                   std::unique_ptr<OutputFile>& output)
{
    if (!book.OpenPath.empty() && files.SameFile(book.OpenPath, path)) {
        return MakeFileError(error::FileAlreadyOpen);
    }
    return replace ? OpenToReplace(files, path, output) : OpenToCreate(files, path, output);
}

} // namespace

std::unique_ptr<OutputFile> OpenExportFile(const Book& book, const Seams& seams, const std::string& path,
                                           bool replace)
{
    std::unique_ptr<OutputFile> output;
    if (const FileError error = OpenFile(book, seams.files, path, replace, output); !error.Ok()) {
        seams.messages.MsgBox("Failed to open <<" + FromPath(path) + ">>" + DueTo(error) + ".",
                              Icon::Warning);
    }
    return output;
}

void ExportItem_Click(const Book& book, const Seams& seams)
{
    if (book.CurrentTopicName.empty()) {
        seams.messages.MsgBox(DisplayTopicFirst, Icon::Warning);
        return;
    }
    const std::optional<std::string> path =
        seams.messages.InputBox("Filename for export to HTML", std::string(AppTitle), "Export.htm");
    if (!path || path->empty()) {
        return;
    }
    if (const std::unique_ptr<OutputFile> output = OpenExportFile(book, seams, *path)) {
        ExportTopic(book, seams, book.CurrentTopicName, book.CurrentTopicNo, *output);
    }
}

} // namespace ls
