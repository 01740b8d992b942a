#include "advisor/Definitions.h"

#include "advisor/AdvisorTables.h"
#include "advisor/Inference.h"
#include "advisor/LogicLoader.h"
#include "base/CodePage.h"
#include "base/Messages.h"
#include "base/ProgramEnd.h"
#include "base/Text.h"
#include "book/Book.h"
#include "book/BookWords.h"
#include "book/TopicEnd.h"

#include <algorithm>

namespace ls {

namespace {

constexpr std::size_t None = std::string::npos;

// Finds `tag` in `line`, ignoring the line's letter case; the tag is in upper case and begins with "<". It
// makes no upper-case copy, because every line before an entry is searched.
std::size_t FindUpper(std::string_view line, std::string_view tag)
{
    std::size_t at = line.find(tag.front());
    while (at != None && !BeginsUpper(line.substr(at), tag)) {
        at = line.find(tag.front(), at + 1);
    }
    return at;
}

// Collects the text of one entry line by line.
class EntryText
{
public:
    explicit EntryText(const std::string& openTag)
        : m_closing("</" + openTag.substr(1, openTag.find(' ') - 1) + ">")
    {
    }

    // Adds the next piece. True if the entry is complete.
    bool Take(std::string_view piece)
    {
        // Case matters: "</q>" does not close an entry.
        const std::size_t closing = piece.find(m_closing);
        const bool last = closing != None;
        piece = piece.substr(0, closing);
        if (m_text.size() + piece.size() > MaxEntryText) {
            m_text += "???";
            return true;
        }
        // A line end precedes each line but the first one with text. An empty last line adds nothing.
        piece = Trim(piece);
        if (!m_text.empty() && !(last && piece.empty())) {
            m_text += LineEnd;
        }
        m_text += piece;
        return last;
    }

    [[nodiscard]] const std::string& Text() const { return m_text; }

private:
    std::string m_closing;
    std::string m_text;
};

} // namespace

void Definitions::ReadFailed(const FileError& error, std::string_view action)
{
    m_context.seams.messages.MsgBox(
        std::string(AppTitle) + ": " + std::to_string(error.number) + "Error " + std::string(action) +
            " idea file <<" + FromPath(m_context.book.BookPath) + ">>" + DueTo(error, ErrorForm::Unnamed),
        Icon::Critical);
}

// A topic that was added but not saved has no place in the file.
FileError Definitions::SeekTopic(Count16 topic)
{
    const bool inTable = topic > 0 && topic <= m_context.book.TopicPos.UpperBound();
    const FilePos pos = inTable ? m_context.book.TopicPos(topic) : 0;
    if (pos == 0) {
        return MakeFileError(error::InvalidCall);
    }
    m_context.cursor.Seek(pos);
    return {};
}

void Definitions::LoadTopicIfNeeded(Count16 topic, std::string& advice)
{
    const AdvisorTables& tables = m_context.tables;
    const Counted loaded(tables.LogicTopics, tables.LogicTopicCount);
    if (std::find(loaded.begin(), loaded.end(), topic) != loaded.end()) {
        return;
    }
    const FileError error = SeekTopic(topic);
    if (!error.Ok()) {
        m_context.seams.messages.MsgBox("Error accessing idea file" + DueTo(error, ErrorForm::NumberOnly),
                                        Icon::Critical);
        return;
    }
    LoadLogic(m_context, m_inference, topic, true, advice);
}

// If the topic has no definitions, the scan stops at "</DEFINITIONS>" or the end of the block.
FileError Definitions::SkipToDefinitions()
{
    bool ownHeader = true;
    std::string line;
    while (!m_context.cursor.AtEnd()) {
        const FileError error = m_context.cursor.ReadLine(line);
        if (!error.Ok()) {
            return error;
        }
        if (StartsTopic(line) && !ownHeader) {
            break;
        }
        ownHeader = false;
        line = UpperCase(Trim(line));
        if (Contains(line, DefinitionsOpening) || Contains(line, DefinitionsClosing) ||
            line == BlockClosing) {
            break;
        }
    }
    return {};
}

Count16 Definitions::GotoTopicForVar(const std::string& var, std::string& advice)
{
    const AdvisorTables& tables = m_context.tables;
    const Counted registered(tables.VarTopics, tables.VarTopicCount);
    const auto found = std::find_if(registered.begin(), registered.end(),
                                    [&var](const VarTopic& entry) { return entry.Name == var; });
    if (found == registered.end() || found->Topic == 0) {
        m_context.seams.messages.MsgBox("I can't find the variable definition for <<" + FromBook(var) + ">>.",
                                        Icon::Exclamation);
        return 0;
    }
    const Count16 topic = found->Topic; // a copy, because loading may reallocate the table
    if (topic == tables.FirstTopic) {
        m_context.cursor.Seek(tables.DefinitionsPos);
        return topic;
    }
    LoadTopicIfNeeded(topic, advice);
    FileError error = SeekTopic(topic);
    if (error.Ok()) {
        error = SkipToDefinitions();
    }
    if (!error.Ok()) {
        ReadFailed(error, "accessing");
    }
    return topic;
}

// Reads one line of an entry; it is valid until the next call. False at the end of the topic or the file, and
// after the message about a read error.
bool Definitions::ReadPiece(std::string_view& line)
{
    if (m_context.cursor.AtEnd()) {
        return false;
    }
    const FileError error = m_context.cursor.ReadLine(line);
    if (!error.Ok()) {
        ReadFailed(error, "reading");
        return false;
    }
    return !StartsTopic(line);
}

// Skips lines up to the one with the opening tag; `piece` gets the text after the tag.
bool Definitions::FindTag(const std::string& openTag, std::string_view& piece)
{
    std::string_view line;
    while (ReadPiece(line)) {
        const std::string_view trimmed = Trim(line);
        if (EqualsUpper(trimmed, DefinitionsClosing)) {
            return false;
        }
        const bool comment = !trimmed.empty() && trimmed.front() == '*';
        const std::size_t at = comment ? None : FindUpper(line, openTag);
        if (at != None) {
            piece = line.substr(at + openTag.size());
            return true;
        }
    }
    return false;
}

std::string Definitions::ReadTaggedText(const std::string& openTag)
{
    EntryText entry(openTag);
    std::string_view piece;
    if (m_context.seams.end.Ended() || !FindTag(openTag, piece)) {
        return {};
    }
    while (!entry.Take(piece) && ReadPiece(piece)) {
    }
    return entry.Text();
}

} // namespace ls
