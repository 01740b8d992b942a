#pragma once

#include <QString>

#include <string>

namespace ls {

/// A path for a control. Bytes that are no valid text become replacement characters, so callers must keep the
/// path itself and not read it back from the control.
[[nodiscard]] QString PathText(const std::string& path);

/// A path that the user typed, in the system's bytes.
[[nodiscard]] std::string PathBytes(const QString& text);

} // namespace ls
