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

/// The printer of this name writes pages into a file. It stands behind the installed ones, and alone where
/// there are none.
inline constexpr const char* PrintToPdf = "Print to PDF";

/// The printers of the system, by way of the toolkit's printer object, and "Print to PDF".
///
/// What is printed is recorded row by row, and a page is painted once it is complete, by the very code that
/// paints the reading pane. Printers are looked for when they are first needed: at the start of the program
/// that would be a wait for nothing.
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
    std::unique_ptr<QPrinter> m_printer; ///< none until one is needed
    std::string m_name;
    std::string m_path; ///< of the file that "Print to PDF" writes
    bool m_replace = false;
    QString m_title;
    CellMetrics m_cells;
    PageRuns m_page;                      ///< what was printed on the page that is not complete yet
    std::unique_ptr<QTemporaryDir> m_own; ///< where the file is made
    std::unique_ptr<QPainter> m_painter;  ///< while a document is being printed
    bool m_pageEnded = false;             ///< the painter's page is complete
};

} // namespace ls
