#pragma once

#include <cstddef>
#include <string_view>

namespace ls {

class TextSurface;

/// The next piece of a display line: text, and the entity or tag that ends it.
struct MarkupPiece
{
    enum class Kind
    {
        Text,   ///< `before` is the rest of the line
        Entity, ///< `name` is the text between "&" and ";"
        Tag     ///< `name` is the text between "<" and ">"
    };

    Kind kind = Kind::Text;
    std::string_view before;
    std::string_view name;
};

/// Reads one display line piece by piece, in linear time. The line must outlive the reader.
///
/// A "<" without a later ">" is text, and so is a "&" without a later ";". If both an entity and a tag
/// follow, the one that begins first is read, even if it encloses the other.
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
    // The last position found for each character. It is searched for again only after it was passed.
    std::size_t m_open = 0;
    std::size_t m_close = 0;
    std::size_t m_ampersand = 0;
    std::size_t m_semicolon = 0;
};

/// The character that an entity shows: "<", ">" or "&"; "?" for an unknown one. Letter case counts.
[[nodiscard]] char EntityCharacter(std::string_view name);

/// Whether tags set colours or only styles.
enum class TagColours
{
    Applied,
    LeftOut
};

/// Whether a tag of that name has an effect. Letter case counts.
[[nodiscard]] bool IsKnownTag(std::string_view name);

/// Sets the styles and the colour of a tag. An unknown tag does nothing. Letter case counts. The end of a
/// heading switches the heading's styles off, even if another tag switched them on.
void ApplyTag(TextSurface& surface, std::string_view name, TagColours colours = TagColours::Applied);

} // namespace ls
