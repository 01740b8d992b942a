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

/// A printer that pages are laid out for and sent to.
class PrinterDevice
{
public:
    virtual ~PrinterDevice() = default;

    /// Names of the installed printers, as the user picks among them.
    virtual std::vector<std::string> Names() = 0;

    /// Takes one of them; an error when the system refuses it.
    virtual FileError Choose(const std::string& name) = 0;

    virtual FileError SetPaperSize(int code) = 0;
    virtual FileError SetLandscape(bool landscape) = 0;
    virtual FileError SetColour(bool colour) = 0;
    virtual PrinterState State() = 0;

    /// The font of what is printed from here on.
    virtual void SetFont(std::string_view family, double points) = 0;

    /// The page as text is printed on it, row by row. It stays the device's own.
    virtual TextSurface& Surface() = 0;

    virtual FileError NewPage() = 0;
    virtual FileError EndDoc() = 0;
};

} // namespace ls
