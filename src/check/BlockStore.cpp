#include "check/BlockStore.h"

#include "base/CodePage.h"
#include "base/LineCursor.h"
#include "base/Text.h"
#include "book/Book.h"
#include "book/BookLoader.h"
#include "book/TopicEnd.h"
#include "check/CheckedBlockReader.h"
#include "render/text/TopicBody.h"

#include <string_view>

namespace ls {

namespace {

// Searches a topic's lines for "<IXML>" and reads the block after it.
std::unique_ptr<CheckedBlock> ReadBlock(TopicBody& body, int topic)
{
    std::unique_ptr<CheckedBlockReader> reader;
    std::string_view line;
    for (int number = 1; body.Next(line) && !StartsTopic(line); ++number) {
        if (reader) {
            reader->Take(line, number);
        } else if (OpensBlock(line)) {
            reader = std::make_unique<CheckedBlockReader>(topic, number);
        }
    }
    return reader ? std::make_unique<CheckedBlock>(reader->Finish()) : nullptr;
}

} // namespace

std::unique_ptr<CheckedBlock> ReadLogicText(const std::string& text, int topic)
{
    TextBody body(text);
    return ReadBlock(body, topic);
}

void BlockStore::Put(CheckedBlock block)
{
    const int topic = block.topic;
    m_blocks[topic] = std::make_unique<CheckedBlock>(std::move(block));
}

const CheckedBlock* BlockStore::Find(int topic)
{
    const auto found = m_blocks.find(topic);
    if (found != m_blocks.end() || HasWholeBook()) {
        return found == m_blocks.end() ? nullptr : found->second.get();
    }
    return m_blocks.emplace(topic, Read(topic)).first->second.get();
}

std::unique_ptr<CheckedBlock> BlockStore::Read(int topic)
{
    if (topic < 1 || topic > m_book.TopicCount) {
        return nullptr;
    }
    const TopicRec& rec = m_book.TopicRecs(topic);
    return rec.Logic.empty() ? ReadFile(topic) : ReadLogicText(rec.Logic, topic);
}

std::unique_ptr<CheckedBlock> BlockStore::ReadFile(int topic)
{
    const FilePos pos = m_book.TopicPos(topic);
    if (!m_book.File || pos == 0) {
        return nullptr;
    }
    LineCursor cursor = CursorOf(m_book);
    cursor.Seek(pos);
    FileBody body(cursor);
    std::string_view header;
    std::unique_ptr<CheckedBlock> block = body.Next(header) ? ReadBlock(body, topic) : nullptr;
    if (m_error.Ok()) {
        m_error = body.Error();
    }
    return block;
}

int BlockStore::TopicNumber(const std::string& title)
{
    if (m_numbers.empty()) {
        for (int i = 1; i <= m_book.TopicCount; ++i) {
            const std::string& name = m_book.TopicNames(i);
            m_numbers.emplace(UpperCase(WithoutBrackets(name)), i);
        }
    }
    const auto found = m_numbers.find(title);
    return found == m_numbers.end() ? 0 : found->second;
}

std::string BlockStore::Title(int topic) const
{
    return FromBook(WithoutBrackets(m_book.TopicNames(topic)));
}

} // namespace ls
