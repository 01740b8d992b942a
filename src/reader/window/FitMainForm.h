#pragma once

class QSize;

namespace Ui {
class MainForm;
}

namespace ls {

/// Makes room for the captions of the main window in the font that it has: the rows above and below the pane
/// become as high, and their buttons as wide, as they need, and no smaller than they were designed. Gives the
/// inner size that the form then needs, with the pane as large as designed.
[[nodiscard]] QSize FitMainForm(Ui::MainForm& ui, const QSize& designed);

} // namespace ls
