#pragma once

#include "base/FileSystem.h"

#include <cstdint>
#include <string>
#include <vector>

namespace ls {

class Progress;

/// How the bytes of a text encode characters.
enum class TextCoding
{
    Ascii,    ///< no byte above 7F
    Utf8,     ///< valid UTF-8 from end to end
    CodePage, ///< taken as the book's own code page, in which every byte is a character
    BadUtf8,  ///< begins with the UTF-8 byte order mark, but is not valid UTF-8
    Utf16,    ///< begins with the UTF-16 byte order mark
};

/// A character that the code page lacks, and the lines that hold it.
struct NoPlace
{
    static constexpr std::size_t MostLines = 10;

    char32_t character = 0;
    std::vector<std::int64_t> lines; ///< the first lines that hold it, from 1
    std::int64_t moreLines = 0;      ///< the number of further lines

    friend bool operator==(const NoPlace&, const NoPlace&) = default;
};

/// What keeps a text from being converted to book text.
struct TextFindings
{
    TextCoding coding = TextCoding::Ascii;
    std::int64_t badLine = 0;     ///< the line of the first byte that is not UTF-8; only for `BadUtf8`
    std::vector<NoPlace> noPlace; ///< in the order of their first lines

    /// Whether `ConvertText` can convert the whole text.
    [[nodiscard]] bool Convertible() const
    {
        return coding != TextCoding::BadUtf8 && coding != TextCoding::Utf16 && noPlace.empty();
    }
};

/// The lines of a converted text. A last line without a line end counts if it is not empty.
struct ConvertedLines
{
    std::int64_t lines = 0;
    std::int64_t converted = 0; ///< lines that got another line end or other bytes

    friend bool operator==(const ConvertedLines&, const ConvertedLines&) = default;
};

/// Examines a text. Reports the first half of the progress and cannot be cancelled.
FileError FindUnconvertible(BookFile& from, Progress* progress, TextFindings& findings);

/// Writes a text as book text. LF, CR and CR LF become CR LF, UTF-8 becomes the code page, and a UTF-8 byte
/// order mark is removed. Text that is not UTF-8 keeps its bytes. `findings` must be those of this text, and
/// `Convertible`. Reports the second half of the progress and cannot be cancelled.
FileError ConvertText(BookFile& from, const TextFindings& findings, OutputFile& to, Progress* progress,
                      ConvertedLines& lines);

} // namespace ls
