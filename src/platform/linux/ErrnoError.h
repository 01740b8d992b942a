#pragma once

#include "base/FileError.h"

#include <string>

namespace ls {

/// The program's error for an errno of the system; `FileError{}` for 0.
[[nodiscard]] FileError ErrorOfErrno(int errnoValue);

/// As `ErrorOfErrno`, for a call that named a path: where that is missing, a missing folder (76) is told from
/// a missing file (53).
[[nodiscard]] FileError ErrorOfPath(int errnoValue, const std::string& path);

/// The folder that holds the path's last name; "." for a bare name.
[[nodiscard]] std::string HoldingFolder(const std::string& path);

/// Whether a folder is there, also behind a link.
[[nodiscard]] bool IsFolder(const std::string& path);

/// A name that the system cannot be asked for is error 52: it would be cut at a NUL and mean another file.
[[nodiscard]] FileError CheckPath(const std::string& path);

} // namespace ls
