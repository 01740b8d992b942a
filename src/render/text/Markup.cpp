#include "render/text/Markup.h"

#include "render/text/TextSurface.h"

#include <array>
#include <optional>

namespace ls {

namespace {

constexpr auto None = std::string_view::npos;

// What a tag changes. An empty field changes nothing.
struct TagEffect
{
    std::string_view name;
    std::optional<bool> bold;
    std::optional<bool> italic;
    std::optional<bool> underline;
    std::optional<Colour> colour;
};

constexpr std::array<TagEffect, 12> Tags = {{
    {"B", true, {}, {}, {}},
    {"/B", false, {}, {}, {}},
    {"I", {}, true, {}, {}},
    {"/I", {}, false, {}, {}},
    {"U", {}, {}, true, {}},
    {"/U", {}, {}, false, {}},
    {"H1", true, {}, true, DarkRed},
    {"/H1", false, {}, false, Black},
    {"H2", true, {}, {}, DarkGreen},
    {"/H2", false, {}, {}, Black},
    {"H3", {}, true, {}, DarkBlue},
    {"/H3", {}, false, {}, Black},
}};

} // namespace

std::size_t MarkupReader::Find(char c, std::size_t from, std::size_t& known) const
{
    // The place that was found last is still the first one unless it has been passed.
    if (known == 0 || (known != None && known - 1 < from)) {
        const std::size_t found = m_line.find(c, from);
        known = found == None ? None : found + 1;
    }
    return known == None ? None : known - 1;
}

MarkupPiece MarkupReader::Next()
{
    const std::size_t open = Find('<', m_at, m_open);
    const std::size_t close = open == None ? None : Find('>', open, m_close);
    const std::size_t ampersand = Find('&', m_at, m_ampersand);
    const std::size_t semicolon = ampersand == None ? None : Find(';', ampersand, m_semicolon);
    const std::size_t from = m_at;
    const auto piece = [&](MarkupPiece::Kind kind, std::size_t begin, std::size_t end) {
        m_at = end + 1;
        return MarkupPiece{kind, m_line.substr(from, begin - from),
                           m_line.substr(begin + 1, end - begin - 1)};
    };
    if (semicolon != None && (close == None || ampersand < open)) {
        return piece(MarkupPiece::Kind::Entity, ampersand, semicolon);
    }
    if (close != None) {
        return piece(MarkupPiece::Kind::Tag, open, close);
    }
    m_at = m_line.size();
    return {MarkupPiece::Kind::Text, m_line.substr(from), {}};
}

char EntityCharacter(std::string_view name)
{
    if (name == "LT") {
        return '<';
    }
    if (name == "GT") {
        return '>';
    }
    return name == "AMP" ? '&' : '?';
}

bool IsKnownTag(std::string_view name)
{
    constexpr std::size_t longest = 3;
    if (name.size() > longest) {
        return false;
    }
    for (const TagEffect& tag : Tags) {
        if (tag.name == name) {
            return true;
        }
    }
    return false;
}

void ApplyTag(TextSurface& surface, std::string_view name, TagColours colours)
{
    for (const TagEffect& tag : Tags) {
        if (tag.name != name) {
            continue;
        }
        if (tag.bold) {
            surface.SetBold(*tag.bold);
        }
        if (tag.italic) {
            surface.SetItalic(*tag.italic);
        }
        if (tag.underline) {
            surface.SetUnderline(*tag.underline);
        }
        if (tag.colour && colours == TagColours::Applied) {
            surface.SetColour(*tag.colour);
        }
        return;
    }
}

} // namespace ls
