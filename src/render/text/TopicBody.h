#pragma once

#include "base/FileError.h"
#include "base/LineCursor.h"

#include <cstddef>
#include <string_view>

namespace ls {

/// The source lines of a topic, one after the other, from wherever they are kept.
class TopicBody
{
public:
    virtual ~TopicBody() = default;

    /// The next line without its line end, valid until the next call; false at the end of what there is, and
    /// after an error, which `Error` tells.
    virtual bool Next(std::string_view& line) = 0;

    /// The same; but of a line that is too long to be had at once its beginning, and in `rest` the cursor
    /// that reads on in it (nullptr: the line is whole). A beginning has at least some characters between its
    /// blanks: what the line is, it tells.
    virtual bool NextPart(std::string_view& line, LineCursor*& rest)
    {
        rest = nullptr;
        return Next(line);
    }

    [[nodiscard]] virtual FileError Error() const { return {}; }
};

/// Lines of the book's file from where a cursor stands, to the end of the file.
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
    bool m_inLine = false; ///< the last one was given in part
};

/// Lines of a text in memory, parted by CR LF. One at the end begins no further line.
class TextBody : public TopicBody
{
public:
    explicit TextBody(std::string_view text, std::size_t from = 0) : m_text(text), m_at(from) {}

    bool Next(std::string_view& line) override;

    /// Where the next line begins, from 0.
    [[nodiscard]] std::size_t Position() const { return m_at; }

private:
    std::string_view m_text;
    std::size_t m_at;
};

} // namespace ls
