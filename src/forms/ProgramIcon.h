#pragma once

#include <QIcon>

namespace ls {

/// The icon of the program's windows: the pictures of packaging/icons, from 16 to 256 pixels.
[[nodiscard]] QIcon ProgramIcon();

} // namespace ls
