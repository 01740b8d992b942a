#include "recovery/JournalWatch.h"

#include "authoring/EditSource.h"
#include "base/CodePage.h"
#include "base/ProgramEnd.h"
#include "book/Book.h"
#include "recovery/JournalOf.h"
#include "recovery/OwnJournal.h"

#include <algorithm>
#include <exception>
#include <utility>

namespace ls {

JournalWatch::JournalWatch(const Book& book, const Seams& seams, OwnJournal& journal, Clock clock, Tell tell)
    : m_book(book), m_seams(seams), m_journal(journal), m_clock(std::move(clock)), m_tell(std::move(tell))
{
}

JournalWatch::State JournalWatch::StateOf(const Forms& forms) const
{
    State state{m_book.BookChanged, m_book.BookChanged.Changes(), {}};
    for (const EditSource* form : forms) {
        state.forms.push_back(form->LastEdit());
    }
    std::sort(state.forms.begin(), state.forms.end());
    return state;
}

RunningEdits JournalWatch::Collect(const Forms& forms)
{
    RunningEdits running;
    for (EditSource* form : forms) {
        form->AddRunningEdits(running);
    }
    return running;
}

// Memory may run out while a large text is copied. The journal on disk is then left as it is.
void JournalWatch::Look(const Forms& forms, bool busy)
{
    if (m_seams.end.Ended()) {
        return;
    }
    try {
        State state = StateOf(forms);
        if (state != m_kept || !m_journal.InPlace()) {
            LookAt(forms, busy, std::move(state));
        }
    } catch (const std::exception&) {
        TellOnce(MakeFileError(error::OutOfMemory));
    }
}

// While a command runs and no form is open, edits may be missing only until the command has stored or saved
// them. So the journal is not removed before the command ends.
void JournalWatch::LookAt(const Forms& forms, bool busy, State state)
{
    const RunningEdits running = Collect(forms);
    const bool mayRemove = !busy || !forms.empty();
    if ((mayRemove || HasEdits(m_book, running)) && Write(running)) {
        m_kept = std::move(state);
    }
}

bool JournalWatch::Write(const RunningEdits& running)
{
    const FileError error = m_journal.Update(m_book, running, m_clock());
    if (!error.Ok()) {
        TellOnce(error);
        return false;
    }
    m_typing = !running.None();
    return true;
}

void JournalWatch::LastAct(const Forms& forms)
{
    try {
        WriteLast(forms);
    } catch (const std::exception&) {
        return; // nothing more can be done; the journal on disk stays
    }
}

// If a fault destroyed the form, only the journal holds what was typed there. So the journal is not
// rewritten, unless that text was accepted since.
void JournalWatch::WriteLast(const Forms& forms)
{
    const State state = StateOf(forms);
    m_last = Collect(forms);
    const bool accepted = state.changes != m_kept.changes;
    if (m_last.None() && m_typing && !accepted) {
        return;
    }
    m_unwritten = true;
    m_unwritten = !m_journal.Update(m_book, m_last, m_clock()).Ok();
}

void JournalWatch::Finish()
{
    if (!m_seams.end.Ended()) {
        static_cast<void>(m_journal.Remove());
    } else if (m_unwritten) {
        try {
            m_unwritten = !m_journal.Update(m_book, m_last, m_clock()).Ok();
        } catch (const std::exception&) {
            return;
        }
    }
}

void JournalWatch::TellOnce(const FileError& error)
{
    if (!std::exchange(m_told, true)) {
        m_tell(JournalTrouble(m_journal.Folder(), error));
    }
}

std::string JournalTrouble(const std::string& folder, const FileError& error)
{
    const std::string why = folder.empty()
                                ? "there is no folder for it, as you have no home folder"
                                : "it cannot be written in <<" + FromPath(folder) + ">>" + DueTo(error);
    return "Your changes are not in the recovery journal: " + why +
           ".\n\nYou can go on, but a crash would lose what you have not saved. Writing the journal is tried "
           "again every second; this is told only once.";
}

} // namespace ls
