#pragma once

#include "base/Seams.h"
#include "recovery/JournalClaim.h"
#include "recovery/JournalText.h"

#include <memory>
#include <string>
#include <vector>

namespace ls {

/// A journal that a program left when it ended without saving.
struct FoundJournal
{
    std::unique_ptr<JournalClaim> claim; ///< keeps other programs from offering it
    JournalReading reading;
};

/// The result of a search in the journals' folder.
struct JournalSearch
{
    std::vector<FoundJournal> journals; ///< newest first
    /// Journals that cannot be offered, and why: whole sentences in UTF-8.
    std::vector<std::string> notes;
};

/// Finds the journals of a folder that can be offered: those of programs that no longer run. A journal stays
/// where it is if a later version wrote it, or if it cannot be read now. A journal in which nothing can be
/// found is put aside as damaged. Lock files and half-written journals without a journal are removed. A
/// folder that does not exist has no journals.
[[nodiscard]] JournalSearch FindJournals(const Seams& seams, const std::string& folder);

/// Whether a journal's edits can be applied to their book.
enum class JournalFit
{
    Fits,
    NeverSaved, ///< the book has no file
    Gone,       ///< the file no longer exists
    Refused,    ///< the file cannot be opened now
    Changed,    ///< the file differs from the one that was edited
};

/// The question to the user about a journal, as UTF-8: whose edits it holds, and what can be done with them.
[[nodiscard]] std::string RecoveryQuestion(const JournalReading& reading, JournalFit fit);

} // namespace ls
