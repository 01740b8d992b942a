#include "base/LineCursor.h"

#include "base/Text.h"

#include <algorithm>
#include <cstring>

namespace ls {

namespace {

// A topic fits into the first block, so that showing one reads little. Blocks then double up to the last
// size: a scan makes few system calls and stays inside the processor's cache.
constexpr std::size_t FirstBlock = 16 * 1024;
constexpr std::size_t LastBlock = 256 * 1024;

constexpr std::size_t Chunk = 4 * 1024;

// A longer line gets its memory in one step. Growing step by step would take three times as much.
constexpr std::size_t LongLine = 1024 * 1024;

// Whether an LF follows each CR of the bytes; reads one byte past them. The loop has no branch, so that the
// compiler tests many bytes at a time.
bool EachCrHasLf(const char* bytes, std::size_t size)
{
    unsigned bare = 0;
    for (std::size_t i = 0; i < size; ++i) {
        bare |= static_cast<unsigned>(bytes[i] == '\r') & static_cast<unsigned>(bytes[i + 1] != '\n');
    }
    return bare == 0;
}

} // namespace

LineCursor::LineCursor(BookFile& file) : m_file(&file) {}

void LineCursor::Seek(FilePos pos)
{
    m_blockPos = pos < 1 ? 1 : pos;
    m_size = 0;
    m_next = 0;
    m_inLine = false;
    m_error = {};
}

// Reads the bytes at Position() into the block. False at the end of the file and after an error; m_error
// distinguishes the two. After an error nothing more is read until Seek.
bool LineCursor::Fill()
{
    if (!m_error.Ok()) {
        return false; // a later read might succeed, and the book would have a gap
    }
    m_blockPos = Position();
    m_next = 0;
    const std::size_t wanted =
        m_capacity == 0 ? FirstBlock : std::min(m_size < m_capacity ? m_capacity : 2 * m_capacity, LastBlock);
    m_size = 0;
    if (m_capacity < wanted || m_capacity > LastBlock) { // a long line made the block larger than LastBlock
        SetCapacity(wanted, 0);
    }
    m_error = m_file->ReadAt(m_blockPos, m_block.get(), m_capacity, m_size);
    if (!m_error.Ok()) {
        m_size = 0;
    }
    return m_size > 0;
}

// Gives the block a new size and moves `kept` bytes from m_next on to its front.
void LineCursor::SetCapacity(std::size_t wanted, std::size_t kept)
{
    auto block = std::make_unique_for_overwrite<char[]>(wanted);
    std::copy_n(m_block.get() + m_next, kept, block.get());
    m_block = std::move(block);
    m_capacity = wanted;
}

// Moves the unread bytes to the front and reads at least as many more, so that no byte moves twice per read.
// Errors as in Fill.
bool LineCursor::FillMore()
{
    if (!m_error.Ok()) {
        return false;
    }
    const std::size_t kept = m_size - m_next;
    if (m_capacity < LastBlock || kept > m_capacity / 2) {
        SetCapacity(std::max(std::min(kept + 2 * m_capacity, LastBlock), 2 * kept), kept);
    } else {
        std::memmove(m_block.get(), m_block.get() + m_next, kept);
    }
    m_blockPos = Position();
    m_next = 0;
    std::size_t got = 0;
    m_error =
        m_file->ReadAt(m_blockPos + static_cast<FilePos>(kept), m_block.get() + kept, m_capacity - kept, got);
    m_size = kept + (m_error.Ok() ? got : 0);
    return m_size > kept;
}

bool LineCursor::AtEnd()
{
    return m_next == m_size && !Fill() && m_error.Ok();
}

void LineCursor::AppendRestOfBlock(std::string& line)
{
    line.append(m_block.get() + m_next, m_size - m_next);
    m_next = m_size;
    if (line.size() > LongLine && line.capacity() - line.size() < m_capacity) {
        const std::size_t wanted = line.size() + RestOfLine();
        if (wanted > line.capacity()) {
            std::string longer; // growing `line` itself would at least double its room
            longer.reserve(wanted);
            line.swap(longer.append(line));
        }
    }
}

// The number of bytes that the line still has in the file. All bytes of the block must be taken. Reads ahead,
// but the position stays.
std::size_t LineCursor::RestOfLine()
{
    Seek(Position());
    std::size_t rest = 0;
    for (std::size_t size = 1; size > 0;) {
        const FileError error =
            m_file->ReadAt(m_blockPos + static_cast<FilePos>(rest), m_block.get(), m_capacity, size);
        if (!error.Ok()) {
            break; // the next read reports it
        }
        if (const void* end = std::memchr(m_block.get(), '\r', size); end != nullptr) {
            return rest + static_cast<std::size_t>(static_cast<const char*>(end) - m_block.get());
        }
        rest += size;
    }
    return rest;
}

// At a CR: passes it and a following LF, which may be in the next block.
FileError LineCursor::PassLineEnd()
{
    ++m_next;
    if (m_next == m_size && !Fill()) {
        return m_error;
    }
    if (m_block[m_next] == '\n') {
        ++m_next;
    }
    return {};
}

FileError LineCursor::ReadLine(std::string& line)
{
    line.clear();
    return AppendLine(line);
}

FileError LineCursor::AppendLine(std::string& text)
{
    if (m_next == m_size && !Fill()) {
        return m_error.Ok() ? MakeFileError(error::InputPastEnd) : m_error;
    }
    for (;;) {
        const char* from = m_block.get() + m_next;
        const void* end = std::memchr(from, '\r', m_size - m_next);
        if (end != nullptr) {
            const auto length = static_cast<std::size_t>(static_cast<const char*>(end) - from);
            text.append(from, length);
            m_next += length;
            return PassLineEnd();
        }
        AppendRestOfBlock(text);
        if (!Fill()) {
            return m_error; // the last line may lack its line end
        }
    }
}

FileError LineCursor::ReadLine(std::string_view& line)
{
    const std::string_view block(m_block.get() + m_next, m_size - m_next);
    const std::size_t length = block.find('\r');
    // A CR at the block's end is not passed here: passing it would refill the block and lose the line.
    if (length != std::string_view::npos && length + 1 < block.size()) {
        line = block.substr(0, length);
        m_next += length + (block[length + 1] == '\n' ? 2 : 1);
        return {};
    }
    FileError error = ReadLine(m_line);
    line = m_line;
    return error;
}

FileError LineCursor::ReadPiece(std::string_view& piece, bool& more)
{
    piece = {};
    if (m_next == m_size && !Fill()) {
        const bool missing = m_error.Ok() && !more; // a last line may lack its line end
        more = false;
        return missing ? MakeFileError(error::InputPastEnd) : m_error;
    }
    const std::string_view block(m_block.get() + m_next, m_size - m_next);
    const std::size_t length = std::min(block.find('\r'), block.size());
    if (length == 0) {
        more = false;
        return PassLineEnd();
    }
    piece = block.substr(0, length);
    m_next += length;
    // A CR at the block's end is not passed here: passing it would refill the block and lose the piece.
    more = length + 1 >= block.size();
    return more ? FileError{} : PassLineEnd();
}

// Takes the line if its end is in the block. The first `searched` bytes are known to hold no line end. A CR
// at the block's end is not passed, because its LF may follow.
bool LineCursor::TakeWholeLine(std::size_t searched, std::string_view& line)
{
    const std::string_view rest(m_block.get() + m_next, m_size - m_next);
    const std::size_t length = rest.find('\r', searched);
    if (length == std::string_view::npos || length + 1 == rest.size()) {
        line = rest.substr(0, length);
        return false;
    }
    line = rest.substr(0, length);
    m_next += length + (rest[length + 1] == '\n' ? 2 : 1);
    return true;
}

FileError LineCursor::BeginLine(std::string_view& line, bool& whole)
{
    if (m_next == m_size && !Fill()) {
        line = {};
        return m_error.Ok() ? MakeFileError(error::InputPastEnd) : m_error;
    }
    whole = TakeWholeLine(0, line);
    return whole ? FileError{} : ReadOn(line, 0, whole);
}

FileError LineCursor::ReadOn(std::string_view& line, std::size_t passed, bool& whole)
{
    m_next += passed;
    const std::size_t searched = line.size() - passed;
    const bool more = FillMore();
    whole = TakeWholeLine(searched, line);
    m_inLine = !whole;
    if (!more) {
        m_next = m_size; // the last line may lack its line end
        m_inLine = false;
        whole = true;
    }
    return m_error;
}

FileError LineCursor::EndLine()
{
    if (!m_inLine) {
        return {};
    }
    m_inLine = false;
    return SkipLine();
}

std::string_view LineCursor::ReadCrLfLines(FilePos end)
{
    if ((m_next == m_size && !Fill()) || end <= Position()) {
        return {};
    }
    const auto wanted = static_cast<std::size_t>(end - Position());
    const std::string_view bytes(m_block.get() + m_next, std::min(m_size - m_next, wanted));
    const std::size_t first = bytes.find('\r');
    if (first == std::string_view::npos || first + 1 >= bytes.size() || bytes[first + 1] != '\n') {
        return {}; // no line can be passed, so the test of a chunk would be wasted
    }
    std::size_t good = 0;
    while (good + 1 < bytes.size()) {
        const std::size_t size = std::min(Chunk, bytes.size() - good - 1);
        if (!EachCrHasLf(bytes.data() + good, size)) {
            break;
        }
        good += size;
    }
    // The test included one byte after the good ones: it may be the LF of the last line.
    const std::size_t lineEnd = bytes.substr(0, std::min(good + 1, bytes.size())).rfind(LineEnd);
    const std::size_t size = lineEnd == std::string_view::npos ? 0 : lineEnd + LineEnd.size();
    m_next += size;
    return bytes.substr(0, size);
}

FileError LineCursor::SkipLine()
{
    for (;;) {
        const char* from = m_block.get() + m_next;
        const void* end = std::memchr(from, '\r', m_size - m_next);
        if (end != nullptr) {
            m_next += static_cast<std::size_t>(static_cast<const char*>(end) - from);
            return PassLineEnd();
        }
        m_next = m_size;
        if (!Fill()) {
            return m_error;
        }
    }
}

FileError LineCursor::SkipToLineBeginning(char first, char second)
{
    for (;;) {
        if (m_next == m_size && !Fill()) {
            return m_error;
        }
        const char c = m_block[m_next];
        if (c == first || c == second) {
            return {};
        }
        if (FileError error = SkipLine(); !error.Ok()) {
            return error;
        }
    }
}

} // namespace ls
