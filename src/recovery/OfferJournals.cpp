#include "recovery/OfferJournals.h"

#include "base/CodePage.h"
#include "base/FileSystem.h"
#include "base/Messages.h"
#include "base/ProgramEnd.h"
#include "base/QuietMessages.h"
#include "book/Book.h"
#include "book/BookLoader.h"
#include "recovery/ApplyJournal.h"
#include "recovery/OwnJournal.h"

#include <memory>
#include <utility>
#include <vector>

namespace ls {

namespace {

bool IsMissing(const FileError& error)
{
    return error.number == error::FileNotFound || error.number == error::PathNotFound;
}

// Tries to open the book of a journal, without messages. A fault here does not end the program, as the edits
// can still become a new book.
JournalFit OpenFitting(const Journal& journal, Book& book, const Seams& seams)
{
    if (!journal.book || journal.book->path.empty()) {
        return JournalFit::NeverSaved;
    }
    const std::string& path = journal.book->path;
    const Sharing sharing = journal.book->locked ? Sharing::Locked : Sharing::Shared;
    std::unique_ptr<BookFile> file;
    if (const FileError error = seams.files.OpenForReading(path, sharing, file); !error.Ok()) {
        return IsMissing(error) ? JournalFit::Gone : JournalFit::Refused;
    }
    file.reset();
    ProgramEnd end;
    QuietMessages messages(end);
    const Seams quiet = seams.With(messages, end);
    book.BookPath = path;
    book.LockBook = journal.book->locked;
    const bool fits = OpenBook(book, quiet) && !book.IsPlainText() && ScanBook(book, quiet) &&
                      FitsBook(journal, book, seams);
    return fits ? JournalFit::Fits : JournalFit::Changed;
}

std::string NotesText(const char* first, const std::vector<std::string>& notes)
{
    constexpr std::size_t most = 8;
    std::string text = first;
    for (std::size_t i = 0; i < notes.size() && i < most; ++i) {
        text += (text.empty() ? "" : "\n\n") + notes[i];
    }
    if (notes.size() > most) {
        text += "\n\n... and " + std::to_string(notes.size() - most) + " more.";
    }
    return text;
}

// From now on the program writes its own edits to the recovered journal's file. A damaged journal that cannot
// be copied is left alone, because its unread part must not be overwritten.
void Adopt(FoundJournal& found, OwnJournal& own, std::vector<std::string>& notes)
{
    if (found.reading.state == JournalState::Damaged) {
        if (!found.claim->KeepDamaged().Ok()) {
            notes.push_back("The damaged recovery journal <<" + FromPath(found.claim->Path()) +
                            ">> could not be put aside, and will be offered again.");
            return;
        }
        notes.push_back("The damaged recovery journal is kept as <<" + FromPath(found.claim->DamagedPath()) +
                        ">>.");
    }
    own.Adopt(std::move(found.claim));
}

void Recover(FoundJournal& found, bool fits, Book& book, const Seams& seams, OwnJournal& own)
{
    const Journal& journal = found.reading.journal;
    const RunningEdits running = fits ? ApplyJournal(journal, book) : AsNewBook(journal, book);
    std::vector<std::string> notes = KeepRunningEdits(book, seams, running);
    Adopt(found, own, notes);
    if (!notes.empty()) {
        seams.messages.MsgBox(NotesText("Please look at these before you save the book:", notes),
                              Icon::Information);
    }
}

void Discard(FoundJournal& found, const Seams& seams)
{
    if (const FileError error = found.claim->Remove(); !error.Ok()) {
        seams.messages.MsgBox("The recovery journal <<" + FromPath(found.claim->Path()) +
                                  ">> cannot be removed" + DueTo(error) + ". It will be offered again.",
                              Icon::Warning);
    }
}

// An empty book with the working folder of `book`.
Book EmptyBook(const Book& book)
{
    Book empty;
    empty.WorkDir = book.WorkDir;
    return empty;
}

// True if the journal was recovered.
bool Offer(FoundJournal& found, Book& book, const Seams& seams, OwnJournal& own, const AskRecovery& ask)
{
    Book tried = EmptyBook(book);
    const JournalFit fit = OpenFitting(found.reading.journal, tried, seams);
    const bool fits = fit == JournalFit::Fits;
    if (!fits) {
        tried = EmptyBook(book);
        if (!HasNewBookEdits(found.reading.journal)) {
            return false; // it stays, and may fit again when the book is back
        }
    }
    switch (ask(RecoveryQuestion(found.reading, fit))) {
    case RecoveryChoice::Recover:
        book = std::move(tried);
        Recover(found, fits, book, seams, own);
        return true;
    case RecoveryChoice::Discard:
        Discard(found, seams);
        break;
    case RecoveryChoice::Later:
        break;
    }
    return false;
}

} // namespace

bool OfferJournals(const std::string& folder, Book& book, const Seams& seams, OwnJournal& own,
                   const AskRecovery& ask)
{
    if (folder.empty()) {
        return false;
    }
    JournalSearch search = FindJournals(seams, folder);
    if (!search.notes.empty()) {
        seams.messages.MsgBox(NotesText("", search.notes), Icon::Warning);
    }
    for (FoundJournal& found : search.journals) {
        if (seams.end.Ended()) {
            return false;
        }
        if (Offer(found, book, seams, own, ask)) {
            return true;
        }
    }
    return false;
}

} // namespace ls
