#pragma once

#include "base/FileSystem.h"

#include <cstdint>
#include <string>
#include <vector>

namespace ls {

class Progress;

/// How the bytes of a text stand for characters.
enum class TextCoding
{
    Ascii,    ///< no byte above 7F
    Utf8,     ///< reads as UTF-8 from end to end
    CodePage, ///< taken as the book's own code page, in which every byte is a character
    BadUtf8,  ///< begins with the mark of UTF-8, but does not go on as UTF-8
    Utf16,    ///< begins with the mark of UTF-16
};

/// A character that the code page lacks, and where a text has it.
struct NoPlace
{
    static constexpr std::size_t MostLines = 10;

    char32_t character = 0;
    std::vector<std::int64_t> lines; ///< the first lines in which it stands, from 1
    std::int64_t moreLines = 0;      ///< how many more there are

    friend bool operator==(const NoPlace&, const NoPlace&) = default;
};

/// What stands in the way of making a text book text.
struct TextFindings
{
    TextCoding coding = TextCoding::Ascii;
    std::int64_t badLine = 0;     ///< of the first byte that is not UTF-8; only for `BadUtf8`
    std::vector<NoPlace> noPlace; ///< in the order in which they first stand in the text

    /// Whether `ConvertText` can write all of it.
    [[nodiscard]] bool Convertible() const
    {
        return coding != TextCoding::BadUtf8 && coding != TextCoding::Utf16 && noPlace.empty();
    }
};

/// Lines of a converted text; an end without a line end counts when it is not empty.
struct ConvertedLines
{
    std::int64_t lines = 0;
    std::int64_t converted = 0; ///< how many of them got another line end or other bytes

    friend bool operator==(const ConvertedLines&, const ConvertedLines&) = default;
};

/// Looks through a text. The progress is told the first half of the way; it cannot cancel.
FileError FindUnconvertible(BookFile& from, Progress* progress, TextFindings& findings);

/// Writes a text as book text. LF, CR and CR LF all become CR LF, UTF-8 becomes the code page, a mark of
/// UTF-8 at the beginning goes; text that is no UTF-8 keeps its bytes. The findings are those of this text,
/// and nothing stands in the way. The progress is told the second half of the way; it cannot cancel.
FileError ConvertText(BookFile& from, const TextFindings& findings, OutputFile& to, Progress* progress,
                      ConvertedLines& lines);

} // namespace ls
