#pragma once

#include "base/FileError.h"

#include <string>
#include <string_view>

namespace ls {

class LineCursor;

/// The target in an opening line: from character 13 to the first ">", quotes removed.
/// Empty when there is no ">".
[[nodiscard]] std::string XrefTarget(std::string_view openingLine);

/// Reads the note of a cross reference: the text from the first ">" of its opening line to "</XREF>". The
/// cursor stops after the line that ends the note.
///
/// Each piece is trimmed, leading empty pieces are dropped, and the others are joined with CR LF. A piece
/// that would make the text longer than 32,000 characters becomes "???" and ends the note.
FileError ReadXrefText(LineCursor& cursor, std::string_view openingLine, std::string& text);

} // namespace ls
