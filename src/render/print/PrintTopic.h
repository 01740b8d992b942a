#pragma once

#include "base/Count16.h"
#include "base/FileError.h"
#include "base/Seams.h"

#include <string>
#include <string_view>

namespace ls {

class PrinterDevice;
class TextSurface;
struct Book;
struct PrintSettings;

/// What is printed in, at 12 points for 10 characters to the inch and at 10 points for 12.
inline constexpr std::string_view PrintFont = "Courier New";

/// What printing came to.
struct Printed
{
    FileError error;     ///< of the printer: nothing was printed then
    bool located = true; ///< false when the topic was not found, and a page that says so was printed
};

/// Prints a topic of the book's file, or the whole of a plain text file, on the current printer: its title,
/// then its lines as far as its references and its logic. What was edited and not saved prints as it stands
/// in the file.
///
/// The layout comes from `PageSetup`, which fills the rest of `settings`. A topic that cannot be found prints
/// a page that says so, after the look-up's message. Without an error the document is with the printer.
Printed PrintTopic(const Book& book, const Seams& seams, PrinterDevice& printer, PrintSettings& settings,
                   const std::string& topicName, Count16 topicIndex);

/// Prints one display line behind the left margin: as it stands in a book of a version below 5.0, else with
/// its tags and entities as on the screen.
void PrintLine(TextSurface& surface, const PrintSettings& settings, std::string_view segment,
               float bookVersion);

/// The printer's counterpart of `ApplyTag`: a heading's colour, and the return to black, only in colour.
void ApplyPrintTag(TextSurface& surface, std::string_view name, bool inColour);

} // namespace ls
