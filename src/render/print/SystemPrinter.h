#pragma once

#include "base/PrintService.h"
#include "base/PrinterDevice.h"
#include "forms/CellMetrics.h"
#include "render/print/PageRecorder.h"

#include <QMarginsF>
#include <QString>

#include <memory>

class QPainter;
class QPrinter;
class QTemporaryDir;

namespace ls {

class FileSystem;

/// The name of the printer that writes a PDF file. It comes last in the list, after the installed printers.
inline constexpr const char* PrintToPdf = "Print to PDF";

/// The system's printers, through the toolkit's printer object, and "Print to PDF".
///
/// Prints are recorded row by row. A complete page is painted by the same code as the reading pane. Printers
/// are searched for at the first use, so that the program starts without a delay.
class SystemPrinter : public PrinterDevice
{
public:
    SystemPrinter(FileSystem& files, PrintService& service);
    ~SystemPrinter() override;

    std::vector<std::string> Names() override;
    std::string Current() override;
    FileError Choose(const std::string& name) override;
    bool AsksForFile() override;
    void SetFile(const std::string& path, bool replace) override;
    void SetTitle(const std::string& title) override;
    FileError SetPaperSize(int code) override;
    FileError SetLandscape(bool landscape) override;
    FileError SetColour(bool colour) override;
    PrinterState State() override;
    void SetFont(std::string_view family, double points) override;
    TextSurface& Surface() override;
    FileError NewPage() override;
    FileError EndDoc() override;

private:
    QPrinter& Printer();
    void TakePrinter(const std::string& name);
    [[nodiscard]] QMarginsF Edges() const;
    [[nodiscard]] bool IsThere(const std::string& name) const;
    FileError Begin();
    FileError PaintPage();
    FileError Finish();
    FileError StoreFile();
    FileError Abandon(const FileError& error);

    FileSystem& m_files;
    PrintService& m_service;
    std::unique_ptr<QPrinter> m_printer; ///< null until needed
    std::string m_name;
    std::string m_path; ///< the file that "Print to PDF" writes
    bool m_replace = false;
    QString m_title;
    CellMetrics m_cells;
    PageRuns m_page;                      ///< the prints of the page that is not complete yet
    std::unique_ptr<QTemporaryDir> m_own; ///< the folder in which the file is made
    std::unique_ptr<QPainter> m_painter;  ///< set while a document is printed
    bool m_pageEnded = false;             ///< the painter's page is complete
};

} // namespace ls
