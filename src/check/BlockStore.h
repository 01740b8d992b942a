#pragma once

#include "base/FileError.h"
#include "check/CheckedBlock.h"

#include <memory>
#include <string>
#include <unordered_map>

namespace ls {

struct Book;

/// Which logic blocks are at hand.
enum class BlockSource
{
    Given,  ///< those that were put in, all blocks of the book
    Edited, ///< read when asked for: from what was edited in memory, else from the file
};

/// The logic blocks of a book by topic number, and its topics by title.
class BlockStore
{
public:
    /// The book must outlive the store.
    BlockStore(const Book& book, BlockSource source) : m_book(book), m_source(source) {}

    void Put(CheckedBlock block);

    /// The block of a topic; nullptr when it has none.
    [[nodiscard]] const CheckedBlock* Find(int topic);

    /// The topic that a DEFINE with this title (upper case) means: the first of that title without regard to
    /// case; 0 when there is none.
    [[nodiscard]] int TopicNumber(const std::string& title);

    /// The title of a topic without brackets, as UTF-8.
    [[nodiscard]] std::string Title(int topic) const;

    /// Whether every block of the book is there, so that what no block uses is not used at all.
    [[nodiscard]] bool HasWholeBook() const { return m_source == BlockSource::Given; }

    /// The first error that reading blocks from the file came to; success when there was none.
    [[nodiscard]] const FileError& Error() const { return m_error; }

    /// All blocks that are there, by topic.
    [[nodiscard]] const std::unordered_map<int, std::unique_ptr<CheckedBlock>>& All() const
    {
        return m_blocks;
    }

private:
    [[nodiscard]] std::unique_ptr<CheckedBlock> Read(int topic);
    [[nodiscard]] std::unique_ptr<CheckedBlock> ReadFile(int topic);

    const Book& m_book;
    BlockSource m_source;
    FileError m_error;
    std::unordered_map<int, std::unique_ptr<CheckedBlock>> m_blocks; ///< nullptr: looked for in vain
    std::unordered_map<std::string, int> m_numbers;                  ///< by title in upper case
};

/// The block in a text that begins with "<IXML>", parted by CR LF, its lines counted from 1; nothing when the
/// text holds no such line.
[[nodiscard]] std::unique_ptr<CheckedBlock> ReadLogicText(const std::string& text, int topic);

} // namespace ls
