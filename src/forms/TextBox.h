#pragma once

#include <string>

class QPlainTextEdit;

namespace ls {

/// The text of a box as UTF-8, with "\n" between its lines, every character as it was typed or pasted.
[[nodiscard]] std::string TextOf(const QPlainTextEdit& box);

/// The font and the tab stops of a box for text that is laid out in columns, as the display shows it.
void SetFixedPitch(QPlainTextEdit& box);

/// Selects a line, counted from 1, and scrolls there. The focus stays where it is.
void SelectLine(QPlainTextEdit& box, int line);

} // namespace ls
