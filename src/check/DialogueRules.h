#pragma once

#include "base/FileSystem.h"
#include "base/Seams.h"
#include "book/Book.h"
#include "check/Findings.h"
#include "check/RuleBase.h"

#include <string>

namespace ls {

/// A copy of a book to try dialogues on, without a change to the book on show. It has the book's tables and
/// file. Blocks in memory can replace blocks of the file.
class DialogueBook
{
public:
    /// The book must outlive it.
    explicit DialogueBook(const Book& book);

    /// Replaces the topic's block.
    void Replace(int topic, const std::string& block);

    /// Makes the topic the current one. False if no logic block is found in it.
    [[nodiscard]] bool Show(int topic);

    [[nodiscard]] const Book& Get() const { return m_book; }

    /// The first error while reading the book's file, else success.
    [[nodiscard]] const FileError& Error() const;

private:
    class Overlay;

    Book m_book;
    Overlay* m_overlay; ///< owned by m_book
};

/// Runs every dialogue of the topic within limits. Reports answers that leave no rule, and other ends without
/// advice. `hasErrors` means that the block has errors already; then only ends of the program are reported.
void CheckDialogues(DialogueBook& book, const Seams& seams, const RuleBase& base, bool hasErrors,
                    Findings& findings);

} // namespace ls
