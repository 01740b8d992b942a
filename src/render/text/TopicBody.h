#pragma once

#include "base/FileError.h"
#include "base/LineCursor.h"

#include <cstddef>
#include <string_view>

namespace ls {

/// The source lines of a topic, one after the other, from a file or from memory.
class TopicBody
{
public:
    virtual ~TopicBody() = default;

    /// The next line without its line end, valid until the next call. False at the end and after an error,
    /// see `Error`.
    virtual bool Next(std::string_view& line) = 0;

    /// As `Next`, with `rest` nullptr. For a line too long for one block: its beginning, enough to classify
    /// it, and in `rest` the cursor for the remainder.
    virtual bool NextPart(std::string_view& line, LineCursor*& rest)
    {
        rest = nullptr;
        return Next(line);
    }

    [[nodiscard]] virtual FileError Error() const { return {}; }
};

/// Lines of the book's file from the cursor's position to the end of the file.
class FileBody : public TopicBody
{
public:
    explicit FileBody(LineCursor& cursor) : m_cursor(&cursor) {}

    bool Next(std::string_view& line) override;
    bool NextPart(std::string_view& line, LineCursor*& rest) override;
    [[nodiscard]] FileError Error() const override { return m_error; }

private:
    LineCursor* m_cursor;
    FileError m_error;
    bool m_inLine = false; ///< the last line was given in part
};

/// Lines of a text in memory, separated by CR LF. A CR LF at the end begins no further line.
class TextBody : public TopicBody
{
public:
    explicit TextBody(std::string_view text, std::size_t from = 0) : m_text(text), m_at(from) {}

    bool Next(std::string_view& line) override;

    /// The position where the next line begins, from 0.
    [[nodiscard]] std::size_t Position() const { return m_at; }

private:
    std::string_view m_text;
    std::size_t m_at;
};

} // namespace ls
