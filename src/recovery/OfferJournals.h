#pragma once

#include "base/Seams.h"
#include "recovery/FindJournals.h"

#include <functional>
#include <memory>
#include <string>

namespace ls {

struct Book;
class OwnJournal;

/// What the user wants done with a journal.
enum class RecoveryChoice
{
    Recover,
    Discard,
    Later, ///< ask again at the next start
};

/// Asks the user; the text is UTF-8.
using AskRecovery = std::function<RecoveryChoice(const std::string& question)>;

/// Offers the journals that were left in the folder, the newest first, until one is recovered; the others
/// are offered at the next start. Those that cannot be read are told in a box. One that fits no book and
/// holds no edited topic is not offered, and stays.
///
/// A recovered one is in `book` then, which had nothing open: in the book that it belongs to, open and
/// scanned, or where it fits none (any more) as a new book. What was being typed is in it, too, and what the
/// author should look at is told in a box. `own` goes on with the journal; one that was damaged is kept
/// aside. True when one was recovered: it is to be shown. Else `book` is as it was.
[[nodiscard]] bool OfferJournals(const std::string& folder, Book& book, const Seams& seams, OwnJournal& own,
                                 const AskRecovery& ask);

} // namespace ls
