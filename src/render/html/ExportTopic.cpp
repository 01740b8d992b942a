#include "render/html/ExportTopic.h"

#include "base/LineCursor.h"
#include "base/Messages.h"
#include "base/Text.h"
#include "book/Book.h"
#include "book/BookLoader.h"
#include "book/TopicEnd.h"
#include "render/html/HtmlExport.h"
#include "render/html/HtmlOutput.h"
#include "render/text/TopicBody.h"

namespace ls {

namespace {

std::string_view TitleOf(std::string_view topicName)
{
    const bool inBrackets = topicName.starts_with('[') && topicName.size() > 2;
    return inBrackets ? topicName.substr(1, topicName.size() - 2) : topicName;
}

enum class Located
{
    Found,
    Missing,
    Unreadable
};

// No message if the topic is missing, or if the file has become shorter and the topic is gone. A disk error
// shows one.
Located Locate(const Book& book, const Seams& seams, const std::string& name, Count16 number,
               LineCursor& cursor)
{
    FileError error;
    const TopicLocation location = GoToTopic(book, cursor, name, number, error);
    if (location == TopicLocation::Unreadable && error.number != error::InputPastEnd) {
        ShowFetchError(seams, name, error);
        return Located::Unreadable;
    }
    return location == TopicLocation::Found ? Located::Found : Located::Missing;
}

FileError WriteDocument(LineCursor& cursor, std::string_view title, HtmlOutput& output)
{
    HtmlExport html(output);
    html.Begin(title);
    FileBody body(cursor);
    std::string_view line;
    while (output.Error().Ok() && body.Next(line)) {
        line = TrimRight(line);
        if (EndsText(line)) {
            break;
        }
        html.AddLine(line);
    }
    html.End();
    return body.Error();
}

bool FinishFile(const Seams& seams, HtmlOutput& output)
{
    const FileError error = output.Finish();
    if (!error.Ok()) {
        seams.messages.MsgBox("Failed to write" + DueTo(error), Icon::Warning);
    }
    return error.Ok();
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
    LineCursor cursor = CursorOf(book);
    const Located located = Locate(book, seams, name, topicIndex, cursor);
    if (located != Located::Found) {
        return located == Located::Missing && FinishFile(seams, lines);
    }
    if (const FileError error = WriteDocument(cursor, TitleOf(topicName), lines); !error.Ok()) {
        ShowFetchError(seams, name, error);
        return false;
    }
    if (!FinishFile(seams, lines)) {
        return false;
    }
    seams.messages.MsgBox("The export is complete.", Icon::Information);
    return true;
}

} // namespace ls
