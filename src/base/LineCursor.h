#pragma once

#include "base/FileError.h"
#include "base/FilePos.h"
#include "base/FileSystem.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace ls {

/// Reads an open file line by line from a position of its own.
///
/// A line ends at CR or at CR LF; a lone LF is an ordinary character. Bytes are not changed. The file is read
/// in blocks. `Seek` forgets the block, so that the next line is read anew from the file. A read error stays
/// until the next `Seek`; every call until then reports it again.
class LineCursor
{
public:
    /// The file must outlive the cursor.
    explicit LineCursor(BookFile& file);

    /// Moves to a 1-based byte position. A position past the end is allowed; the next read there fails with
    /// error 62.
    void Seek(FilePos pos);

    /// The 1-based position of the next byte to be read.
    [[nodiscard]] FilePos Position() const { return m_blockPos + static_cast<FilePos>(m_next); }

    /// True when no byte is left. False after a read error; the next `ReadLine` reports it.
    [[nodiscard]] bool AtEnd();

    /// Reads one line without its line end. Error 62 at the end of the file.
    FileError ReadLine(std::string& line);

    /// Reads one line without a copy. It is valid until the cursor's next call.
    FileError ReadLine(std::string_view& line);

    /// Appends one line, without its line end, to `text`.
    FileError AppendLine(std::string& text);

    /// Reads a line piece by piece, so that a long line costs no memory. Set `more` to false before the first
    /// piece. It is false again after the last piece, which may be empty. A piece is valid until the cursor's
    /// next call.
    FileError ReadPiece(std::string_view& piece, bool& more);
    /// Begins a line of any length. Gives the whole line and sets `whole`, or gives at least what one block
    /// holds of it. Call `ReadOn` or `EndLine` next. The text is valid until the cursor's next call.
    FileError BeginLine(std::string_view& line, bool& whole);

    /// Gives more of a line that `BeginLine` did not give whole: drops the first `passed` characters of
    /// `line` and appends what follows. So a line of any length needs only the memory of the part in view.
    /// After an error `line` is the rest of what was given before.
    FileError ReadOn(std::string_view& line, std::size_t passed, bool& whole);

    /// Skips the rest of a line that `BeginLine` began, if there is any.
    FileError EndLine();

    /// Passes several whole lines that all end in CR LF, before `end`, and returns their bytes with the line
    /// ends. They are valid until the cursor's next call. The result is empty, and nothing is passed, when
    /// the next line ends otherwise, crosses a block's end or cannot be read; use `ReadLine` then.
    std::string_view ReadCrLfLines(FilePos end);

    /// Skips whole lines until the next one begins with `first` or `second`, or the file ends. The position
    /// must be at the start of a line. Nothing is copied, so a long line costs no memory.
    FileError SkipToLineBeginning(char first, char second);

private:
    bool Fill();
    bool FillMore();
    bool TakeWholeLine(std::size_t searched, std::string_view& line);
    void SetCapacity(std::size_t wanted, std::size_t kept);
    void AppendRestOfBlock(std::string& line);
    [[nodiscard]] std::size_t RestOfLine();
    FileError PassLineEnd();
    FileError SkipLine();

    BookFile* m_file;
    std::unique_ptr<char[]> m_block;
    std::size_t m_capacity = 0; ///< the size of m_block
    std::size_t m_size = 0;     ///< bytes read into m_block
    std::size_t m_next = 0;     ///< index of the next unread byte in m_block
    FilePos m_blockPos = 1;     ///< position of m_block's first byte
    bool m_inLine = false;      ///< the line at m_next was given only in part
    FileError m_error;          ///< of the last Fill that failed
    std::string m_line;         ///< a line that spans blocks, joined
};

} // namespace ls
