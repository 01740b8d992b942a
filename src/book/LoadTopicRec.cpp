#include "base/CodePage.h"
#include "base/LineCursor.h"
#include "base/Text.h"
#include "book/BookLoader.h"
#include "book/BookWords.h"
#include "book/TopicEnd.h"

#include <algorithm>
#include <utility>

namespace ls {

namespace {

constexpr std::size_t LargeTopic = 16 * 1024 * 1024; // bytes

// Reads the lines of one topic up to its end in the file.
class TopicReader
{
public:
    TopicReader(LineCursor& cursor, FilePos end) : m_cursor(cursor), m_end(end) {}

    // Appends the next line to `text` and sets `start` to its beginning there. False at the end of the topic
    // and after an error, see `Error`. Makes no second copy of a line, since it may fill half of the memory.
    bool Append(std::string& text, std::size_t& start)
    {
        start = text.size();
        if (!m_error.Ok() || m_cursor.Position() >= m_end) {
            return false;
        }
        m_error = m_cursor.AppendLine(text);
        if (!m_error.Ok()) {
            return false;
        }
        TrimEnd(text, start);
        return true;
    }

    // The number of bytes that are left of the topic.
    [[nodiscard]] std::size_t Rest() const
    {
        return static_cast<std::size_t>(std::max<FilePos>(0, m_end - m_cursor.Position()));
    }

    // A read error, or a file that ends before the topic does because it was cut after the scan.
    [[nodiscard]] const FileError& Error() const { return m_error; }

private:
    // A blank after "<INDEX>" stays, because it makes the line plain text. Without the blank, a saved book
    // would list no topics.
    static void TrimEnd(std::string& text, std::size_t start)
    {
        const std::string_view line = std::string_view(text).substr(start);
        const std::string_view trimmed = TrimRight(line);
        const bool keepBlank = trimmed.size() < line.size() && trimmed == IndexLine;
        text.resize(start + trimmed.size() + (keepBlank ? 1 : 0));
    }

    LineCursor& m_cursor;
    FilePos m_end;
    FileError m_error;
};

// Appends the remaining lines.
void ReadRest(TopicReader& reader, std::string& text)
{
    for (std::size_t start = 0; reader.Append(text, start);) {
        text.append(LineEnd);
    }
}

// Reads the text up to the logic block or the topic's end. True if a logic block follows.
bool ReadText(TopicReader& reader, std::string& text)
{
    if (reader.Rest() > LargeTopic) {
        text.reserve(reader.Rest() + LineEnd.size()); // growing would take up to three times the memory
    }
    for (std::size_t start = 0; reader.Append(text, start);) {
        if (OpensBlock(std::string_view(text).substr(start))) {
            text.resize(start);
            return true;
        }
        text.append(LineEnd);
    }
    return false;
}

std::string ReadLogic(TopicReader& reader)
{
    std::string line;
    std::size_t start = 0;
    if (!reader.Append(line, start) || !EqualsUpper(Trim(line), LogicOpening)) {
        return {};
    }
    std::string logic;
    logic.append(BlockOpening).append(LineEnd).append(LogicOpening).append(LineEnd);
    ReadRest(reader, logic);
    return logic;
}

bool LoadPlainText(Book& book, const Seams& seams, std::string* plainText)
{
    if (plainText == nullptr || !book.File) {
        return false;
    }
    plainText->clear();
    LineCursor cursor = CursorOf(book);
    while (!cursor.AtEnd()) {
        const std::size_t start = plainText->size();
        if (const FileError error = cursor.AppendLine(*plainText); !error.Ok()) {
            // Half a file must not look like the whole.
            plainText->clear();
            // The file has no topics, so the message names the file.
            ShowFetchError(seams, ToBook(FromPath(book.BookPath)).value_or(std::string()), error);
            return false;
        }
        plainText->resize(start + TrimRight(std::string_view(*plainText).substr(start)).size());
        plainText->append(LineEnd);
    }
    return true;
}

} // namespace

bool LoadTopicRec(Book& book, const Seams& seams, std::string& name, Count16& number, std::string* plainText)
{
    if (book.IsPlainText()) {
        return LoadPlainText(book, seams, plainText);
    }
    name = WithBrackets(name);
    LineCursor cursor = CursorOf(book);
    LocateTopic(book, seams, cursor, name, number);
    if (name.empty()) {
        number = 0;
        return false;
    }
    TopicReader reader(cursor, EndOfTopic(book, number));
    std::string text;
    const bool hasLogic = ReadText(reader, text);
    std::string logic = hasLogic ? ReadLogic(reader) : std::string();
    if (!reader.Error().Ok()) {
        // A save would write half a topic as the whole, so the topic stays unedited.
        ShowFetchError(seams, name, reader.Error());
        name.clear();
        number = 0;
        return false;
    }
    TopicRec& rec = book.TopicRecs(number);
    rec.Text = std::move(text);
    rec.Logic = std::move(logic);
    return true;
}

bool LoadLogicFromFile(const Book& book, const Seams& seams, Count16 number, std::string& logic)
{
    std::string name = book.TopicNames(number);
    LineCursor cursor = CursorOf(book);
    LocateTopic(book, seams, cursor, name, number);
    if (name.empty()) {
        return false;
    }
    TopicReader reader(cursor, EndOfTopic(book, number));
    std::string text;
    std::string block;
    if (ReadText(reader, text)) {
        block.append(BlockOpening).append(LineEnd);
        ReadRest(reader, block);
    }
    if (!reader.Error().Ok()) {
        ShowFetchError(seams, name, reader.Error());
        return false;
    }
    if (!block.empty()) {
        logic = std::move(block);
    }
    return true;
}

} // namespace ls
