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

/// A surface to draw topics on: the reading pane, a printer, a list of runs, a terminal.
///
/// Text is printed at the current position in the current styles. Each print either ends its row or leaves
/// the position after the text. Lengths are in the surface's own units (pixels of the pane, twips of a page).
class TextSurface
{
public:
    virtual ~TextSurface() = default;

    /// Empties the surface and moves the position to the top left. Styles do not change.
    virtual void Clear() = 0;

    virtual void SetBold(bool on) = 0;
    virtual void SetItalic(bool on) = 0;
    virtual void SetUnderline(bool on) = 0;
    virtual void SetColour(Colour colour) = 0;

    /// Gives the display line (from 1) of the prints that follow.
    virtual void BeginLine(int displayLine) = 0;

    /// Prints book text (one byte per character).
    virtual void Print(std::string_view text, bool endRow) = 0;

    [[nodiscard]] virtual double InnerWidth() const = 0;
    [[nodiscard]] virtual double InnerHeight() const = 0;
    [[nodiscard]] virtual double TextWidth(std::string_view text) const = 0;
    [[nodiscard]] virtual double TextHeight(std::string_view text) const = 0;
};

} // namespace ls
