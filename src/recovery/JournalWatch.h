#pragma once

#include "base/FileError.h"
#include "base/Seams.h"
#include "recovery/Journal.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace ls {

struct Book;
class EditSource;
class OwnJournal;

/// Decides when the running program's journal is written.
///
/// It is looked at often: a look at which nothing was edited costs next to nothing, however large the book
/// is. It may come while a box or a form of a command is open. The book is in order then whenever something
/// was edited since the last look: each edit brings the tables in order before it sets `BookChanged`, and
/// what takes the book out of order for a while (opening another one) clears `BookChanged` first.
class JournalWatch
{
public:
    using Forms = std::vector<EditSource*>;
    using Clock = std::function<std::int64_t()>;          ///< seconds since the beginning of 1970
    using Tell = std::function<void(const std::string&)>; ///< tells the user; the text is UTF-8

    JournalWatch(const Book& book, const Seams& seams, OwnJournal& journal, Clock clock, Tell tell);

    /// Brings the journal up to date. `forms` are the open ones in which the book is edited; `busy` tells
    /// whether a command is running. A journal that cannot be written is told once, and tried again at every
    /// look.
    void Look(const Forms& forms, bool busy);

    /// A fault ends the program: the forms stand as the user left them, and what is in them is written.
    void LastAct(const Forms& forms);

    /// The program is about to end. After a fault what could not be written then is tried once more; else the
    /// journal goes, since the user has saved the edits or given them up.
    void Finish();

private:
    struct State
    {
        bool changed = false;
        std::uint64_t changes = 0;
        std::vector<std::uint64_t> forms;

        friend bool operator==(const State&, const State&) = default;
    };

    [[nodiscard]] State StateOf(const Forms& forms) const;
    [[nodiscard]] static RunningEdits Collect(const Forms& forms);
    bool Write(const RunningEdits& running);
    void LookAt(const Forms& forms, bool busy, State state);
    void WriteLast(const Forms& forms);
    void TellOnce(const FileError& error);

    const Book& m_book;
    Seams m_seams;
    OwnJournal& m_journal;
    Clock m_clock;
    Tell m_tell;
    State m_kept;          ///< when the journal was brought up to date last
    bool m_typing = false; ///< it holds what stood in a form then
    bool m_told = false;
    bool m_unwritten = false; ///< `m_last` could not be written
    RunningEdits m_last;      ///< what stood in the forms when a fault ended the program
};

/// What the user is told when the journal cannot be written: the text is UTF-8.
[[nodiscard]] std::string JournalTrouble(const std::string& folder, const FileError& error);

} // namespace ls
