#pragma once

#include "base/Seams.h"
#include "recovery/JournalClaim.h"
#include "recovery/JournalText.h"

#include <memory>
#include <string>
#include <vector>

namespace ls {

/// A journal that some program left when it ended without saving.
struct FoundJournal
{
    std::unique_ptr<JournalClaim> claim; ///< no other program offers it meanwhile
    JournalReading reading;
};

/// What a look at the folder came to.
struct JournalSearch
{
    std::vector<FoundJournal> journals; ///< the newest first
    std::vector<std::string> notes;     ///< what is there and cannot be offered: whole sentences in UTF-8
};

/// Looks for the journals of a folder that can be offered: those of programs that are not running any more.
/// One that a later version wrote, or that cannot be read at the moment, stays where it is; one in which
/// nothing can be found is put aside as damaged. Lock files and half-written journals without a journal are
/// cleared away. A folder that does not exist has none.
[[nodiscard]] JournalSearch FindJournals(const Seams& seams, const std::string& folder);

/// Whether a journal's edits can be brought into their book.
enum class JournalFit
{
    Fits,
    NeverSaved, ///< there is no file
    Gone,       ///< the file is not there any more
    Refused,    ///< the file cannot be opened now
    Changed,    ///< the file is not as it was
};

/// What the user is asked about a journal, as UTF-8: whose edits they are, and what can be done with them.
[[nodiscard]] std::string RecoveryQuestion(const JournalReading& reading, JournalFit fit);

} // namespace ls
