#pragma once

#include <cstddef>
#include <string_view>

namespace ls {

class TextSurface;

/// What stands next in a display line: text, and the entity or tag that ends it.
struct MarkupPiece
{
    enum class Kind
    {
        Text,   ///< `before` is the rest of the line
        Entity, ///< `name` is what stands between "&" and ";"
        Tag     ///< `name` is what stands between "<" and ">"
    };

    Kind kind = Kind::Text;
    std::string_view before;
    std::string_view name;
};

/// Reads one display line piece by piece, in time that grows with its length only. The line must outlive it.
///
/// A "<" without ">" behind it, and a "&" without ";", is text. Where both an entity and a tag are to come,
/// the one that begins first is read, whatever it encloses.
class MarkupReader
{
public:
    explicit MarkupReader(std::string_view line) : m_line(line) {}

    [[nodiscard]] bool AtEnd() const { return m_at >= m_line.size(); }
    MarkupPiece Next();

private:
    std::size_t Find(char c, std::size_t from, std::size_t& known) const;

    std::string_view m_line;
    std::size_t m_at = 0;
    // Where each character was found last: looked for again only when that place has been passed.
    std::size_t m_open = 0;
    std::size_t m_close = 0;
    std::size_t m_ampersand = 0;
    std::size_t m_semicolon = 0;
};

/// The character that an entity shows: "<", ">" or "&"; "?" for an unknown one. Names are compared with case.
[[nodiscard]] char EntityCharacter(std::string_view name);

/// Whether tags set colours, or styles only.
enum class TagColours
{
    Applied,
    LeftOut
};

/// Whether a tag of that name does anything. Names are compared with case.
[[nodiscard]] bool IsKnownTag(std::string_view name);

/// Sets the styles and the colour that a tag stands for; an unknown one does nothing. Names are compared with
/// case. The end of a heading switches its styles off whoever switched them on.
void ApplyTag(TextSurface& surface, std::string_view name, TagColours colours = TagColours::Applied);

} // namespace ls
