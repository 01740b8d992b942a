#include "check/DialogueRules.h"

#include "advisor/DialogueSearch.h"
#include "advisor/Inference.h"
#include "base/CodePage.h"
#include "base/LineCursor.h"
#include "base/Text.h"
#include "book/TopicEnd.h"

#include <algorithm>

namespace ls {

namespace {

using Kind = DialogueEnd::Kind;

std::string AnswersText(const std::vector<GivenAnswer>& answers)
{
    std::string text;
    for (const GivenAnswer& answer : answers) {
        text += (text.empty() ? "" : ", ") + FromBook(answer.var) + " = " + FromBook(answer.choice);
    }
    return text.empty() ? "before the first question" : "after " + text;
}

const DialogueEnd* FirstOf(const DialogueMap& map, Kind kind)
{
    const auto found =
        std::find_if(map.ends.begin(), map.ends.end(), [kind](const auto& end) { return end.kind == kind; });
    return found == map.ends.end() ? nullptr : &*found;
}

void ReportDeadEnd(const DialogueMap& map, int line, Findings& findings)
{
    if (const DialogueEnd* const end = FirstOf(map, Kind::DeadEnd)) {
        findings.Warning("dead-end", line,
                         "No rule is left " + AnswersText(end->answers) +
                             ", so the reader gets no advice: add a rule for these answers.");
    }
}

void ReportProgramEnds(const DialogueMap& map, int line, bool hasErrors, Findings& findings)
{
    for (const DialogueEnd& end : map.ends) {
        if (end.kind == Kind::ProgramEnds && !(hasErrors && end.name == fault::Circular)) {
            findings.Error("program-ends", line,
                           "The program ends before the reader's eyes " + AnswersText(end.answers) +
                               ", for the reason \"" + end.name + "\": change the rules on this way.");
        }
    }
}

// Reports dialogues that stop with a box. Not used if the block has errors, since those say more.
void ReportStops(const DialogueMap& map, int line, Findings& findings)
{
    for (const DialogueEnd& end : map.ends) {
        if (end.kind == Kind::NoText || end.kind == Kind::NoQuestion || end.kind == Kind::LoadFailed) {
            const std::string shown = end.kind == Kind::NoText ? FromBook(end.text) : end.name;
            findings.Error("dialogue-stops", line,
                           "The dialogue stops " + AnswersText(end.answers) + " with \"" + shown +
                               "\" and the reader gets no advice: mend what it names.");
        }
    }
}

void ReportCut(const DialogueMap& map, int line, Findings& findings)
{
    if (map.cut) {
        findings.Warning(
            "search-cut", line,
            "Only the first " + std::to_string(map.states) +
                " states of the dialogue were searched for answers that leave the reader without "
                "a rule: try the later questions by hand.");
    }
}

// The position after the topic's "<IXML>" line; 0 for none.
FilePos LogicPosition(BookFile& file, FilePos topic)
{
    LineCursor cursor(file);
    cursor.Seek(topic);
    std::string_view line;
    bool header = true;
    while (!cursor.AtEnd() && cursor.ReadLine(line).Ok()) {
        if (OpensBlock(line)) {
            return cursor.Position();
        }
        if (!header && StartsTopic(line)) {
            break;
        }
        header = false;
    }
    return 0;
}

} // namespace

// Reads as one file: first the book's file, then, after a gap, the blocks in memory.
class DialogueBook::Overlay : public BookFile
{
public:
    explicit Overlay(BookFile* file) : m_file(file)
    {
        FilePos size = 0;
        if (m_file != nullptr && Note(m_file->Size(size)).Ok()) {
            m_tailPos = size + 2;
        }
    }

    [[nodiscard]] const FileError& Error() const { return m_error; }

    FileError ReadAt(FilePos pos, char* buffer, std::size_t size, std::size_t& got) override
    {
        if (pos >= m_tailPos) {
            const auto from = std::min(static_cast<std::size_t>(pos - m_tailPos), m_tail.size());
            got = m_tail.copy(buffer, size, from);
            return {};
        }
        got = 0;
        return m_file == nullptr ? FileError{} : Note(m_file->ReadAt(pos, buffer, size, got));
    }
    FileError Size(FilePos& size) override
    {
        size = m_tailPos + static_cast<FilePos>(m_tail.size()) - 1;
        return {};
    }

    FilePos Append(const std::string& text)
    {
        const FilePos pos = m_tailPos + static_cast<FilePos>(m_tail.size());
        m_tail.append(text).append(LineEnd).append("[]").append(LineEnd); // "[]" ends a topic
        return pos;
    }

private:
    FileError Note(const FileError& error)
    {
        if (m_error.Ok()) {
            m_error = error;
        }
        return error;
    }

    BookFile* m_file;
    FilePos m_tailPos = 2;
    std::string m_tail;
    FileError m_error; ///< the first error
};

DialogueBook::DialogueBook(const Book& book)
{
    static_cast<BookHeader&>(m_book) = book;
    m_book.BookPath = book.BookPath;
    m_book.TopicNames = book.TopicNames;
    m_book.TopicPos = book.TopicPos;
    m_book.TopicCount = book.TopicCount;
    m_book.TopicOrder = book.TopicOrder;
    auto overlay = std::make_unique<Overlay>(book.File.get());
    m_overlay = overlay.get();
    m_book.File = std::move(overlay);
}

void DialogueBook::Replace(int topic, const std::string& block)
{
    m_book.TopicPos(topic) = m_overlay->Append(m_book.TopicNames(topic) + std::string(LineEnd) + block);
}

const FileError& DialogueBook::Error() const
{
    return m_overlay->Error();
}

bool DialogueBook::Show(int topic)
{
    m_book.CurrentTopicNo = topic;
    m_book.CurrentTopicName = WithBrackets(m_book.TopicNames(topic));
    const FilePos pos = m_book.TopicPos(topic);
    m_book.LogicPos = pos == 0 ? 0 : LogicPosition(*m_overlay, pos);
    return m_book.LogicPos != 0;
}

void CheckDialogues(DialogueBook& book, const Seams& seams, const RuleBase& base, bool hasErrors,
                    Findings& findings)
{
    const CheckedBlock& own = base.Own();
    if (!book.Show(own.topic)) {
        return;
    }
    const DialogueMap map = SearchDialogues(book.Get(), seams, SearchLimits(), nullptr);
    if (!book.Error().Ok()) {
        return; // after a read error a dialogue shows nothing about the rules
    }
    const int line = own.logicLine != 0 ? own.logicLine : own.line;
    ReportProgramEnds(map, line, hasErrors, findings);
    if (!hasErrors) {
        ReportStops(map, line, findings);
        ReportDeadEnd(map, line, findings);
        ReportCut(map, line, findings);
    }
}

} // namespace ls
