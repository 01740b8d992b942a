#pragma once

#include "base/Seams.h"
#include "recovery/Journal.h"
#include "recovery/JournalClaim.h"

#include <cstdint>
#include <memory>
#include <string>

namespace ls {

struct Book;

/// How long an edit may stand in memory only, in milliseconds, and how often a program looks for that.
inline constexpr int JournalMaxAgeMilliseconds = 2000;
inline constexpr int JournalIntervalMilliseconds = 1000;

/// The journal of the running program: one file, for the one book that it edits.
class OwnJournal
{
public:
    /// `folder` is made when the first edit is written; an empty one stands for none: writing fails with
    /// error 76 then.
    OwnJournal(const Seams& seams, std::string folder, JournalNames names = RandomJournalName)
        : m_seams(seams), m_folder(std::move(folder)), m_names(std::move(names))
    {
    }

    /// Brings the journal to what the book's edits are now: written when they differ from what stands there,
    /// removed when there are none any more (they were saved or given up). After an error what stood there
    /// stands, and the next call tries again. A journal or a folder that somebody took away is made anew.
    /// `now` is in seconds since the beginning of 1970.
    FileError Update(const Book& book, const RunningEdits& running, std::int64_t now);

    /// Goes on with a journal whose edits were just recovered, in place of an own one, so that they stand in
    /// a journal at every moment.
    void Adopt(std::unique_ptr<JournalClaim> recovered);

    /// Removes the journal: the program ends, and nothing is to be offered.
    FileError Remove();

    /// Whether a journal stands on the disk.
    [[nodiscard]] bool Stands() const { return m_claim != nullptr; }

    /// False when the journal that was written has been taken away from outside; `Update` writes it again.
    [[nodiscard]] bool InPlace() const;

    [[nodiscard]] const std::string& Folder() const { return m_folder; }

private:
    FileError Claim();
    FileError Write(const std::string& bytes);

    Seams m_seams;
    std::string m_folder;
    JournalNames m_names;
    std::unique_ptr<JournalClaim> m_claim;
    std::string m_written; ///< what stands there, without its time
};

} // namespace ls
