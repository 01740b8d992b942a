#include "book/ConvertText.h"

#include "base/CodePage.h"
#include "base/Progress.h"
#include "base/Text.h"

#include <algorithm>
#include <map>
#include <optional>
#include <string_view>

namespace ls {

namespace {

constexpr std::size_t BlockSize = 256 * 1024;
constexpr char32_t Utf8Mark = 0xFEFF;

// The length of the UTF-8 sequence that begins with this byte; 1 for a byte that begins none.
std::size_t SequenceLength(unsigned char lead)
{
    if (lead >= 0xF0) {
        return lead < 0xF8 ? 4 : 1;
    }
    return lead >= 0xE0 ? 3 : (lead >= 0xC0 ? 2 : 1);
}

// The number of bytes at the end of a block that may be an incomplete character.
std::size_t CutSequence(std::string_view block)
{
    for (std::size_t back = 1; back <= std::min<std::size_t>(3, block.size()); ++back) {
        const auto byte = static_cast<unsigned char>(block[block.size() - back]);
        if (byte < 0x80) {
            return 0;
        }
        if (byte >= 0xC0) {
            return SequenceLength(byte) > back ? back : 0;
        }
    }
    return 0;
}

// Reads a text in pieces that never cut a character.
class Pieces
{
public:
    Pieces(BookFile& file, Progress* progress, int half) : m_file(&file), m_progress(progress), m_half(half)
    {
    }

    // An empty piece means the end.
    FileError Next(std::string_view& piece)
    {
        m_text.erase(0, m_given);
        const std::size_t kept = m_text.size();
        m_text.resize(kept + BlockSize);
        std::size_t got = 0;
        if (FileError error = m_file->ReadAt(m_pos, m_text.data() + kept, BlockSize, got); !error.Ok()) {
            return error;
        }
        m_pos += static_cast<FilePos>(got);
        m_text.resize(kept + got);
        m_given = got == 0 ? m_text.size() : m_text.size() - CutSequence(m_text);
        if (got > 0 && m_given == 0) { // only the beginning of a character
            m_given = m_text.size();
        }
        piece = std::string_view(m_text).substr(0, m_given);
        return Report();
    }

private:
    FileError Report()
    {
        FilePos size = 0;
        if (m_progress == nullptr) {
            return {};
        }
        if (FileError error = m_file->Size(size); !error.Ok()) {
            return error;
        }
        if (size > static_cast<FilePos>(BlockSize)) {
            m_progress->Step(m_half * size + std::min(m_pos - 1, size), 2 * size);
        }
        return {};
    }

    BookFile* m_file;
    Progress* m_progress;
    int m_half;
    FilePos m_pos = 1;
    std::string m_text;
    std::size_t m_given = 0;
};

// Counts lines, character by character.
class LineWatch
{
public:
    // The character after a CR shows whether the line ends in CR or in CR LF.
    void Take(char32_t character, bool changed)
    {
        if (m_afterCr) {
            m_afterCr = false;
            EndLine(character != U'\n');
            if (character == U'\n') {
                return;
            }
        }
        if (character == U'\r') {
            m_afterCr = true;
        } else if (character == U'\n') {
            EndLine(true);
        } else {
            m_begun = true;
            m_changed = m_changed || changed;
        }
    }

    void MarkChanged() { m_changed = true; }

    // The number of the line that holds the last character.
    [[nodiscard]] std::int64_t Line() const { return m_counts.lines + 1; }
    [[nodiscard]] bool AfterCr() const { return m_afterCr; }

    ConvertedLines Finish()
    {
        if (m_afterCr || m_begun) {
            EndLine(m_afterCr);
        }
        return m_counts;
    }

private:
    void EndLine(bool changed)
    {
        ++m_counts.lines;
        m_counts.converted += changed || m_changed ? 1 : 0;
        m_begun = m_changed = m_afterCr = false;
    }

    ConvertedLines m_counts;
    bool m_afterCr = false;
    bool m_begun = false;
    bool m_changed = false;
};

// Looks for characters that cannot be converted. Stops when the text proves not to be UTF-8.
class Examination
{
public:
    explicit Examination(TextFindings& findings) : m_findings(findings) {}

    // False when the rest needs no check.
    bool Take(std::string_view piece)
    {
        if (m_first && (piece.starts_with("\xFF\xFE") || piece.starts_with("\xFE\xFF"))) {
            m_findings.coding = TextCoding::Utf16;
            return false;
        }
        for (std::size_t at = 0; at < piece.size();) {
            const std::size_t begin = at;
            const char32_t character = NextUtf8(piece, at);
            const bool ascii = character < 0x80;
            m_lines.Take(character, false);
            if (!ascii && at - begin == 1) {
                TakeBadByte();
                return false;
            }
            if (!ascii && !TakeMark(character)) {
                m_findings.coding = TextCoding::Utf8;
                TakeLetter(character);
            }
            m_first = false;
        }
        return true;
    }

private:
    void TakeBadByte()
    {
        m_findings.coding = m_marked ? TextCoding::BadUtf8 : TextCoding::CodePage;
        m_findings.badLine = m_marked ? m_lines.Line() : 0;
        m_findings.noPlace.clear();
    }

    bool TakeMark(char32_t character)
    {
        if (m_first && character == Utf8Mark) {
            m_marked = true;
            m_findings.coding = TextCoding::Utf8;
            return true;
        }
        return false;
    }

    void TakeLetter(char32_t character)
    {
        if (HasByte(character)) {
            return;
        }
        const auto [known, isNew] = m_known.try_emplace(character, m_findings.noPlace.size());
        if (isNew) {
            m_findings.noPlace.push_back({character, {}, 0});
            m_lastLines.push_back(0);
        }
        if (m_lastLines[known->second] == m_lines.Line()) {
            return;
        }
        m_lastLines[known->second] = m_lines.Line();
        NoPlace& place = m_findings.noPlace[known->second];
        if (place.lines.size() < NoPlace::MostLines) {
            place.lines.push_back(m_lines.Line());
        } else {
            ++place.moreLines;
        }
    }

    static bool HasByte(char32_t character)
    {
        std::string utf8;
        AppendUtf8(utf8, character);
        return ToBook(utf8).has_value();
    }

    TextFindings& m_findings;
    LineWatch m_lines;
    bool m_first = true;
    bool m_marked = false;
    std::map<char32_t, std::size_t> m_known;
    std::vector<std::int64_t> m_lastLines;
};

// Converts the pieces to book text.
class Conversion
{
public:
    explicit Conversion(bool utf8) : m_utf8(utf8) {}

    // No result if a character has no byte: another program changed the file after the examination.
    std::optional<std::string> Take(std::string_view piece)
    {
        std::string text;
        text.reserve(piece.size() + piece.size() / 16);
        for (std::size_t at = 0; at < piece.size();) {
            const std::size_t begin = at;
            const bool afterCr = m_lines.AfterCr();
            const char32_t character = m_utf8 ? NextUtf8(piece, at) : static_cast<unsigned char>(piece[at++]);
            const bool changed = at - begin > 1;
            if (m_first && character == Utf8Mark) {
                m_lines.MarkChanged();
            } else {
                m_lines.Take(character, changed);
                if (!Append(text, piece.substr(begin, at - begin), afterCr)) {
                    return std::nullopt;
                }
            }
            m_first = false;
        }
        return text;
    }

    ConvertedLines Finish() { return m_lines.Finish(); }

private:
    static bool Append(std::string& text, std::string_view character, bool afterCr)
    {
        const char c = character.front();
        if (c == '\r' || (c == '\n' && !afterCr)) {
            text += LineEnd;
        } else if (character.size() > 1) {
            const std::optional<std::string> byte = ToBook(character);
            text += byte.value_or(std::string());
            return byte.has_value();
        } else if (c != '\n') {
            text += c;
        }
        return true;
    }

    bool m_utf8;
    bool m_first = true;
    LineWatch m_lines;
};

} // namespace

FileError FindUnconvertible(BookFile& from, Progress* progress, TextFindings& findings)
{
    findings = {};
    Pieces pieces(from, progress, 0);
    Examination examination(findings);
    for (;;) {
        std::string_view piece;
        if (FileError error = pieces.Next(piece); !error.Ok() || piece.empty()) {
            return error;
        }
        if (!examination.Take(piece)) {
            return {};
        }
    }
}

FileError ConvertText(BookFile& from, const TextFindings& findings, OutputFile& to, Progress* progress,
                      ConvertedLines& lines)
{
    Pieces pieces(from, progress, 1);
    Conversion conversion(findings.coding == TextCoding::Utf8);
    for (;;) {
        std::string_view piece;
        if (FileError error = pieces.Next(piece); !error.Ok()) {
            return error;
        }
        if (piece.empty()) {
            lines = conversion.Finish();
            return {};
        }
        const std::optional<std::string> text = conversion.Take(piece);
        if (!text) {
            return MakeFileError(error::DeviceIo);
        }
        if (FileError error = to.Write(*text); !error.Ok()) {
            return error;
        }
    }
}

} // namespace ls
