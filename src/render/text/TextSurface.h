#pragma once

#include <cstdint>
#include <string_view>

namespace ls {

/// The colour of text, 0 to 255 each.
struct Colour
{
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    friend bool operator==(const Colour&, const Colour&) = default;
};

inline constexpr Colour Black{0, 0, 0};
inline constexpr Colour DarkRed{127, 0, 0};
inline constexpr Colour DarkGreen{0, 127, 0};
inline constexpr Colour DarkBlue{0, 0, 127};

/// What topics are drawn on: the reading pane, a printer, a list of runs, a terminal.
///
/// Text is printed at the surface's current position in the styles set last; each print either ends its row
/// or leaves the position behind the text. Lengths are the surface's own units (pixels of the pane, twips of
/// a page).
class TextSurface
{
public:
    virtual ~TextSurface() = default;

    /// Empties the surface; the position returns to the top left. Styles stay as they are.
    virtual void Clear() = 0;

    virtual void SetBold(bool on) = 0;
    virtual void SetItalic(bool on) = 0;
    virtual void SetUnderline(bool on) = 0;
    virtual void SetColour(Colour colour) = 0;

    /// Tells which display line (from 1) the prints that follow come from.
    virtual void BeginLine(int displayLine) = 0;

    /// Prints book text (one byte a character).
    virtual void Print(std::string_view text, bool endRow) = 0;

    [[nodiscard]] virtual double InnerWidth() const = 0;
    [[nodiscard]] virtual double InnerHeight() const = 0;
    [[nodiscard]] virtual double TextWidth(std::string_view text) const = 0;
    [[nodiscard]] virtual double TextHeight(std::string_view text) const = 0;
};

} // namespace ls
