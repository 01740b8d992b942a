#pragma once

#include <QFont>

namespace ls {

/// The font of the forms, which they are designed for: "MS Sans Serif" at 9.75 points, or a face of like
/// measures where that is not installed. Where the desktop's font is larger, it is as large as that.
[[nodiscard]] QFont FormFont();

} // namespace ls
