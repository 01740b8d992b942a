#pragma once

#include "render/text/TextSurface.h"

#include <string>
#include <vector>

namespace ls {

/// A text printed in one style by one print.
struct Run
{
    int displayLine = 0; ///< the display line of the text, from 1
    int row = 1;         ///< the row of the text, from 1
    int firstColumn = 1; ///< the column of its first character, from 1
    std::string text;    ///< book text; may be empty if the print only ends a row
    bool bold = false;
    bool italic = false;
    bool underline = false;
    Colour colour;
    bool endRow = false; ///< the next print begins a new row

    friend bool operator==(const Run&, const Run&) = default;
};

/// A surface that records what is printed on it. Its units are characters and rows: each character is one
/// wide and one high.
class RunList : public TextSurface
{
public:
    explicit RunList(int columns = 80, int rows = 25) : m_columns(columns), m_rows(rows) {}

    [[nodiscard]] const std::vector<Run>& Runs() const { return m_runs; }

    void Clear() override;
    void SetBold(bool on) override { m_style.bold = on; }
    void SetItalic(bool on) override { m_style.italic = on; }
    void SetUnderline(bool on) override { m_style.underline = on; }
    void SetColour(Colour colour) override { m_style.colour = colour; }
    void BeginLine(int displayLine) override { m_style.displayLine = displayLine; }
    void Print(std::string_view text, bool endRow) override;

    [[nodiscard]] double InnerWidth() const override { return m_columns; }
    [[nodiscard]] double InnerHeight() const override { return m_rows; }
    [[nodiscard]] double TextWidth(std::string_view text) const override
    {
        return static_cast<double>(text.size());
    }
    [[nodiscard]] double TextHeight(std::string_view /*text*/) const override { return 1; }

private:
    int m_columns;
    int m_rows;
    Run m_style; ///< the styles and the place of the next print
    std::vector<Run> m_runs;
};

} // namespace ls
