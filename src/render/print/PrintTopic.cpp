#include "render/print/PrintTopic.h"

#include "base/CodePage.h"
#include "base/LineCursor.h"
#include "base/PrinterDevice.h"
#include "base/Text.h"
#include "book/Book.h"
#include "book/BookLoader.h"
#include "book/TopicEnd.h"
#include "render/print/PageSetup.h"
#include "render/print/PrintSettings.h"
#include "render/text/DrawLines.h"
#include "render/text/ListIndent.h"
#include "render/text/TextSurface.h"
#include "render/text/TopicBody.h"
#include "render/text/WrapSegment.h"

#include <algorithm>

namespace ls {

namespace {

constexpr Colour Purple{127, 0, 127};
constexpr int EliteCharsPerInch = 12;
constexpr double PicaPoints = 12;
constexpr double ElitePoints = 10;
constexpr std::size_t LongLine = 50; // a line up to this length has no hanging indent
constexpr int TitleLines = 2;        // the title and the empty line below it

void PrintMargin(TextSurface& surface, const PrintSettings& settings)
{
    surface.Print(std::string(static_cast<std::size_t>(std::max(settings.LeftMarginChars, 0)), ' '), false);
}

TagColours ColoursOf(bool inColour)
{
    return inColour ? TagColours::Applied : TagColours::LeftOut;
}

void PrintLineWith(TextSurface& surface, const PrintSettings& settings, std::string_view segment,
                   float bookVersion, std::string& buffer)
{
    PrintMargin(surface, settings);
    DrawLine(surface, segment, bookVersion, buffer, ColoursOf(settings.PrintInColour));
}

// The pages of one topic. After a printer error nothing more is printed.
class Pages
{
public:
    Pages(const Book& book, PrinterDevice& printer, const PrintSettings& settings)
        : m_book(&book), m_printer(&printer), m_surface(&printer.Surface()), m_settings(&settings)
    {
    }

    void PrintTopMargin()
    {
        for (int line = 0; line < m_settings->TopMarginLines; ++line) {
            m_surface->Print({}, true);
        }
    }

    // The title and the empty line below it count as lines of the page. The top margin never counts.
    void PrintTitle(std::string_view title)
    {
        PrintMargin(*m_surface, *m_settings);
        m_surface->SetBold(true);
        m_surface->SetItalic(true);
        m_surface->SetUnderline(true);
        if (m_settings->PrintInColour) {
            m_surface->SetColour(Purple);
        }
        m_surface->Print(title, true);
        SetPlain(*m_surface);
        m_surface->Print({}, true);
        m_lineCount = TitleLines;
    }

    FileError PrintBody(TopicBody& body)
    {
        std::string_view line;
        while (m_error.Ok() && body.Next(line)) {
            line = TrimRight(line);
            if (!m_book->IsPlainText() && EndsText(line)) {
                break;
            }
            PrintSourceLine(line);
        }
        return m_error;
    }

private:
    // Intended: the rest of a line is not trimmed, so blanks at its end make one more, empty row.
    void PrintSourceLine(std::string_view line)
    {
        const int width = std::max(m_settings->CharsPerLine, LeastLineWidth);
        const int hang = line.size() > LongLine ? ListIndent(line) : 0;
        LineRemainder rest(line);
        int indent = 0;
        do {
            WrapSegment(rest, width, indent, m_segment);
            m_surface->BeginLine(++m_displayLine);
            if (Trim(m_segment).empty()) {
                m_surface->Print({}, true);
            } else {
                PrintLineWith(*m_surface, *m_settings, m_segment, m_book->BookVersion, m_buffer);
            }
            CountLine();
            indent = hang;
        } while (m_error.Ok() && !rest.Empty());
    }

    // Intended: a topic that fills its last page exactly is followed by an empty page.
    void CountLine()
    {
        if (++m_lineCount < m_settings->LinesPerPage) {
            return;
        }
        m_error = m_printer->NewPage();
        if (m_error.Ok()) {
            PrintTopMargin();
            m_lineCount = 0;
        }
    }

    const Book* m_book;
    PrinterDevice* m_printer;
    TextSurface* m_surface;
    const PrintSettings* m_settings;
    int m_lineCount = 0;
    int m_displayLine = 0;
    FileError m_error;
    std::string m_segment;
    std::string m_buffer;
};

void SetUpPrinter(PrinterDevice& printer, const PrintSettings& settings)
{
    printer.SetFont(PrintFont, settings.CharsPerInch == EliteCharsPerInch ? ElitePoints : PicaPoints);
    printer.Surface().Clear();
    SetPlain(printer.Surface()); // also resets what the last topic left on
}

// Positions the cursor. If the topic is not found, the look-up shows its message and the result is false.
bool Locate(const Book& book, const Seams& seams, LineCursor& cursor, std::string& name, Count16 number)
{
    if (book.IsPlainText()) {
        return true;
    }
    name = WithBrackets(name);
    LocateTopic(book, seams, cursor, name, number);
    return !name.empty();
}

} // namespace

Printed PrintTopic(const Book& book, const Seams& seams, PrinterDevice& printer, PrintSettings& settings,
                   const std::string& topicName, Count16 topicIndex)
{
    SetUpPrinter(printer, settings);
    FileError error = PageSetup(settings, printer);
    if (!error.Ok() || settings.LinesPerPage < 0 || settings.CharsPerLine < 0) {
        return {error};
    }
    LineCursor cursor = CursorOf(book);
    std::string name = topicName;
    if (!Locate(book, seams, cursor, name, topicIndex)) {
        printer.Surface().Print("Error on lookup of topic.", true);
        return {printer.EndDoc(), false};
    }
    Pages pages(book, printer, settings);
    pages.PrintTopMargin();
    if (!book.IsPlainText()) {
        pages.PrintTitle(WithoutBrackets(name));
    }
    FileBody body(cursor);
    error = pages.PrintBody(body);
    if (!error.Ok()) {
        return {error};
    }
    if (!body.Error().Ok()) {
        // The part read before the error may be all that can be read, so it is printed. A message says that
        // it is cut.
        ShowFetchError(seams, book.IsPlainText() ? ToBook(FromPath(book.BookPath)).value_or("") : name,
                       body.Error());
    }
    return {printer.EndDoc()};
}

void PrintLine(TextSurface& surface, const PrintSettings& settings, std::string_view segment,
               float bookVersion)
{
    std::string buffer;
    PrintLineWith(surface, settings, segment, bookVersion, buffer);
}

void ApplyPrintTag(TextSurface& surface, std::string_view name, bool inColour)
{
    ApplyTag(surface, name, ColoursOf(inColour));
}

} // namespace ls
