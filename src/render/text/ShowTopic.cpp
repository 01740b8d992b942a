#include "render/text/ShowTopic.h"

#include "base/CodePage.h"
#include "base/LineCursor.h"
#include "base/Messages.h"
#include "base/Text.h"
#include "book/Book.h"
#include "book/BookLoader.h"
#include "book/TopicEnd.h"
#include "render/text/ListIndent.h"
#include "render/text/TopicBody.h"
#include "render/text/WrapSegment.h"

#include <algorithm>
#include <string_view>

namespace ls {

namespace {

// Turns the source lines of one topic into display lines.
class Preparation
{
public:
    Preparation(bool plainText, int width, ShownTopic& shown)
        : m_plainText(plainText), m_width(std::max(width, LeastLineWidth)), m_shown(&shown)
    {
    }

    // Takes the lines of a body up to the topic's end. True if the topic's logic block ended it.
    bool Take(TopicBody& body)
    {
        std::string_view line;
        LineCursor* more = nullptr;
        while (body.NextPart(line, more)) {
            line = more == nullptr ? TrimRight(line) : line;
            const TopicLine kind = m_plainText ? TopicLine::Text : ClassifyTopicLine(line);
            if (kind == TopicLine::LogicBlock || kind == TopicLine::Header) {
                return kind == TopicLine::LogicBlock;
            }
            if (kind == TopicLine::Reference) {
                m_skip = true;
                m_shown->xrefButton = true;
            }
            if (!m_skip) {
                Wrap(line, more);
            }
        }
        return false;
    }

    [[nodiscard]] bool Overflowed() const { return m_overflowed; }

private:
    void Wrap(std::string_view line, LineCursor* more)
    {
        const int hang = ListIndent(line);
        LineRemainder rest(line, more);
        int indent = 0;
        do {
            std::string* segment = m_shown->lines.AddLine();
            if (segment == nullptr) {
                // The later lines are still searched for references and logic. So the buttons of a topic do
                // not depend on its length.
                m_overflowed = true;
                m_skip = true;
                return;
            }
            segment->reserve(static_cast<std::size_t>(m_width)); // enough for a row of the next topic, too
            WrapSegment(rest, m_width, indent, *segment);
            indent = hang;
        } while (!rest.Blank());
    }

    bool m_plainText;
    int m_width;
    ShownTopic* m_shown;
    bool m_skip = false; ///< nothing that follows is displayed
    bool m_overflowed = false;
};

// The position of a topic's saved logic in the file; 0 for none. The text of the topic is in memory, so
// errors of the file are not reported here.
FilePos FindLogic(const Book& book, int number)
{
    if (!book.File || book.TopicPos(number) == 0) {
        return 0;
    }
    LineCursor cursor = CursorOf(book);
    cursor.Seek(book.TopicPos(number));
    FileBody body(cursor);
    std::string_view line;
    if (!body.Next(line) || Trim(line) != book.TopicNames(number)) {
        return 0;
    }
    while (body.Next(line) && !StartsTopic(line)) {
        if (OpensBlock(line)) {
            return cursor.Position();
        }
    }
    return 0;
}

// A topic's text in memory; nullptr if the topic is unedited and its text is in the file.
const std::string* EditedText(const Book& book, int number)
{
    if (number < 1 || number > book.TopicRecs.UpperBound() || book.TopicRecs(number).Text.empty()) {
        return nullptr;
    }
    return &book.TopicRecs(number).Text;
}

// Whether a reference leads to this topic: the user may want to go back along it.
bool IsReferredTo(const Book& book, std::string_view topicName)
{
    const std::string_view title = topicName.substr(1, topicName.size() - 2);
    const auto end = book.Xrefs.begin() + book.XrefCount;
    return std::any_of(book.Xrefs.begin(), end,
                       [title](const XrefRec& xref) { return xref.ToTopic == title; });
}

void StartAnew(ShownTopic& shown)
{
    shown.name.clear();
    shown.lines.Clear();
    shown.xrefButton = false;
    shown.advisorButton = false;
    shown.logicPos = 0;
}

// The part read before the error is shown, since it may be all that can be saved from a failing disk. The
// message says that it is incomplete.
void ReportCut(const Seams& seams, const Preparation& preparation, const std::string& name,
               const FileError& error)
{
    if (!error.Ok()) {
        ShowFetchError(seams, name, error);
    }
    if (preparation.Overflowed()) {
        ShowOverflow(seams.messages);
    }
}

ShowResult ShowPlainText(const Book& book, const Seams& seams, int lineWidthChars, ShownTopic& shown)
{
    if (!book.File) {
        return ShowResult::Nothing;
    }
    StartAnew(shown);
    LineCursor cursor = CursorOf(book);
    FileBody body(cursor);
    Preparation preparation(true, lineWidthChars, shown);
    preparation.Take(body);
    // The file has no topics, so the message names the file.
    ReportCut(seams, preparation, ToBook(FromPath(book.BookPath)).value_or(std::string()), body.Error());
    return ShowResult::Shown;
}

void PrepareEdited(const Book& book, const Seams& seams, int number, const std::string& text, int width,
                   ShownTopic& shown)
{
    TextBody body(text);
    Preparation preparation(false, width, shown);
    preparation.Take(body);
    // The advisor reads the block that is in the file, not the edited one.
    shown.logicPos = FindLogic(book, number);
    shown.advisorButton = shown.logicPos != 0;
    ReportCut(seams, preparation, shown.name, {});
}

void PrepareFromFile(const Seams& seams, LineCursor& cursor, int width, ShownTopic& shown)
{
    FileBody body(cursor);
    Preparation preparation(false, width, shown);
    if (preparation.Take(body)) {
        shown.logicPos = cursor.Position();
        shown.advisorButton = true;
    }
    ReportCut(seams, preparation, shown.name, body.Error());
}

} // namespace

ShowResult ShowTopic(const Book& book, const Seams& seams, std::string& topicName, Count16& topicIndex,
                     int lineWidthChars, ShownTopic& shown)
{
    if (book.IsPlainText()) {
        return ShowPlainText(book, seams, lineWidthChars, shown);
    }
    if (book.TopicCount == 0 || topicName.empty()) {
        return ShowResult::Nothing;
    }
    topicName = WithBrackets(topicName);
    const std::string* edited = EditedText(book, topicIndex);
    LineCursor cursor = CursorOf(book);
    if (edited == nullptr) {
        LocateTopic(book, seams, cursor, topicName, topicIndex);
        if (topicName.empty()) {
            return ShowResult::Cleared;
        }
    }
    StartAnew(shown);
    shown.name = topicName;
    if (edited != nullptr) {
        PrepareEdited(book, seams, topicIndex, *edited, lineWidthChars, shown);
    } else {
        PrepareFromFile(seams, cursor, lineWidthChars, shown);
    }
    shown.xrefButton = shown.xrefButton || IsReferredTo(book, shown.name);
    return ShowResult::Shown;
}

} // namespace ls
