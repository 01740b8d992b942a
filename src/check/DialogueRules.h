#pragma once

#include "base/FileSystem.h"
#include "base/Seams.h"
#include "book/Book.h"
#include "check/Findings.h"
#include "check/RuleBase.h"

#include <string>

namespace ls {

/// A book on which dialogues can be tried without touching the one on show: its tables, its file, and blocks
/// that stand in memory in place of those in the file.
class DialogueBook
{
public:
    /// The book outlives it.
    explicit DialogueBook(const Book& book);

    /// From now on the topic's block is this one.
    void Replace(int topic, const std::string& block);

    /// Makes the topic the current one; false when it has no logic block that can be found.
    [[nodiscard]] bool Show(int topic);

    [[nodiscard]] const Book& Get() const { return m_book; }

    /// The first error that reading the book's file came to; success when there was none.
    [[nodiscard]] const FileError& Error() const;

private:
    class Overlay;

    Book m_book;
    Overlay* m_overlay; ///< the book's file
};

/// Holds every dialogue of the topic within limits: answers that leave no rule, and whatever else ends a
/// dialogue without advice and has no error of its own among `hasErrors`.
void CheckDialogues(DialogueBook& book, const Seams& seams, const RuleBase& base, bool hasErrors,
                    Findings& findings);

} // namespace ls
