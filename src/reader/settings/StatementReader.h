#pragma once

#include "base/FileError.h"
#include "base/FileSystem.h"
#include "base/LineCursor.h"

#include <string>

namespace ls {

/// One statement of the settings file, with escapes resolved and blanks trimmed at both ends.
///
/// `marks` is as long as `text`. It holds "~" where a "~" preceded the character, which then has no special
/// meaning.
struct Statement
{
    std::string text;
    std::string marks;

    /// Whether the statement begins with `mark`, unescaped.
    [[nodiscard]] bool Begins(char mark) const { return !text.empty() && text[0] == mark && !IsEscaped(0); }

    [[nodiscard]] bool IsEscaped(std::size_t at) const { return marks[at] == '~'; }

    /// The position of the first unescaped `mark`; `std::string::npos` when there is none.
    [[nodiscard]] std::size_t Find(char mark) const;

    /// `count` characters from `from` on, with unescaped blanks trimmed at both ends.
    [[nodiscard]] Statement Part(std::size_t from, std::size_t count = std::string::npos) const;
};

/// Reads the statements of the settings file. Several may share a line.
///
/// ";" ends a statement. "+" at the end of a line joins the next line that is not empty. "~" removes the
/// special meaning of the next character. A line may also end with LF alone, as Unix editors write it.
class StatementReader
{
public:
    /// The file must outlive the reader.
    explicit StatementReader(BookFile& file) : m_cursor(file) {}

    /// Reads one whole line, trimmed; the first one is the file's signature. False at the end of the file and
    /// after an error.
    bool ReadLine(std::string& line);

    /// Reads the next statement that is not empty. False at the end of the file and after an error.
    bool Next(Statement& statement);

    /// The error that ended reading; none when the file was read to its end.
    [[nodiscard]] const FileError& Error() const { return m_error; }

private:
    bool ReadFilledLine(std::string& line);
    Statement TakeStatement();

    LineCursor m_cursor;
    FileError m_error;
    std::string m_lines;                    ///< one line, or several that end with LF alone
    std::size_t m_next = std::string::npos; ///< where the next of m_lines begins; npos when all are read
    std::string IniLine;                    ///< the line being parsed
    std::size_t m_taken = 0;                ///< how much of it is read
};

} // namespace ls
