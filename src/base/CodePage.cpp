#include "base/CodePage.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace ls {

namespace {

constexpr char32_t Replacement = 0xFFFD;

// The characters of the bytes 80 to 9F; the unassigned bytes keep their own number.
constexpr std::array<char32_t, 32> HighControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char32_t CharacterOf(char c)
{
    const auto byte = static_cast<unsigned char>(c);
    return byte >= 0x80 && byte < 0xA0 ? HighControls[byte - 0x80U] : byte;
}

std::optional<char> ByteOf(char32_t character)
{
    if (character < 0x80 || (character >= 0xA0 && character < 0x100)) {
        return static_cast<char>(character);
    }
    const auto* found = std::find(HighControls.begin(), HighControls.end(), character);
    if (found == HighControls.end()) {
        return std::nullopt;
    }
    return static_cast<char>(0x80 + (found - HighControls.begin()));
}

// The number of bytes in the sequence that begins with `lead`; `bits` gets the bits that `lead` carries.
int SequenceLength(unsigned char lead, char32_t& bits)
{
    if (lead >= 0xC2 && lead < 0xE0) {
        bits = lead & 0x1FU;
        return 2;
    }
    if (lead >= 0xE0 && lead < 0xF0) {
        bits = lead & 0x0FU;
        return 3;
    }
    if (lead >= 0xF0 && lead < 0xF5) {
        bits = lead & 0x07U;
        return 4;
    }
    return 0;
}

bool IsOverlongOrOutside(char32_t character, int length)
{
    return (length == 3 && character < 0x800) || (length == 4 && character < 0x10000) ||
           character > 0x10FFFF || (character >= 0xD800 && character < 0xE000);
}

} // namespace

void AppendUtf8(std::string& text, char32_t c)
{
    if (c < 0x80) {
        text += static_cast<char>(c);
    } else if (c < 0x800) {
        text += static_cast<char>(0xC0U | (c >> 6U));
        text += static_cast<char>(0x80U | (c & 0x3FU));
    } else if (c < 0x10000) {
        text += static_cast<char>(0xE0U | (c >> 12U));
        text += static_cast<char>(0x80U | ((c >> 6U) & 0x3FU));
        text += static_cast<char>(0x80U | (c & 0x3FU));
    } else {
        text += static_cast<char>(0xF0U | (c >> 18U));
        text += static_cast<char>(0x80U | ((c >> 12U) & 0x3FU));
        text += static_cast<char>(0x80U | ((c >> 6U) & 0x3FU));
        text += static_cast<char>(0x80U | (c & 0x3FU));
    }
}

std::string CodeOf(char32_t character)
{
    std::array<char, 16> code{};
    std::snprintf(code.data(), code.size(), "U+%04X", static_cast<unsigned>(character));
    return code.data();
}

char32_t NextUtf8(std::string_view text, std::size_t& at)
{
    const auto lead = static_cast<unsigned char>(text[at++]);
    if (lead < 0x80) {
        return lead;
    }
    char32_t character = 0;
    const int length = SequenceLength(lead, character);
    std::size_t next = at;
    for (int i = 1; i < length; ++i, ++next) {
        if (next >= text.size() || (static_cast<unsigned char>(text[next]) & 0xC0U) != 0x80U) {
            return Replacement;
        }
        character = (character << 6U) | (static_cast<unsigned char>(text[next]) & 0x3FU);
    }
    if (length == 0 || IsOverlongOrOutside(character, length)) {
        return Replacement;
    }
    at = next;
    return character;
}

std::string FromBook(std::string_view bookText)
{
    std::string utf8;
    utf8.reserve(bookText.size());
    for (const char c : bookText) {
        AppendUtf8(utf8, CharacterOf(c));
    }
    return utf8;
}

std::optional<std::string> ToBook(std::string_view utf8, Unmapped* unmapped)
{
    std::string book;
    book.reserve(utf8.size());
    int line = 1;
    for (std::size_t at = 0; at < utf8.size();) {
        const char32_t character = NextUtf8(utf8, at);
        const std::optional<char> byte = ByteOf(character);
        if (!byte) {
            if (unmapped != nullptr) {
                *unmapped = {character, line};
            }
            return std::nullopt;
        }
        line += character == U'\n' ? 1 : 0;
        book += *byte;
    }
    return book;
}

std::string FromPath(std::string_view path)
{
    std::string utf8;
    for (std::size_t at = 0; at < path.size();) {
        AppendUtf8(utf8, NextUtf8(path, at));
    }
    return utf8;
}

} // namespace ls
