#pragma once

#include "render/text/TextSurface.h"

#include <iosfwd>

namespace ls {

/// Prints a topic to a stream, with styles on a terminal. Its units are characters and rows.
class TerminalSurface : public TextSurface
{
public:
    struct Look
    {
        bool terminal = false; ///< show control characters as their pictures
        bool styled = false;   ///< write bold, italic, underline and colours
        int columns = 80;
        int rows = 25;
    };

    TerminalSurface(std::ostream& stream, Look look) : m_stream(&stream), m_look(look) {}

    /// A stream cannot be cleared; the next print begins a new row instead.
    void Clear() override { EndRow(); }
    void SetBold(bool on) override { m_bold = on; }
    void SetItalic(bool on) override { m_italic = on; }
    void SetUnderline(bool on) override { m_underline = on; }
    void SetColour(Colour colour) override { m_colour = colour; }
    void BeginLine(int /*displayLine*/) override {}
    void Print(std::string_view text, bool endRow) override;

    /// Ends the row if the last print left it open.
    void EndRow();

    [[nodiscard]] double InnerWidth() const override { return m_look.columns; }
    [[nodiscard]] double InnerHeight() const override { return m_look.rows; }
    [[nodiscard]] double TextWidth(std::string_view text) const override
    {
        return static_cast<double>(text.size());
    }
    [[nodiscard]] double TextHeight(std::string_view /*text*/) const override { return 1; }

private:
    [[nodiscard]] std::string StyleCode() const;

    std::ostream* m_stream;
    Look m_look;
    bool m_bold = false;
    bool m_italic = false;
    bool m_underline = false;
    Colour m_colour;
    bool m_rowOpen = false;
};

} // namespace ls
