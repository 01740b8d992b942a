#pragma once

#include "base/Seams.h"
#include "recovery/FindJournals.h"

#include <functional>
#include <memory>
#include <string>

namespace ls {

struct Book;
class OwnJournal;

/// The user's answer about a journal.
enum class RecoveryChoice
{
    Recover,
    Discard,
    Later, ///< ask again at the next start
};

/// Asks the user; the text is UTF-8.
using AskRecovery = std::function<RecoveryChoice(const std::string& question)>;

/// Offers the journals in the folder, newest first, until one is recovered. The others are offered at the
/// next start. A box lists those that cannot be read. A journal that fits no book and holds no edited topic
/// is not offered and stays.
///
/// True if a journal was recovered: `book`, which must be empty before, then holds its edits and should be
/// shown. It is the book that the journal belongs to, open and scanned, or a new book if the journal fits
/// none. What the user was typing is in it too, and a box lists what the author should check. `own` takes
/// over the journal; a damaged one is copied before. False leaves `book` unchanged.
[[nodiscard]] bool OfferJournals(const std::string& folder, Book& book, const Seams& seams, OwnJournal& own,
                                 const AskRecovery& ask);

} // namespace ls
