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
    int code = 0; ///< the system's paper code; 0 keeps the printer's own paper
};

/// What the print dialog shows at first.
struct PrtFormView
{
    std::vector<std::string> printers;
    std::string printer; ///< the current one; it is in the list unless empty
    std::vector<PaperChoice> papers;
    std::size_t paper = 0; ///< the selected entry, from 0
    bool colour = false;
    bool elite = false;
};

/// The user's choices in the print dialog.
struct PrtFormChoices
{
    std::string printer;
    int paper = 0;
    bool colour = false;
    bool elite = false;
};

/// What to show: the last choices, or at first the printer's own settings. If the current printer is gone,
/// the first one in the list becomes current.
[[nodiscard]] PrtFormView LoadPrtForm(const PrintSettings& settings, PrinterDevice& printer);

/// The user picked another printer: it becomes the current one.
void PrinterCombo_Click(PrinterDevice& printer, const std::string& name);

/// The print button: sets up the printer and stores the choices. False keeps the dialog open: after a
/// message, or if the user did not name the file for the printer. The open book's file is never overwritten;
/// any other file only if the user agrees.
bool AcceptPrtForm(PrintSettings& settings, PrinterDevice& printer, const Book& book, const Seams& seams,
                   const PrtFormChoices& choices);

} // namespace ls
