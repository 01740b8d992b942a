#pragma once

#include "base/Seams.h"

#include <optional>
#include <string>
#include <string_view>

namespace ls {

struct Book;

/// The text in memory of the topic on show, as UTF-8.
[[nodiscard]] std::string TextToEdit(const Book& book);

/// The result of Done in the text editor.
struct DoneOutcome
{
    bool stored = false;
    int line = 0; ///< if not stored: the line to look at again, from 1
};

/// Done in the text editor: stores the text in memory for the topic on show and sets `BookChanged`. `utf8`
/// may have any line ends; they become CR LF.
///
/// An emptied text is stored as one CR LF, because an empty one means that the topic is unedited. Nothing is
/// stored after the warning about a character that books cannot hold, or if the author does not accept lines
/// that would not be read back as text; the editor then stays open.
[[nodiscard]] DoneOutcome SaveTopicText(Book& book, const Seams& seams, const std::string& utf8);

/// Turns every line end (CR LF, CR, LF) into CR LF.
[[nodiscard]] std::string WithCrLf(std::string_view text);

/// The end tag of a markup pair: "</B>" for "<B>".
[[nodiscard]] std::string ClosingTag(std::string_view openTag);

/// The text to insert for a symbol: "&LT" for "<". Empty if the symbol is not one of the three. Nothing,
/// after a reminder, if no symbol was chosen.
///
/// Intended: the author must type the ";" that has to follow.
[[nodiscard]] std::optional<std::string> SymbolToInsert(std::string_view symbol, const Seams& seams);

/// Whether the editor may close without Done. Asks if the text was changed.
[[nodiscard]] bool MayDropText(bool changed, const Seams& seams);

/// Warns of a character that books cannot hold; `where` is its place, for example "Line 3".
void ShowUnmapped(const Seams& seams, const std::string& where, char32_t character);

} // namespace ls
