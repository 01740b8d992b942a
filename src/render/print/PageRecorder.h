#pragma once

#include "base/PrinterDevice.h"
#include "render/text/RunList.h"

#include <vector>

namespace ls {

/// The prints of one page: a list of runs, measured in twips.
class PageRuns : public RunList
{
public:
    void SetCell(double width, double height)
    {
        m_width = width;
        m_height = height;
    }
    void SetInner(double width, double height)
    {
        m_innerWidth = width;
        m_innerHeight = height;
    }

    [[nodiscard]] double InnerWidth() const override { return m_innerWidth; }
    [[nodiscard]] double InnerHeight() const override { return m_innerHeight; }
    [[nodiscard]] double TextWidth(std::string_view text) const override
    {
        return m_width * static_cast<double>(text.size());
    }
    [[nodiscard]] double TextHeight(std::string_view /*text*/) const override { return m_height; }

private:
    double m_width = 0;
    double m_height = 0;
    double m_innerWidth = 0;
    double m_innerHeight = 0;
};

/// A printer without paper: it records what is printed, page by page.
class PageRecorder : public PrinterDevice
{
public:
    using Page = std::vector<Run>;

    /// Sets the sheet, and the height of a line on it in twips.
    PageRecorder(const PrinterState& state, double lineHeight);

    /// The pages that are complete.
    [[nodiscard]] const std::vector<Page>& Pages() const { return m_pages; }

    std::vector<std::string> Names() override { return {}; }
    std::string Current() override { return {}; }
    FileError Choose(const std::string& name) override;
    bool AsksForFile() override { return false; }
    void SetFile(const std::string& /*path*/, bool /*replace*/) override {}
    void SetTitle(const std::string& /*title*/) override {}
    FileError SetPaperSize(int code) override;
    FileError SetLandscape(bool landscape) override;
    FileError SetColour(bool colour) override;
    PrinterState State() override { return m_state; }
    void SetFont(std::string_view family, double points) override;
    TextSurface& Surface() override { return m_page; }
    FileError NewPage() override;
    FileError EndDoc() override;

private:
    PrinterState m_state;
    double m_lineHeight;
    PageRuns m_page;
    std::vector<Page> m_pages;
};

} // namespace ls
