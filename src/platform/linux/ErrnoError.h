#pragma once

#include "base/FileError.h"

#include <string>

namespace ls {

/// The program's error for an errno; `FileError{}` for 0.
[[nodiscard]] FileError ErrorOfErrno(int errnoValue);

/// Like `ErrorOfErrno`, for a call with a path: a missing path is error 76 when its folder is missing, else
/// 53.
[[nodiscard]] FileError ErrorOfPath(int errnoValue, const std::string& path);

/// The folder that holds the path's last name; "." for a bare name.
[[nodiscard]] std::string HoldingFolder(const std::string& path);

/// Whether the path is an existing folder or a link to one.
[[nodiscard]] bool IsFolder(const std::string& path);

/// Error 52 for a path with a NUL: the system would cut it there and use another file.
[[nodiscard]] FileError CheckPath(const std::string& path);

} // namespace ls
