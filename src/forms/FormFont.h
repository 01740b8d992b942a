#pragma once

#include <QFont>

namespace ls {

/// The font that the forms are designed for: "MS Sans Serif" at 9.75 points, or a face of similar size where
/// it is not installed. It is never smaller than the desktop's font.
[[nodiscard]] QFont FormFont();

} // namespace ls
