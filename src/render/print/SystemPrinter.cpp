#include "render/print/SystemPrinter.h"

#include "base/FileSystem.h"
#include "base/ReplaceFile.h"
#include "render/pane/PaintRuns.h"
#include "render/print/PrintTopic.h"

#include <QFile>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QTemporaryDir>

#include <algorithm>
#include <cmath>

namespace ls {

namespace {

constexpr double TwipsPerInch = 1440;
constexpr int TwipsPerPoint = 20;
constexpr double UsualPoints = 12;
constexpr const char* EndOfPdf = "%%EOF";
constexpr qsizetype EndLength = 16;

QPrinterInfo InfoOf(const QPrinter& printer)
{
    return QPrinterInfo::printerInfo(printer.printerName());
}

int Twips(double points)
{
    return static_cast<int>(std::lround(points * TwipsPerPoint));
}

// The unprintable edges of a sheet on its side.
QMarginsF Turned(const QMarginsF& edges)
{
    return {edges.top(), edges.right(), edges.bottom(), edges.left()};
}

bool HasPaper(const QPrinterInfo& info, const QPageSize& paper)
{
    const QList<QPageSize> papers = info.supportedPageSizes();
    if (std::any_of(papers.begin(), papers.end(),
                    [&paper](const QPageSize& each) { return each.id() == paper.id(); })) {
        return true;
    }
    const QSize points = paper.sizePoints();
    const QSize least = info.minimumPhysicalPageSize().sizePoints();
    const QSize most = info.maximumPhysicalPageSize().sizePoints();
    return info.supportsCustomPageSizes() && points.width() >= least.width() &&
           points.height() >= least.height() && points.width() <= most.width() &&
           points.height() <= most.height();
}

} // namespace

SystemPrinter::SystemPrinter(FileSystem& files, PrintService& service)
    : m_files(files), m_service(service), m_cells()
{
}

SystemPrinter::~SystemPrinter() = default;

std::vector<std::string> SystemPrinter::Names()
{
    std::vector<std::string> names;
    for (const QString& name : QPrinterInfo::availablePrinterNames()) {
        names.push_back(name.toStdString());
    }
    names.emplace_back(PrintToPdf);
    return names;
}

std::string SystemPrinter::Current()
{
    Printer();
    return m_name;
}

bool SystemPrinter::IsThere(const std::string& name) const
{
    return name == PrintToPdf || QPrinterInfo::availablePrinterNames().contains(QString::fromStdString(name));
}

// The current printer. At first it is the system's default, or the first printer if there is no default.
QPrinter& SystemPrinter::Printer()
{
    if (!m_printer) {
        const std::string byDefault = QPrinterInfo::defaultPrinterName().toStdString();
        TakePrinter(!byDefault.empty() && IsThere(byDefault) ? byDefault : Names().front());
        SetFont(PrintFont, UsualPoints);
    }
    return *m_printer;
}

FileError SystemPrinter::Choose(const std::string& name)
{
    if (!IsThere(name)) {
        return MakeFileError(error::DeviceUnavailable);
    }
    if (name != m_name) {
        TakePrinter(name);
        SetFont(PrintFont, UsualPoints);
    }
    return {};
}

void SystemPrinter::TakePrinter(const std::string& name)
{
    m_painter.reset();
    m_page.Clear();
    m_name = name;
    if (name == PrintToPdf) {
        m_printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
        m_printer->setOutputFormat(QPrinter::PdfFormat);
    } else {
        const QPrinterInfo info = QPrinterInfo::printerInfo(QString::fromStdString(name));
        m_printer = std::make_unique<QPrinter>(info, QPrinter::HighResolution);
        if (info.defaultPageSize().isValid()) {
            m_printer->setPageSize(info.defaultPageSize()); // else A4, whatever the printer holds
        }
        if (const std::optional<bool> landscape = m_service.Landscape(name); landscape) {
            m_printer->setPageOrientation(*landscape ? QPageLayout::Landscape : QPageLayout::Portrait);
        }
    }
    m_printer->setFontEmbeddingEnabled(true);
    m_printer->setCreator(QStringLiteral("Lodestar Advisor"));
    m_printer->setFullPage(true); // this class places the text on the sheet itself
}

// The unprintable edges of the sheet, in points.
QMarginsF SystemPrinter::Edges() const
{
    QPageLayout layout = m_printer->pageLayout();
    layout.setUnits(QPageLayout::Point);
    const bool turned = layout.orientation() == QPageLayout::Landscape && m_service.TellsUprightEdges();
    return turned ? Turned(layout.minimumMargins()) : layout.minimumMargins();
}

bool SystemPrinter::AsksForFile()
{
    return Current() == PrintToPdf;
}

void SystemPrinter::SetFile(const std::string& path, bool replace)
{
    m_path = path;
    m_replace = replace;
}

void SystemPrinter::SetTitle(const std::string& title)
{
    m_title = QString::fromStdString(title);
}

FileError SystemPrinter::SetPaperSize(int code)
{
    const QPageSize::PageSizeId id = QPageSize::id(code);
    QPrinter& printer = Printer();
    if (id == QPageSize::Custom || (m_name != PrintToPdf && !HasPaper(InfoOf(printer), QPageSize(id)))) {
        return MakeFileError(error::InvalidCall);
    }
    printer.setPageSize(QPageSize(id));
    const bool taken = printer.pageLayout().pageSize().isEquivalentTo(QPageSize(id));
    return taken ? FileError{} : MakeFileError(error::InvalidCall);
}

FileError SystemPrinter::SetLandscape(bool landscape)
{
    Printer().setPageOrientation(landscape ? QPageLayout::Landscape : QPageLayout::Portrait);
    return {};
}

FileError SystemPrinter::SetColour(bool colour)
{
    QPrinter& printer = Printer();
    const bool hasColour =
        m_name == PrintToPdf || InfoOf(printer).supportedColorModes().contains(QPrinter::Color);
    printer.setColorMode(colour && hasColour ? QPrinter::Color : QPrinter::GrayScale);
    return {};
}

PrinterState SystemPrinter::State()
{
    const QPrinter& printer = Printer();
    const QPageLayout layout = printer.pageLayout();
    const QRect sheet = layout.fullRectPoints();
    const QMarginsF edges = Edges();
    PrinterState state;
    state.paperSize = layout.pageSize().windowsId();
    state.landscape = layout.orientation() == QPageLayout::Landscape;
    state.colour = printer.colorMode() == QPrinter::Color;
    state.width = sheet.width() * TwipsPerPoint;
    state.height = sheet.height() * TwipsPerPoint;
    state.scaleWidth = state.width - Twips(edges.left() + edges.right());
    state.scaleHeight = state.height - Twips(edges.top() + edges.bottom());
    return state;
}

// Topics have one typeface, whose characters are all equally wide. So the family is ignored.
void SystemPrinter::SetFont(std::string_view /*family*/, double points)
{
    Printer();
    m_cells = MeasurePrintCells(points);
    m_page.SetCell(m_cells.charWidth, m_cells.rowHeight);
}

TextSurface& SystemPrinter::Surface()
{
    const PrinterState state = State();
    m_page.SetInner(state.scaleWidth, state.scaleHeight);
    return m_page;
}

// The chosen printer may no longer exist. The toolkit would then print to nowhere and report no error.
FileError SystemPrinter::Begin()
{
    if (!IsThere(m_name)) {
        return MakeFileError(error::DeviceUnavailable);
    }
    QPrinter& printer = Printer();
    printer.setDocName(m_title);
    if (m_name == PrintToPdf) {
        m_own = std::make_unique<QTemporaryDir>();
        if (!m_own->isValid()) {
            return MakeFileError(error::PathFileAccess);
        }
        printer.setOutputFileName(m_own->filePath(QStringLiteral("pages.pdf")));
    }
    m_painter = std::make_unique<QPainter>();
    if (!m_painter->begin(&printer)) {
        return MakeFileError(m_name == PrintToPdf ? error::PathFileAccess : error::DeviceUnavailable);
    }
    m_pageEnded = false;
    return {};
}

FileError SystemPrinter::PaintPage()
{
    if (!m_painter) {
        if (const FileError error = Begin(); !error.Ok()) {
            return error;
        }
    } else if (m_pageEnded && !m_printer->newPage()) {
        return MakeFileError(error::DeviceIo);
    }
    const PrinterState state = State();
    const QMarginsF edges = Edges();
    m_painter->resetTransform();
    m_painter->scale(m_printer->resolution() / TwipsPerInch, m_printer->resolution() / TwipsPerInch);
    m_painter->translate(Twips(edges.left()), Twips(edges.top()));
    PaintRuns(*m_painter, m_page.Runs(), m_cells, QRectF(0, 0, state.scaleWidth, state.scaleHeight));
    m_page.Clear();
    m_pageEnded = true;
    return {};
}

FileError SystemPrinter::NewPage()
{
    const FileError error = PaintPage();
    return error.Ok() ? error : Abandon(error);
}

FileError SystemPrinter::EndDoc()
{
    if (!m_painter || !m_page.Runs().empty()) {
        if (const FileError error = PaintPage(); !error.Ok()) {
            return Abandon(error);
        }
    }
    const FileError error = Finish();
    m_painter.reset();
    m_own.reset();
    return error;
}

FileError SystemPrinter::Finish()
{
    const bool ended = m_painter->end();
    const QPrinter::PrinterState state = m_printer->printerState();
    if (!ended || state == QPrinter::Error || state == QPrinter::Aborted) {
        return MakeFileError(error::DeviceIo);
    }
    return m_name == PrintToPdf ? StoreFile() : m_service.LastJob();
}

// The toolkit does not report a full disk. So the file's end is checked.
FileError SystemPrinter::StoreFile()
{
    QFile made(m_printer->outputFileName());
    if (!made.open(QIODevice::ReadOnly)) {
        return MakeFileError(error::PathFileAccess);
    }
    const QByteArray bytes = made.readAll();
    if (!bytes.last(std::min(bytes.size(), EndLength)).contains(EndOfPdf)) {
        return MakeFileError(error::DiskFull);
    }
    // A file that appeared after the print dialog is not replaced, because the user was not asked about it.
    const auto open = m_replace ? OpenToReplace : OpenToCreate;
    std::unique_ptr<OutputFile> file;
    if (const FileError error = open(m_files, m_path, file); !error.Ok()) {
        return error;
    }
    const FileError error = file->Write({bytes.data(), static_cast<std::size_t>(bytes.size())});
    return error.Ok() ? file->Finish() : error;
}

// Gives up the document, so that nothing of it reaches a printer.
FileError SystemPrinter::Abandon(const FileError& error)
{
    if (m_painter && m_painter->isActive()) {
        m_printer->abort();
    }
    m_painter.reset();
    m_own.reset();
    m_page.Clear();
    return error;
}

} // namespace ls
