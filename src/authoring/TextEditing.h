#pragma once

#include "base/Seams.h"

#include <optional>
#include <string>
#include <string_view>

namespace ls {

struct Book;

/// The text in memory of the topic on show, as UTF-8, for the text editor.
[[nodiscard]] std::string TextToEdit(const Book& book);

/// What the editor's Done came to.
struct DoneOutcome
{
    bool stored = false;
    int line = 0; ///< when not stored: the line to look at again, from 1
};

/// Done in the text editor: stores the text (UTF-8, with whatever line ends were typed or pasted) as the text
/// in memory of the topic on show, its lines parted by CR LF, and sets `BookChanged`.
///
/// An emptied text is stored as one CR LF, since an empty one means that the topic is unedited. A character
/// that books cannot hold is named in a warning, and lines that would not be read back as text are asked
/// about; the editor then stays open.
[[nodiscard]] DoneOutcome SaveTopicText(Book& book, const Seams& seams, const std::string& utf8);

/// Every line end (CR LF, CR, LF) as CR LF.
[[nodiscard]] std::string WithCrLf(std::string_view text);

/// The end tag of a markup pair: "</B>" for "<B>".
[[nodiscard]] std::string ClosingTag(std::string_view openTag);

/// What stands for a symbol in a topic's text: "&LT" for "<", and nothing for a text that is none of the
/// three. The ";" that must follow is left for the author to type, which is kept. Without a chosen symbol (an
/// empty text) a reminder is shown and nothing is to be inserted.
[[nodiscard]] std::optional<std::string> SymbolToInsert(std::string_view symbol, const Seams& seams);

/// Whether the editor may close without Done: asks when the text was changed.
[[nodiscard]] bool MayDropText(bool changed, const Seams& seams);

/// The warning for a character that books cannot hold; `where` names its place ("Line 3").
void ShowUnmapped(const Seams& seams, const std::string& where, char32_t character);

} // namespace ls
