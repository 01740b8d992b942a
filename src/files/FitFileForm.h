#pragma once

class QSize;

namespace Ui {
class FileForm;
}

namespace ls {

/// Makes room for the captions of the file form in the font that it has; nothing becomes smaller than it was
/// designed. Gives the size that the form then needs.
[[nodiscard]] QSize FitFileForm(Ui::FileForm& ui, const QSize& designed);

} // namespace ls
