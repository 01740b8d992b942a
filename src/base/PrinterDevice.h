#pragma once

#include "base/FileError.h"

#include <string>
#include <string_view>
#include <vector>

namespace ls {

class TextSurface;

/// What a printer offers and how it is set. Lengths are twips (1440 an inch).
struct PrinterState
{
    int paperSize = 0; ///< the system's paper code: 1 Letter, 5 Legal, 9 A4, ...
    bool landscape = false;
    bool colour = false;
    int width = 0; ///< of the sheet
    int height = 0;
    int scaleWidth = 0; ///< of the part that can be printed on
    int scaleHeight = 0;
};

/// The printer that is chosen among those there are. Pages are laid out for it and sent to it.
class PrinterDevice
{
public:
    virtual ~PrinterDevice() = default;

    /// Names of the printers, in UTF-8, as the user picks among them.
    virtual std::vector<std::string> Names() = 0;

    /// The name of the current one, whether or not it is still there.
    virtual std::string Current() = 0;

    /// Makes one of them the current one. Its settings stay as they are where it is that already, else they
    /// are its own; an error when it is not there (any more).
    virtual FileError Choose(const std::string& name) = 0;

    /// Whether the current one writes into a file whose name is to be asked for.
    virtual bool AsksForFile() = 0;

    /// The file that the next document is written into. It is made when the document is complete: in place of
    /// a file of that name only when `replace` says so.
    virtual void SetFile(const std::string& path, bool replace) = 0;

    /// What the next document is called where jobs are listed, in UTF-8.
    virtual void SetTitle(const std::string& title) = 0;

    virtual FileError SetPaperSize(int code) = 0;
    virtual FileError SetLandscape(bool landscape) = 0;

    /// A printer that has no colour prints in grey all the same.
    virtual FileError SetColour(bool colour) = 0;
    virtual PrinterState State() = 0;

    /// The font of what is printed from here on.
    virtual void SetFont(std::string_view family, double points) = 0;

    /// The page as text is printed on it, row by row, from the top left of the part that can be printed on.
    /// Lengths are twips. It stays the device's own.
    virtual TextSurface& Surface() = 0;

    /// Ends the page. After an error the document is gone, and what is printed next begins another.
    virtual FileError NewPage() = 0;

    /// Ends the page and the document, which is printed then. Without an error it is with the printer. Right
    /// behind `NewPage` it adds no page.
    virtual FileError EndDoc() = 0;
};

} // namespace ls
