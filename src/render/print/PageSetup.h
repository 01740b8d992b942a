#pragma once

#include "base/FileError.h"

namespace ls {

class PrinterDevice;
struct PrintSettings;

/// Computes the printable area, its lines and characters, and the margins, from the printer's sheet, its
/// current font and `CharsPerInch`.
///
/// The margins of an upright page are 0.65 inch at the left and 0.6 inch at the top; those of a page on its
/// side are 0.5 and 0.65 inch. They count from the edge of the paper and include the part that the printer
/// cannot reach. Error 6 if a length or a count exceeds 32,767, error 5 if the font has no height. After an
/// error the settings are unchanged.
FileError PageSetup(PrintSettings& settings, PrinterDevice& printer);

} // namespace ls
