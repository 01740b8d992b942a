#pragma once

class QSize;

namespace Ui {
class FileForm;
}

namespace ls {

/// Makes the file form large enough for its captions in its present font. No part becomes smaller than
/// designed. Returns the size that the form then needs.
[[nodiscard]] QSize FitFileForm(Ui::FileForm& ui, const QSize& designed);

} // namespace ls
