#include "render/print/PageRecorder.h"

namespace ls {

namespace {

constexpr double TwipsPerPoint = 20;
constexpr double CellOfHeight = 0.6; // the width of a character in a fixed-pitch font

} // namespace

PageRecorder::PageRecorder(const PrinterState& state, double lineHeight)
    : m_state(state), m_lineHeight(lineHeight)
{
    m_page.SetInner(state.scaleWidth, state.scaleHeight);
}

FileError PageRecorder::Choose(const std::string& /*name*/)
{
    return MakeFileError(error::DeviceUnavailable);
}

// The recorder has one kind of paper.
FileError PageRecorder::SetPaperSize(int code)
{
    return code == m_state.paperSize ? FileError{} : MakeFileError(error::InvalidCall);
}

FileError PageRecorder::SetLandscape(bool landscape)
{
    m_state.landscape = landscape;
    return {};
}

FileError PageRecorder::SetColour(bool colour)
{
    m_state.colour = colour;
    return {};
}

void PageRecorder::SetFont(std::string_view /*family*/, double points)
{
    m_page.SetCell(points * TwipsPerPoint * CellOfHeight, m_lineHeight);
}

FileError PageRecorder::EndDoc()
{
    return m_page.Runs().empty() ? FileError{} : NewPage();
}

FileError PageRecorder::NewPage()
{
    m_pages.push_back(m_page.Runs());
    m_page.Clear();
    return {};
}

} // namespace ls
