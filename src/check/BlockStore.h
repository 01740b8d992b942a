#pragma once

#include "base/FileError.h"
#include "check/CheckedBlock.h"

#include <memory>
#include <string>
#include <unordered_map>

namespace ls {

struct Book;

/// Where a store's logic blocks come from.
enum class BlockSource
{
    Given,  ///< all blocks of the book, put in by the caller
    Edited, ///< read when needed: the edited block in memory, else the block in the file
};

/// The logic blocks of a book by topic number, and its topics by title.
class BlockStore
{
public:
    /// The book must outlive the store.
    BlockStore(const Book& book, BlockSource source) : m_book(book), m_source(source) {}

    void Put(CheckedBlock block);

    /// The block of a topic; nullptr if the topic has none.
    [[nodiscard]] const CheckedBlock* Find(int topic);

    /// The topic that a DEFINE names by this title (in upper case): the first topic with the title, without
    /// regard to case; 0 for none.
    [[nodiscard]] int TopicNumber(const std::string& title);

    /// The title of a topic without brackets, as UTF-8.
    [[nodiscard]] std::string Title(int topic) const;

    /// Whether the store holds every block of the book. Only then is something unused if no block uses it.
    [[nodiscard]] bool HasWholeBook() const { return m_source == BlockSource::Given; }

    /// The first error while reading blocks from the file, else success.
    [[nodiscard]] const FileError& Error() const { return m_error; }

    /// All blocks in the store, by topic number.
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
    std::unordered_map<int, std::unique_ptr<CheckedBlock>> m_blocks; ///< nullptr: the topic has no block
    std::unordered_map<std::string, int> m_numbers;                  ///< by title in upper case
};

/// The block in a text whose lines end in CR LF, from its "<IXML>" line on. Lines count from 1. Nothing if
/// the text has no such line.
[[nodiscard]] std::unique_ptr<CheckedBlock> ReadLogicText(const std::string& text, int topic);

} // namespace ls
