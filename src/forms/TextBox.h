#pragma once

#include <string>

class QPlainTextEdit;

namespace ls {

/// The text of a box as UTF-8, with "\n" between its lines and every other character unchanged.
[[nodiscard]] std::string TextOf(const QPlainTextEdit& box);

/// Gives a box the font and tab stops of the display, for text laid out in columns.
void SetFixedPitch(QPlainTextEdit& box);

/// Selects a line, from 1, and scrolls to it. The focus does not move.
void SelectLine(QPlainTextEdit& box, int line);

} // namespace ls
