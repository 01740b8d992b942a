#pragma once

#include "base/FileError.h"

#include <string>
#include <string_view>

namespace ls {

class LineCursor;

/// The target named by an opening line: what stands from character 13 up to the first ">", quotes removed.
/// Empty when there is no ">".
[[nodiscard]] std::string XrefTarget(std::string_view openingLine);

/// The note of a cross reference: what stands behind the first ">" of its opening line and on the lines that
/// follow, up to "</XREF>". The cursor ends behind the line that ended the note.
///
/// Each piece is trimmed; leading empty ones are dropped; later ones are joined by CR LF. A piece that would
/// take the text past 32,000 characters ends it with "???" instead.
FileError ReadXrefText(LineCursor& cursor, std::string_view openingLine, std::string& text);

} // namespace ls
