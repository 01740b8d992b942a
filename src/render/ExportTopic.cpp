#include "render/ExportTopic.h"

#include "base/LineCursor.h"
#include "base/Messages.h"
#include "base/NoFile.h"
#include "base/QuietMessages.h"
#include "base/Text.h"
#include "book/Book.h"
#include "book/BookLoader.h"
#include "render/HtmlExport.h"
#include "render/HtmlOutput.h"
#include "render/TopicBody.h"

namespace ls {

namespace {

std::string_view TitleOf(std::string_view topicName)
{
    const bool inBrackets = topicName.starts_with('[') && topicName.size() > 2;
    return inBrackets ? topicName.substr(1, topicName.size() - 2) : topicName;
}

// Unlike the display, which passes over references, an export stops at them.
bool EndsTopic(std::string_view line)
{
    return BeginsUpper(line, "<XREF") || EqualsUpper(Trim(line), "<IXML>") || line.starts_with('[');
}

// Whether the topic's header line cannot even be read. A file that has become shorter is no such case: there
// the topic is gone.
FileError ErrorOfHeader(const Book& book, int number, LineCursor& cursor)
{
    const auto index = static_cast<std::size_t>(number);
    if (number < 1 || index > book.TopicPos.UpperBound() || book.TopicPos(index) == 0) {
        return {};
    }
    cursor.Seek(book.TopicPos(index));
    std::string_view line;
    FileError failed = cursor.ReadLine(line);
    return failed.number == error::InputPastEnd ? FileError{} : failed;
}

enum class Located
{
    Found,
    Missing,
    Unreadable
};

// A topic that is not there is no news to the user here, a disk that fails is.
Located Locate(const Book& book, const Seams& seams, const std::string& name, Count16 number,
               LineCursor& cursor)
{
    QuietMessages quiet(seams.end);
    std::string found = name;
    LocateTopic(book, {seams.files, quiet, seams.processes, seams.end, seams.paths}, cursor, found, number);
    if (!found.empty()) {
        return Located::Found;
    }
    const FileError failed = ErrorOfHeader(book, number, cursor);
    if (failed.Ok()) {
        return Located::Missing;
    }
    ShowFetchError(seams, name, failed);
    return Located::Unreadable;
}

FileError WriteDocument(LineCursor& cursor, std::string_view title, HtmlOutput& output)
{
    HtmlExport html(output);
    html.Begin(title);
    FileBody body(cursor);
    std::string_view line;
    while (output.Failed().Ok() && body.Next(line)) {
        line = TrimRight(line);
        if (EndsTopic(line)) {
            break;
        }
        html.AddLine(line);
    }
    html.End();
    return body.Failed();
}

bool FinishFile(const Seams& seams, HtmlOutput& output)
{
    const FileError failed = output.Finish();
    if (!failed.Ok()) {
        seams.messages.MsgBox("Failed to write due to error #" + std::to_string(failed.number) + ": " +
                                  failed.description,
                              Icon::Warning);
    }
    return failed.Ok();
}

} // namespace

bool ExportTopic(const Book& book, const Seams& seams, const std::string& topicName, Count16 topicIndex,
                 OutputFile& output)
{
    HtmlOutput lines(output);
    if (topicName.empty()) {
        return FinishFile(seams, lines);
    }
    const std::string name = WithBrackets(topicName);
    NoFile noFile;
    LineCursor cursor(book.File ? *book.File : static_cast<BookFile&>(noFile));
    const Located located = Locate(book, seams, name, topicIndex, cursor);
    if (located != Located::Found) {
        return located == Located::Missing && FinishFile(seams, lines);
    }
    if (const FileError failed = WriteDocument(cursor, TitleOf(topicName), lines); !failed.Ok()) {
        ShowFetchError(seams, name, failed);
        return false;
    }
    if (!FinishFile(seams, lines)) {
        return false;
    }
    seams.messages.MsgBox("The export is complete.", Icon::Information);
    return true;
}

} // namespace ls
