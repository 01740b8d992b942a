#pragma once

#include "base/Seams.h"
#include "recovery/Journal.h"
#include "recovery/JournalClaim.h"

#include <cstdint>
#include <memory>
#include <string>

namespace ls {

struct Book;

/// The longest time that an edit may be in memory only, and the interval between two looks.
inline constexpr int JournalMaxAgeMilliseconds = 2000;
inline constexpr int JournalIntervalMilliseconds = 1000;

/// The journal of the running program: one file, for the one book that it edits.
class OwnJournal
{
public:
    /// `folder` is made when the first edit is written. If it is empty there is no folder, and writing fails
    /// with error 76.
    OwnJournal(const Seams& seams, std::string folder, JournalNames names = RandomJournalName)
        : m_seams(seams), m_folder(std::move(folder)), m_names(std::move(names))
    {
    }

    /// Brings the journal up to date with the book's edits. Writes it if the edits differ from its contents;
    /// removes it if no edits are left, as they were saved or given up. After an error the journal on disk
    /// stays unchanged, and the next call tries again. If the journal or its folder was removed from outside,
    /// it is made anew. `now` is in seconds since the beginning of 1970.
    FileError Update(const Book& book, const RunningEdits& running, std::int64_t now);

    /// Takes over a journal whose edits were just recovered, instead of making a new one. So the edits are on
    /// disk at every moment.
    void Adopt(std::unique_ptr<JournalClaim> recovered);

    /// Removes the journal, so that the next start offers nothing.
    FileError Remove();

    /// Whether there is a journal on disk.
    [[nodiscard]] bool Stands() const { return m_claim != nullptr; }

    /// False if the journal was removed from outside; `Update` writes it again.
    [[nodiscard]] bool InPlace() const;

    [[nodiscard]] const std::string& Folder() const { return m_folder; }

private:
    FileError Claim();
    FileError Write(const std::string& bytes);

    Seams m_seams;
    std::string m_folder;
    JournalNames m_names;
    std::unique_ptr<JournalClaim> m_claim;
    std::string m_written; ///< the journal's contents without its time
};

} // namespace ls
