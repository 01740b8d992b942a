#pragma once

#include <string>
#include <string_view>

class QPlainTextEdit;
class QString;

namespace ls {

/// The text of a box as UTF-8, with "\n" between its lines, every character as it was typed or pasted.
[[nodiscard]] std::string TextOf(const QPlainTextEdit& box);

/// A text of the core as the toolkit's.
[[nodiscard]] QString Shown(std::string_view utf8);

/// The font and the tab stops of a box for text that is laid out in columns, as the display shows it.
void SetFixedPitch(QPlainTextEdit& box);

/// Selects a line, counted from 1, and scrolls there. The focus stays where it is.
void SelectLine(QPlainTextEdit& box, int line);

} // namespace ls
