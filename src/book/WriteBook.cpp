#include "book/WriteBook.h"

#include "base/CodePage.h"
#include "base/FileSystem.h"
#include "base/LineCursor.h"
#include "base/Messages.h"
#include "base/Progress.h"
#include "base/Text.h"
#include "book/Book.h"
#include "book/BookWords.h"
#include "book/TopicEnd.h"

#include <algorithm>
#include <memory>
#include <vector>

// How a book is written:
//
// 1. A new header is written. The topics follow in the order of the table.
// 2. An unedited topic is copied from the file in whole lines. An edited topic is written from memory.
// 3. A topic is copied up to the next topic of the file. The positions of all topics are sorted once for
//    this.
// 4. The header line of a copied topic must match its title, and the copy must stop exactly at its end. If
//    not, the file was changed and the writing stops.
// 5. All bytes go through one buffer. Each time it is full, the progress is reported; it may cancel the
//    writing.

namespace ls {

namespace {

constexpr std::size_t BufferSize = 256 * 1024;

// The header line of a topic that is written from memory. "[EOF]" would end the book, and "[]" would count as
// text of the topic before it. With a blank added, both are headers.
std::string HeaderOf(const std::string& name)
{
    return name == BookEnd || name == "[]" ? name + ' ' : name;
}

// The ends of all topics of the file, by the rule of `EndOfTopic`. They are sorted once: a search for each
// topic would take quadratic time.
class TopicEnds
{
public:
    explicit TopicEnds(const Book& book)
        : m_scanEnd(book.ScanEndPos),
          m_positions(book.TopicPos.begin(), book.TopicPos.begin() + book.TopicCount)
    {
        std::sort(m_positions.begin(), m_positions.end());
    }

    [[nodiscard]] FilePos Of(FilePos own) const
    {
        const auto next = std::upper_bound(m_positions.begin(), m_positions.end(), own);
        return next == m_positions.end() ? m_scanEnd : std::min(*next, m_scanEnd);
    }

private:
    FilePos m_scanEnd;
    std::vector<FilePos> m_positions;
};

class Writer
{
public:
    Writer(const Book& book, const Seams& seams, OutputFile& output, Progress* progress)
        : m_book(book), m_seams(seams), m_output(output), m_progress(progress), m_ends(book)
    {
        if (book.File) {
            m_cursor = std::make_unique<LineCursor>(*book.File);
        }
        m_buffer.reserve(2 * BufferSize);
    }

    WriteOutcome Run()
    {
        PutLine(HeaderLine(m_book));
        for (int number = 1; number <= m_book.TopicCount && m_outcome == WriteOutcome::Written; ++number) {
            if (!m_book.TopicRecs(number).Deleted) {
                WriteTopic(number);
            }
        }
        Flush();
        return m_outcome;
    }

private:
    void WriteTopic(int number)
    {
        const TopicRec& rec = m_book.TopicRecs(number);
        const bool inFile = m_book.TopicPos(number) != 0 && m_cursor;
        if (rec.Text.empty() && rec.Logic.empty() && inFile) {
            if (FindHeader(number, true)) {
                CopyLines(number);
            }
            return;
        }
        PutLine(HeaderOf(m_book.TopicNames(number)));
        if (!rec.Text.empty()) {
            PutLine(rec.Text);
        }
        if (!rec.Logic.empty()) {
            PutLine(rec.Logic);
        } else if (inFile && FindHeader(number, false)) {
            CopyUntakenBlock(number);
        }
    }

    // Moves past the topic's header line and writes it if `put` is set. False after a message.
    bool FindHeader(int number, bool put)
    {
        const FilePos pos = m_book.TopicPos(number);
        if (m_cursor->Position() != pos) {
            m_cursor->Seek(pos);
        }
        std::string_view line;
        if (!Read(line)) {
            return false;
        }
        if (Trim(line) != m_book.TopicNames(number)) {
            StopAtChange(number);
            return false;
        }
        if (put) {
            PutLine(line);
        }
        return true;
    }

    void CopyLines(int number)
    {
        const FilePos end = m_ends.Of(m_book.TopicPos(number));
        while (m_cursor->Position() < end && m_outcome == WriteOutcome::Written) {
            if (const std::string_view lines = m_cursor->ReadCrLfLines(end); !lines.empty()) {
                Put(lines);
            } else {
                CopyLine();
            }
        }
        // A line crosses the end that the scan found: another program changed the file.
        if (m_outcome == WriteOutcome::Written && m_cursor->Position() != end) {
            StopAtChange(number);
        }
    }

    // Copies piece by piece, because a line may be larger than the memory.
    void CopyLine()
    {
        std::string_view piece;
        bool more = false;
        do {
            if (!Check(m_cursor->ReadPiece(piece, more))) {
                return;
            }
            Put(piece);
        } while (more && m_outcome == WriteOutcome::Written);
        Put(LineEnd);
    }

    // The logic editor takes only a block that begins with "<IXML>" and "<LOGIC>". For any other block, an
    // empty `Logic` does not mean that the author removed it.
    void CopyUntakenBlock(int number)
    {
        const FilePos end = m_ends.Of(m_book.TopicPos(number));
        std::string_view line;
        bool found = false;
        while (!found && m_cursor->Position() < end && Read(line)) {
            found = OpensBlock(line);
        }
        if (!found) {
            return;
        }
        const std::string opening(line);
        std::string_view next;
        const bool more = m_cursor->Position() < end;
        if (more && !Read(next)) {
            return;
        }
        if (more && EqualsUpper(Trim(next), LogicOpening)) {
            return;
        }
        PutLine(opening);
        if (more) {
            PutLine(next);
            CopyLines(number);
        }
    }

    bool Read(std::string_view& line) { return Check(m_cursor->ReadLine(line)); }

    // False after a message for a read error.
    bool Check(const FileError& error)
    {
        if (!error.Ok()) {
            Stop("Failed to read original text" + DueTo(error));
        }
        return error.Ok();
    }

    void PutLine(std::string_view line)
    {
        Put(line);
        Put(LineEnd);
    }

    // Adds bytes to the buffer; an edited text may be larger than it. A full buffer is written to the file,
    // and the progress is reported.
    void Put(std::string_view bytes)
    {
        const bool large = bytes.size() > 2 * BufferSize;
        if (large) {
            Flush();
            Write(bytes);
        } else {
            m_buffer.append(bytes);
        }
        if (large || m_buffer.size() >= BufferSize) {
            Flush();
            TellProgress();
        }
    }

    void Flush()
    {
        Write(m_buffer);
        m_buffer.clear();
    }

    void Write(std::string_view bytes)
    {
        if (m_outcome != WriteOutcome::Written || bytes.empty()) {
            return;
        }
        const FileError error = m_output.Write(bytes);
        m_written += static_cast<FilePos>(bytes.size());
        if (!error.Ok()) {
            ShowWriteError(error);
            m_outcome = WriteOutcome::Failed;
        }
    }

    void TellProgress()
    {
        if (m_progress != nullptr && m_outcome == WriteOutcome::Written &&
            !m_progress->Step(m_written, std::max(m_written, m_book.ScanEndPos))) {
            m_outcome = WriteOutcome::Cancelled;
        }
    }

    void StopAtChange(int number) { Stop("Error looking up topic: " + FromBook(m_book.TopicNames(number))); }

    void Stop(const std::string& message)
    {
        m_seams.messages.MsgBox(message, Icon::Warning);
        m_outcome = WriteOutcome::Failed;
    }

    void ShowWriteError(const FileError& error)
    {
        m_seams.messages.MsgBox("Failed to write" + DueTo(error), Icon::Warning);
    }

    const Book& m_book;
    Seams m_seams;
    OutputFile& m_output;
    Progress* m_progress;
    TopicEnds m_ends;
    std::unique_ptr<LineCursor> m_cursor;
    std::string m_buffer;
    FilePos m_written = 0;
    WriteOutcome m_outcome = WriteOutcome::Written;
};

} // namespace

WriteOutcome WriteBook(const Book& book, const Seams& seams, OutputFile& output, Progress* progress)
{
    return Writer(book, seams, output, progress).Run();
}

} // namespace ls
