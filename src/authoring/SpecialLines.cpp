#include "authoring/SpecialLines.h"

#include "base/FileSystem.h"
#include "base/LineCursor.h"
#include "base/Quoted.h"
#include "base/Text.h"
#include "book/BookWords.h"
#include "book/TopicEnd.h"
#include "book/XrefText.h"

#include <algorithm>
#include <optional>

namespace ls {

namespace {

constexpr std::size_t NamedLines = 5;

// Lets a text in memory be read as a book's file, so that the book's own reader of notes can be used.
class TextFile : public BookFile
{
public:
    explicit TextFile(std::string_view text) : m_text(text) {}

    FileError ReadAt(FilePos pos, char* buffer, std::size_t size, std::size_t& got) override
    {
        const auto from = std::min(static_cast<std::size_t>(pos - 1), m_text.size());
        got = m_text.copy(buffer, size, from);
        return {};
    }
    FileError Size(FilePos& size) override
    {
        size = static_cast<FilePos>(m_text.size());
        return {};
    }

    [[nodiscard]] std::string_view Part(FilePos from, FilePos to) const
    {
        return m_text.substr(static_cast<std::size_t>(from - 1), static_cast<std::size_t>(to - from));
    }

private:
    std::string_view m_text;
};

bool HoldsNoteEnd(std::string_view part)
{
    return Contains(part, XrefClosing) || Contains(part, XrefOtherClosing);
}

// The end of the note whose opening line is at `opening`; nothing if it ends only because the text ends.
std::optional<FilePos> EndOfNote(TextFile& file, FilePos opening)
{
    LineCursor cursor(file);
    cursor.Seek(opening);
    std::string line;
    if (!cursor.ReadLine(line).Ok()) {
        return std::nullopt;
    }
    const std::size_t opened = line.find('>');
    const FilePos inside =
        opened == std::string::npos ? cursor.Position() : opening + static_cast<FilePos>(opened) + 1;
    std::string note;
    if (!ReadXrefText(cursor, line, note).Ok()) {
        return std::nullopt;
    }
    const bool ended = !cursor.AtEnd() || HoldsNoteEnd(file.Part(inside, cursor.Position()));
    return ended ? std::optional(cursor.Position()) : std::nullopt;
}

std::optional<LineMeaning> MeaningOf(std::string_view line)
{
    if (line == IndexLine) {
        return LineMeaning::OpensIndex;
    }
    if (line == BookEnd) {
        return LineMeaning::EndsBook;
    }
    if (!line.empty() && line.front() == '[') {
        return line.size() > 2 ? LineMeaning::StartsTopic : LineMeaning::HidesRest;
    }
    return std::nullopt;
}

} // namespace

std::string_view Consequence(LineMeaning meaning)
{
    switch (meaning) {
    case LineMeaning::StartsTopic:
        return "would start a new topic";
    case LineMeaning::HidesRest:
        return "would hide the text behind it";
    case LineMeaning::EndsBook:
        return "would end the book: no topic behind it would be found";
    case LineMeaning::OpensIndex:
        return "would open an index: the book would list no topics";
    case LineMeaning::BeginsLogic:
        return "would begin the topic's advice: the lines behind it would not be shown";
    case LineMeaning::OpensEndless:
        break;
    }
    return "opens a cross reference that does not end: it would swallow the topics behind it";
}

std::vector<SpecialLine> FindSpecialLines(std::string_view text)
{
    std::vector<SpecialLine> found;
    TextFile file(text);
    LineCursor cursor(file);
    std::string line;
    FilePos noteEnd = 0;
    for (int number = 1; !cursor.AtEnd(); ++number) {
        const FilePos start = cursor.Position();
        if (!cursor.ReadLine(line).Ok()) {
            break;
        }
        std::optional<LineMeaning> meaning;
        if (OpensBlock(line)) {
            meaning = LineMeaning::BeginsLogic;
        } else if (start >= noteEnd) {
            meaning = MeaningOf(line);
            if (line.starts_with(XrefOpening)) {
                const std::optional<FilePos> end = EndOfNote(file, start);
                noteEnd = end.value_or(noteEnd);
                meaning = end ? std::nullopt : std::optional(LineMeaning::OpensEndless);
            }
        }
        if (meaning) {
            found.push_back({number, line, *meaning});
        }
    }
    return found;
}

std::string SpecialLinesQuestion(const std::vector<SpecialLine>& lines)
{
    std::string question = "Not everything here would be text when the saved book is opened again:\n";
    for (std::size_t i = 0; i < std::min(lines.size(), NamedLines); ++i) {
        question += "\nLine " + std::to_string(lines[i].line) + ", " + Quoted(lines[i].text) + ", ";
        question.append(Consequence(lines[i].meaning)).append(".");
    }
    if (lines.size() > NamedLines) {
        question += "\n(" + std::to_string(lines.size() - NamedLines) + " more)";
    }
    return question + "\n\nKeep the text as it is?";
}

} // namespace ls
