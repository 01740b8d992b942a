#pragma once

#include "render/text/TextSurface.h"

#include <iosfwd>

namespace ls {

/// Prints a topic on a stream, with its styles where that is a terminal. Its units are characters and rows.
class TerminalSurface : public TextSurface
{
public:
    struct Look
    {
        bool terminal = false; ///< control characters become their pictures
        bool styled = false;   ///< bold, italic, underline and colours are shown
        int columns = 80;
        int rows = 25;
    };

    TerminalSurface(std::ostream& stream, Look look) : m_stream(&stream), m_look(look) {}

    /// A stream cannot be emptied; what comes next begins a row of its own.
    void Clear() override { EndRow(); }
    void SetBold(bool on) override { m_bold = on; }
    void SetItalic(bool on) override { m_italic = on; }
    void SetUnderline(bool on) override { m_underline = on; }
    void SetColour(Colour colour) override { m_colour = colour; }
    void BeginLine(int /*displayLine*/) override {}
    void Print(std::string_view text, bool endRow) override;

    /// Ends the row that the last print left open, if it did.
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
