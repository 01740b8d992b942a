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
/// `Look` is called often. Without a new edit it costs next to nothing, however large the book is. It may be
/// called while a box or a form of a command is open. If something was edited since the last look, the book's
/// tables are consistent: each edit completes them before it sets `BookChanged`. An action that leaves them
/// inconsistent for a while, such as opening another book, clears `BookChanged` first.
class JournalWatch
{
public:
    using Forms = std::vector<EditSource*>;
    using Clock = std::function<std::int64_t()>;          ///< seconds since the beginning of 1970
    using Tell = std::function<void(const std::string&)>; ///< shows the user a text, in UTF-8

    JournalWatch(const Book& book, const Seams& seams, OwnJournal& journal, Clock clock, Tell tell);

    /// Brings the journal up to date. `forms` are the open forms in which the book is edited; `busy` is true
    /// while a command runs. If the journal cannot be written, the user is told once, and each check tries
    /// again.
    void Look(const Forms& forms, bool busy);

    /// Called when a fault ends the program: writes what the forms still hold.
    void LastAct(const Forms& forms);

    /// Called when the program is about to end. After a fault, tries once more to write what could not be
    /// written then. Otherwise removes the journal, as the user has saved the edits or given them up.
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
    State m_kept;          ///< the state that the journal holds
    bool m_typing = false; ///< the journal holds the contents of a form
    bool m_told = false;
    bool m_unwritten = false; ///< `m_last` could not be written
    RunningEdits m_last;      ///< the contents of the forms when a fault ended the program
};

/// The message to the user when the journal cannot be written, as UTF-8.
[[nodiscard]] std::string JournalTrouble(const std::string& folder, const FileError& error);

} // namespace ls
