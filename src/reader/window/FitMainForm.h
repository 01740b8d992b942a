#pragma once

class QSize;

namespace Ui {
class MainForm;
}

namespace ls {

/// Makes room for the captions of the main window in its current font. The rows above and below the pane grow
/// in height and their buttons in width, but nothing gets smaller than designed. Returns the inner size that
/// the form then needs, with the pane as large as designed.
[[nodiscard]] QSize FitMainForm(Ui::MainForm& ui, const QSize& designed);

} // namespace ls
