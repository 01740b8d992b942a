#pragma once

#include "base/Seams.h"

#include <functional>

namespace ls {

class PrinterDevice;
struct Book;
struct PrintSettings;

/// Prints the topic on show, or the plain text file: shows the print dialog by `showPrtForm`, which sets
/// `PrintConfirmed` and returns when it is closed, and prints when that is set then. A printer's error is
/// told; nothing has been printed then.
void PrintItem_Click(const Book& book, PrintSettings& settings, PrinterDevice& printer, const Seams& seams,
                     const std::function<void()>& showPrtForm);

} // namespace ls
