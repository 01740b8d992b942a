#pragma once

#include "base/FileError.h"

namespace ls {

class PrinterDevice;
struct PrintSettings;

/// Computes the page's area inside the margins, its lines and characters, and the margins, for the printer's
/// sheet and its current font and for `CharsPerInch`.
///
/// The margins are 0.65 inch at the left and 0.6 inch at the top of an upright page, 0.5 and 0.65 inch of one
/// on its side, from the edge of the paper: what cannot be printed on counts as a part of them. Error 6 where
/// a length or a count is beyond 32,767, 5 where the font has no height; the settings stay as they were then.
FileError PageSetup(PrintSettings& settings, PrinterDevice& printer);

} // namespace ls
