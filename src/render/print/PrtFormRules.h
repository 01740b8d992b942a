#pragma once

#include "base/Seams.h"

#include <string>
#include <vector>

namespace ls {

class PrinterDevice;
struct Book;
struct PrintSettings;

/// An entry of the list of papers.
struct PaperChoice
{
    std::string text;
    int code = 0; ///< the system's paper code; 0 leaves the printer its own paper
};

/// What the print dialog shows when it comes up.
struct PrtFormView
{
    std::vector<std::string> printers;
    std::string printer; ///< the current one, which is in the list unless that is empty
    std::vector<PaperChoice> papers;
    std::size_t paper = 0; ///< the selected entry, from 0
    bool colour = false;
    bool elite = false;
};

/// What the user chose in it.
struct PrtFormChoices
{
    std::string printer;
    int paper = 0;
    bool colour = false;
    bool elite = false;
};

/// Tells what to show: the last choices, or the printer's own settings where there are none yet. A current
/// printer that is gone gives way to the first that is there.
[[nodiscard]] PrtFormView LoadPrtForm(const PrintSettings& settings, PrinterDevice& printer);

/// Another printer was picked from the list: it becomes the current one.
void PrinterCombo_Click(PrinterDevice& printer, const std::string& name);

/// The print button: sets the printer up and keeps the choices. False after a message that keeps the dialog
/// open, and when the user did not name the file that the printer writes into. The open book's file is never
/// written over, any other one only when the user agrees.
bool AcceptPrtForm(PrintSettings& settings, PrinterDevice& printer, const Book& book, const Seams& seams,
                   const PrtFormChoices& choices);

} // namespace ls
