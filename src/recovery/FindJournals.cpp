#include "recovery/FindJournals.h"

#include "base/CodePage.h"
#include "base/FileSystem.h"
#include "base/Quoted.h"
#include "recovery/JournalFile.h"

#include <algorithm>
#include <set>
#include <string_view>
#include <tuple>
#include <utility>

namespace ls {

namespace {

// The names of all journals in the folder, including those of which only a lock or a half-written file
// exists.
FileError ListNames(const Seams& seams, const std::string& folder, std::set<std::string>& names)
{
    std::vector<FolderEntry> entries;
    if (FileError error = seams.files.List(folder, entries); !error.Ok()) {
        return error;
    }
    const std::string halfWritten = NewJournalName(std::string(JournalType));
    for (const FolderEntry& entry : entries) {
        for (const std::string_view type : {JournalType, JournalLockType, std::string_view(halfWritten)}) {
            if (!entry.isFolder && entry.name.size() > type.size() && entry.name.ends_with(type)) {
                names.insert(entry.name.substr(0, entry.name.size() - type.size()));
            }
        }
    }
    return {};
}

std::string CannotBeRead(const std::string& path, const FileError& error)
{
    return "The recovery journal " + InAngles(path) + " cannot be read" + DueTo(error) +
           ". It stays where it is.";
}

// Why a journal cannot be offered; empty if it can.
std::string Refusal(FoundJournal& found)
{
    const std::string journal = "The recovery journal " + InAngles(found.claim->Path());
    if (found.reading.state == JournalState::Newer) {
        return journal + " was written by a later version of Lodestar Advisor, and only that can recover it. "
                         "It stays where it is.";
    }
    if (found.reading.state != JournalState::Unreadable) {
        return {};
    }
    const std::string damaged = journal + " is damaged, and nothing in it can be read. ";
    if (!found.claim->KeepDamaged().Ok()) {
        return damaged + "It stays where it is.";
    }
    std::ignore = found.claim->Remove(); // a file that stays is found again at the next start
    return damaged + "It is called " + InAngles(found.claim->DamagedPath()) + " now.";
}

void Look(const Seams& seams, FoundJournal&& found, JournalSearch& search)
{
    const FileError error = ReadJournal(seams.files, found.claim->Path(), found.reading);
    if (error.number == error::FileNotFound) {
        std::ignore = found.claim->Remove(); // a file that stays is found again at the next start
        return;
    }
    std::string note;
    if (error.number == error::OutOfMemory) {
        note = "The recovery journal " + InAngles(found.claim->Path()) +
               " is too large to be read. It stays where it is.";
    } else {
        note = error.Ok() ? Refusal(found) : CannotBeRead(found.claim->Path(), error);
    }
    if (note.empty()) {
        search.journals.push_back(std::move(found));
    } else {
        search.notes.push_back(std::move(note));
    }
}

} // namespace

JournalSearch FindJournals(const Seams& seams, const std::string& folder)
{
    JournalSearch search;
    std::set<std::string> names;
    const FileError error = ListNames(seams, folder, names);
    if (!error.Ok() && error.number != error::PathNotFound && error.number != error::FileNotFound) {
        search.notes.push_back("The recovery journals in " + InAngles(folder) + " cannot be looked for" +
                               DueTo(error) + ".");
    }
    for (const std::string& name : names) {
        FoundJournal found;
        const FileError refused = JournalClaim::Take(seams.files, seams.paths, folder, name, found.claim);
        if (refused.Ok()) {
            Look(seams, std::move(found), search);
        } else if (refused.number != error::PermissionDenied) { // otherwise its program is running
            const std::string path = JoinPath(seams.paths, folder, name + std::string(JournalType));
            search.notes.push_back(CannotBeRead(path, refused));
        }
    }
    std::stable_sort(search.journals.begin(), search.journals.end(),
                     [](const FoundJournal& a, const FoundJournal& b) {
                         return a.reading.journal.written > b.reading.journal.written;
                     });
    return search;
}

std::string RecoveryQuestion(const JournalReading& reading, JournalFit fit)
{
    const std::optional<JournalBook>& book = reading.journal.book;
    const bool named = book && !book->path.empty();
    std::string text = "Lodestar Advisor ended before your changes to ";
    text += named ? "the book \"" + FromPath(book->path) + "\"" : std::string("a new book");
    text += " were saved.";
    if (reading.state == JournalState::Damaged) {
        text += " The record of them is damaged; what can be read of it can be recovered.";
    }
    switch (fit) {
    case JournalFit::Fits:
    case JournalFit::NeverSaved:
        break;
    case JournalFit::Gone:
        text += " The book is not there any more, so the changed topics would become a new book.";
        break;
    case JournalFit::Refused:
        text +=
            " The book cannot be opened now; perhaps another program has it open. Choose Later to be asked "
            "again at the next start: recovered now, the changed topics would become a new book.";
        break;
    case JournalFit::Changed:
        text += " The book is not as it was when you changed it, so the changed topics would become a new "
                "book.";
        break;
    }
    return text + "\n\nDo you want to recover them?";
}

} // namespace ls
