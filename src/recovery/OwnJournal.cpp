#include "recovery/OwnJournal.h"

#include "base/FileSystem.h"
#include "recovery/JournalFile.h"
#include "recovery/JournalOf.h"

#include <utility>

namespace ls {

FileError OwnJournal::Update(const Book& book, const RunningEdits& running, std::int64_t now)
{
    if (!HasEdits(book, running)) {
        return Remove();
    }
    if (m_folder.empty()) {
        return MakeFileError(error::PathNotFound);
    }
    Journal journal = JournalOf(book, running, m_seams);
    std::string timeless = JournalText(journal);
    if (timeless == m_written && InPlace()) {
        return {};
    }
    const std::size_t oldHead = JournalHead(journal).size();
    journal.written = now;
    const std::string bytes = JournalHead(journal) + timeless.substr(oldHead);
    if (!m_written.empty() && !InPlace()) {
        m_claim.reset(); // its lock file may be gone too
    }
    FileError error = Write(bytes);
    if (error.number == error::PathNotFound && m_claim) { // the folder was removed after the claim
        m_claim.reset();
        error = Write(bytes);
    }
    m_written = error.Ok() ? std::move(timeless) : std::string();
    return error;
}

FileError OwnJournal::Write(const std::string& bytes)
{
    FileError error = Claim();
    return error.Ok() ? WriteJournal(m_seams.files, m_claim->Path(), bytes) : error;
}

bool OwnJournal::InPlace() const
{
    return !m_claim || m_seams.files.Exists(m_claim->Path());
}

FileError OwnJournal::Claim()
{
    if (m_claim) {
        return {};
    }
    if (FileError error = m_seams.files.MakeFolder(m_folder); !error.Ok()) {
        return error;
    }
    return JournalClaim::MakeNew(m_seams.files, m_seams.paths, m_folder, m_names, m_claim);
}

void OwnJournal::Adopt(std::unique_ptr<JournalClaim> recovered)
{
    static_cast<void>(Remove());
    m_claim = std::move(recovered);
}

FileError OwnJournal::Remove()
{
    if (!m_claim) {
        return {};
    }
    m_written.clear();
    FileError error = m_claim->Remove();
    if (error.Ok()) {
        m_claim.reset();
    }
    return error;
}

} // namespace ls
