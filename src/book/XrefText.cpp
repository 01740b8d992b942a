#include "book/XrefText.h"

#include "base/LineCursor.h"
#include "base/Text.h"
#include "book/BookWords.h"

namespace ls {

namespace {

constexpr std::size_t Limit = 32000;

// Collects the pieces of a note. `Add` returns false when the note reaches its limit.
class NoteText
{
public:
    explicit NoteText(std::string& text) : m_text(&text) {}

    bool Add(std::string_view piece)
    {
        piece = Trim(piece);
        if (m_text->empty() && piece.empty()) {
            return true;
        }
        // The limit applies to the new length, including the line end between the pieces.
        const std::string_view joint = m_text->empty() ? std::string_view() : LineEnd;
        if (m_text->size() + joint.size() + piece.size() > Limit) {
            m_text->append("???");
            return false;
        }
        m_text->append(joint).append(piece);
        return true;
    }

    // Adds the piece before the end tag, unless it is empty.
    void AddLast(std::string_view piece)
    {
        if (!Trim(piece).empty()) {
            Add(piece);
        }
    }

private:
    std::string* m_text;
};

} // namespace

std::string XrefTarget(std::string_view openingLine)
{
    const std::size_t end = openingLine.find('>');
    if (end == std::string_view::npos || end < XrefOpening.size()) {
        return {};
    }
    std::string_view target = openingLine.substr(XrefOpening.size(), end - XrefOpening.size());
    if (target.size() > 2 && target.front() == '"') {
        target = target.substr(1, target.size() - 2);
    }
    return std::string(target);
}

FileError ReadXrefText(LineCursor& cursor, std::string_view openingLine, std::string& text)
{
    text.clear();
    NoteText note(text);
    const std::size_t opened = openingLine.find('>');
    std::string piece(opened == std::string_view::npos ? std::string_view() : openingLine.substr(opened + 1));
    for (;;) {
        if (const std::size_t end = piece.find(XrefClosing); end != std::string::npos) {
            note.AddLast(std::string_view(piece).substr(0, end));
            return {};
        }
        if (Contains(piece, XrefOtherClosing) || !note.Add(piece) || cursor.AtEnd()) {
            return {};
        }
        if (FileError error = cursor.ReadLine(piece); !error.Ok()) {
            return error;
        }
    }
}

} // namespace ls
