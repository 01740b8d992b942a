#include "cli/TerminalSurface.h"

#include "base/CodePage.h"
#include "cli/TerminalText.h"

#include <ostream>
#include <string>

namespace ls {

namespace {

// An unbroken row may be a large part of the book; writing it in pieces avoids two more copies in memory.
constexpr std::size_t Piece = 16 * 1024;

// A colour from the terminal's own palette, which is readable on any background. Black is the terminal's text
// colour.
std::string_view PaletteCode(Colour colour)
{
    if (colour == Black) {
        return {};
    }
    if (colour.red >= colour.green && colour.red >= colour.blue) {
        return ";31";
    }
    return colour.green >= colour.blue ? ";32" : ";34";
}

} // namespace

std::string TerminalSurface::StyleCode() const
{
    std::string code;
    code.append(m_bold ? ";1" : "").append(m_italic ? ";3" : "").append(m_underline ? ";4" : "");
    code.append(PaletteCode(m_colour));
    return code.empty() ? code : "\033[" + code.substr(1) + "m";
}

void TerminalSurface::Print(std::string_view text, bool endRow)
{
    const std::string style = m_look.styled && !text.empty() ? StyleCode() : std::string();
    *m_stream << style;
    for (std::size_t at = 0; at < text.size(); at += Piece) {
        *m_stream << LineForStream(FromBook(text.substr(at, Piece)), m_look.terminal);
    }
    *m_stream << (style.empty() ? "" : "\033[0m");
    m_rowOpen = true;
    if (endRow) {
        EndRow();
    }
}

void TerminalSurface::EndRow()
{
    if (m_rowOpen) {
        *m_stream << '\n';
        m_rowOpen = false;
    }
}

} // namespace ls
