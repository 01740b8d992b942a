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
/// A line ends at CR or at CR LF; a lone LF is an ordinary character. Bytes pass through unchanged.
/// Everything is read in blocks; `Seek` forgets them, so that a line read after it is what the file holds at
/// that moment. A read error stays until then: whoever asks next gets it again.
class LineCursor
{
public:
    /// The file must outlive the cursor.
    explicit LineCursor(BookFile& file);

    /// Moves to a 1-based byte position; it may lie behind the end, where the next read fails with error 62.
    void Seek(FilePos pos);

    /// The 1-based position of the next byte to be read.
    [[nodiscard]] FilePos Position() const { return m_blockPos + static_cast<FilePos>(m_next); }

    /// True when no byte is left. A read error counts as not at the end: the next `ReadLine` reports it.
    [[nodiscard]] bool AtEnd();

    /// Reads one line without its line end. Error 62 at the end of the file.
    FileError ReadLine(std::string& line);

    /// The same without a copy: the line is valid until the cursor's next call.
    FileError ReadLine(std::string_view& line);

    /// Appends one line, without its line end, to what `text` has.
    FileError AppendLine(std::string& text);

    /// Reads a line piece by piece, so that one of any length costs no memory: `more` is false before the
    /// first piece and after the last, which may be empty. A piece is valid until the cursor's next call.
    FileError ReadPiece(std::string_view& piece, bool& more);
    /// Begins a line of any length: gives all of it, with `whole` set, or what one block holds of it, at
    /// least. `ReadOn` or `EndLine` must follow then. What is given is valid until the cursor's next call.
    FileError BeginLine(std::string_view& line, bool& whole);

    /// Gives more of a line that was begun and not given whole: what was given before without the first
    /// `passed` characters, and what follows it. So a line of any length can be read in the memory of what is
    /// looked at together. At an error `line` is what is left of what was given before.
    FileError ReadOn(std::string_view& line, std::size_t passed, bool& whole);

    /// Passes over the rest of a line that was begun, if there is any.
    FileError EndLine();

    /// Passes several whole lines that all end in CR LF, before `end`, and gives their bytes, line ends
    /// included; valid until the cursor's next call. Nothing is passed, and the result is empty, where the
    /// next line is not like that, lies across a block's end, or cannot be read: `ReadLine` then does.
    std::string_view ReadCrLfLines(FilePos end);

    /// Passes over whole lines until the next one begins with `first` or `second`, or the file ends. The
    /// position must be at the start of a line. Nothing is copied, so a line of any length costs no memory.
    FileError SkipToLineBeginning(char first, char second);

private:
    bool Fill();
    bool FillBehind();
    bool TakeWholeLine(std::size_t searched, std::string_view& line);
    void SetCapacity(std::size_t wanted, std::size_t kept);
    void AppendRestOfBlock(std::string& line);
    [[nodiscard]] std::size_t RestOfLine();
    FileError PassLineEnd();
    FileError SkipLine();

    BookFile* m_file;
    std::unique_ptr<char[]> m_block;
    std::size_t m_capacity = 0; ///< bytes that m_block has room for
    std::size_t m_size = 0;     ///< bytes in m_block
    std::size_t m_next = 0;     ///< the next of them
    FilePos m_blockPos = 1;     ///< position of m_block's first byte
    bool m_inLine = false;      ///< a line begins at m_next that was given in part
    FileError m_error;          ///< of the last Fill that failed
    std::string m_line;         ///< a line that does not lie in one block, put together
};

} // namespace ls
