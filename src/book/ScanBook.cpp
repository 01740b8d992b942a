#include "base/LineCursor.h"
#include "base/Messages.h"
#include "base/ProgramEnd.h"
#include "base/Text.h"
#include "book/BookLoader.h"
#include "book/BookWords.h"
#include "book/XrefText.h"

#include <utility>

namespace ls {

namespace {

constexpr FilePos ProgressStep = 8 * 1024 * 1024;

enum class LineOutcome
{
    GoOn,
    Stop,
    Overflow
};

// One scan of the open file: a cursor, the current line, and the results so far.
class Scanner
{
public:
    Scanner(Book& book, Progress* progress)
        : m_book(book), m_cursor(CursorOf(book)), m_progress(progress),
          m_nextReport(book.BookStartPos + ProgressStep)
    {
        m_cursor.Seek(book.BookStartPos);
    }

    // Error number 6 means that a count passed its limit.
    FileError Run()
    {
        for (;;) {
            // Only lines that begin with "[" or "<" matter. The others are skipped without a copy.
            FileError error = m_cursor.SkipToLineBeginning('[', '<');
            if (!error.Ok() || m_cursor.AtEnd()) {
                return error;
            }
            m_linePos = m_cursor.Position();
            ReportProgress();
            error = m_cursor.ReadLine(m_line);
            if (!error.Ok()) {
                return error;
            }
            LineOutcome outcome = LineOutcome::GoOn;
            error = TakeLine(outcome);
            if (!error.Ok() || outcome == LineOutcome::Stop) {
                return error;
            }
            if (outcome == LineOutcome::Overflow) {
                return MakeFileError(error::Overflow);
            }
        }
    }

    [[nodiscard]] FilePos EndPos() const { return m_endPos != 0 ? m_endPos : m_cursor.Position(); }

private:
    FileError TakeLine(LineOutcome& outcome)
    {
        if (m_line == IndexLine) {
            outcome = LineOutcome::Stop;
            m_endPos = m_linePos;
            return ReadIndex();
        }
        if (m_line.starts_with(XrefOpening)) {
            return TakeXref(outcome);
        }
        if (m_line == BookEnd) {
            outcome = LineOutcome::Stop;
            m_endPos = m_linePos;
        } else if (m_line.size() > 2 && m_line.front() == '[') {
            outcome = TakeTopic();
        }
        return {};
    }

    LineOutcome TakeTopic()
    {
        if (!m_book.CurrentTopicNo.Add()) {
            return LineOutcome::Overflow;
        }
        GrowTopicTables(m_book, m_book.CurrentTopicNo);
        m_book.TopicNames(m_book.CurrentTopicNo) = Trim(m_line);
        m_book.TopicPos(m_book.CurrentTopicNo) = m_linePos;
        return LineOutcome::GoOn;
    }

    FileError TakeXref(LineOutcome& outcome)
    {
        XrefRec xref;
        xref.ToTopic = XrefTarget(m_line);
        if (m_book.CurrentTopicNo > 0) {
            const std::string& name = m_book.TopicNames(m_book.CurrentTopicNo);
            xref.FromTopic = name.substr(1, name.size() - 2);
        }
        if (FileError error = ReadXrefText(m_cursor, m_line, xref.Text); !error.Ok()) {
            return error;
        }
        if (xref.FromTopic.empty() || xref.ToTopic.empty()) {
            return {};
        }
        if (!m_book.XrefCount.Add()) {
            outcome = LineOutcome::Overflow;
            return {};
        }
        m_book.Xrefs.Grow(m_book.XrefCount, TopicGrowthStep);
        m_book.Xrefs(m_book.XrefCount) = std::move(xref);
        return {};
    }

    // Skips the records of a legacy index. Intended: such a book lists no topics. Without an end record the
    // index ends with the file.
    FileError ReadIndex()
    {
        m_book.CurrentTopicNo = 0;
        while (!m_cursor.AtEnd()) {
            if (FileError error = m_cursor.ReadLine(m_line); !error.Ok()) {
                return error;
            }
            const std::size_t comma = m_line.find(',');
            if (comma != std::string::npos && RecordName(comma + 1) == IndexEnd) {
                break;
            }
        }
        return {};
    }

    [[nodiscard]] std::string RecordName(std::size_t from) const
    {
        std::string_view name = Trim(std::string_view(m_line).substr(from));
        if (!name.empty() && name.front() == '"') {
            name.remove_prefix(1);
            name = name.substr(0, name.find('"'));
        }
        return std::string(name);
    }

    void ReportProgress()
    {
        if (m_progress == nullptr || m_linePos < m_nextReport) {
            return;
        }
        m_nextReport = m_linePos + ProgressStep;
        FilePos size = 0;
        if (m_book.File->Size(size).Ok()) {
            // A scan cannot be cancelled: with half a table, a save would lose topics.
            m_progress->Step(m_linePos, size);
        }
    }

    Book& m_book;
    LineCursor m_cursor;
    Progress* m_progress;
    FilePos m_nextReport;
    std::string m_line;
    FilePos m_linePos = 0;
    FilePos m_endPos = 0;
};

// Closes and clears the book: with a table cut at its limit, a save would lose topics.
bool DropOverfullBook(Book& book, const Seams& seams)
{
    CloseBook(book);
    ResetBook(book);
    book.BookPath.clear();
    ShowOverflow(seams.messages);
    return false;
}

} // namespace

bool ScanBook(Book& book, const Seams& seams, Progress* progress)
{
    Scanner scanner(book, progress);
    const FileError error = scanner.Run();
    if (error.number == error::Overflow) {
        return DropOverfullBook(book, seams);
    }
    if (!error.Ok()) {
        seams.messages.MsgBox("Error reading book file with code " + NumberAndDescription(error),
                              Icon::Critical);
        EndProgram(seams.end, "error reading the book file");
        return false;
    }
    book.ScanEndPos = scanner.EndPos();
    book.TopicCount = book.CurrentTopicNo;
    return true;
}

} // namespace ls
