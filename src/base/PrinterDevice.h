#pragma once

#include "base/FileError.h"

#include <string>
#include <string_view>
#include <vector>

namespace ls {

class TextSurface;

/// A printer's sizes and settings. Lengths are twips (1440 an inch).
struct PrinterState
{
    int paperSize = 0; ///< the system's paper code: 1 Letter, 5 Legal, 9 A4, ...
    bool landscape = false;
    bool colour = false;
    int width = 0; ///< of the sheet
    int height = 0;
    int scaleWidth = 0; ///< of the printable part
    int scaleHeight = 0;
};

/// The printer in use: pages are laid out for it and sent to it.
class PrinterDevice
{
public:
    virtual ~PrinterDevice() = default;

    /// The printers' names in UTF-8, for the user to choose from.
    virtual std::vector<std::string> Names() = 0;

    /// The name of the printer in use, even if it no longer exists.
    virtual std::string Current() = 0;

    /// Makes `name` the printer in use. A printer that was in use already keeps its settings; another one
    /// gets its own. An error when it does not exist (any more).
    virtual FileError Choose(const std::string& name) = 0;

    /// Whether the printer in use writes into a file, so that the user must name one.
    virtual bool AsksForFile() = 0;

    /// The file that the next document is written into. It is created when the document is complete, and
    /// replaces an existing file only if `replace` is set.
    virtual void SetFile(const std::string& path, bool replace) = 0;

    /// The next document's title in lists of jobs, in UTF-8.
    virtual void SetTitle(const std::string& title) = 0;

    virtual FileError SetPaperSize(int code) = 0;
    virtual FileError SetLandscape(bool landscape) = 0;

    /// A printer without colour still prints in grey.
    virtual FileError SetColour(bool colour) = 0;
    virtual PrinterState State() = 0;

    /// Sets the font for what is printed next.
    virtual void SetFont(std::string_view family, double points) = 0;

    /// The page as rows of text, from the top left of the printable part. Lengths are twips. The device owns
    /// it.
    virtual TextSurface& Surface() = 0;

    /// Ends the page. After an error the document is lost, and the next print begins another.
    virtual FileError NewPage() = 0;

    /// Ends the page and prints the document; without an error the printer has it. Directly after `NewPage`
    /// it adds no page.
    virtual FileError EndDoc() = 0;
};

} // namespace ls
