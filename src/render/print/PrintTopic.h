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

/// The font of printed topics: 12 points for 10 characters to the inch, 10 points for 12.
inline constexpr std::string_view PrintFont = "Courier New";

/// The result of a print.
struct Printed
{
    FileError error;     ///< the printer's error; nothing was printed then
    bool located = true; ///< false if the topic was not found and a page says so
};

/// Prints a topic of the book's file, or a whole plain text file, on the current printer: its title, then its
/// lines up to its references or logic. Unsaved edits are not printed.
///
/// `PageSetup` computes the layout and fills the rest of `settings`. If the topic cannot be found, the
/// look-up shows its message and a page says so. Without an error the printer has the document.
Printed PrintTopic(const Book& book, const Seams& seams, PrinterDevice& printer, PrintSettings& settings,
                   const std::string& topicName, Count16 topicIndex);

/// Prints one display line after the left margin: unchanged for a book of a version below 5.0, otherwise with
/// its tags and entities applied as on the screen.
void PrintLine(TextSurface& surface, const PrintSettings& settings, std::string_view segment,
               float bookVersion);

/// Like `ApplyTag`, for the printer: a heading's colour and the return to black apply only in colour.
void ApplyPrintTag(TextSurface& surface, std::string_view name, bool inColour);

} // namespace ls
