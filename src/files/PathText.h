#pragma once

#include <QString>

#include <string>

namespace ls {

/// A path for a control. Bytes that are no valid text are shown as replacement characters: such a path must
/// be kept beside the control and not read back from it.
[[nodiscard]] QString PathText(const std::string& path);

/// A path that the user typed, in the system's own bytes.
[[nodiscard]] std::string PathBytes(const QString& text);

} // namespace ls
