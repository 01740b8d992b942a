#pragma once

#include "base/Seams.h"

#include <functional>

namespace ls {

class PrinterDevice;
struct Book;
struct PrintSettings;

/// Prints the topic on show, or the plain text file. `showPrtForm` shows the print dialog, which sets
/// `PrintConfirmed` for printing, and returns when it is closed. A printer's error is reported in a box; then
/// nothing was printed.
void PrintItem_Click(const Book& book, PrintSettings& settings, PrinterDevice& printer, const Seams& seams,
                     const std::function<void()>& showPrtForm);

} // namespace ls
