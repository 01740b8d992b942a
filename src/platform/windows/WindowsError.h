#pragma once

#include "base/FileError.h"

#include <string>

#include <windows.h>

namespace ls {

/// The program's error for a code of `GetLastError`; `FileError{}` for 0.
[[nodiscard]] FileError ErrorOfCode(DWORD code);

/// Like `ErrorOfCode`, for a call with a path. The path makes some codes clearer:
/// - "access denied", or "bad path" with a separator at the end: 75 for a folder used as a file
/// - "not found": 68 for a missing drive, 71 for a drive without a disk
/// - "bad handle" of "CON": 68 without a console
[[nodiscard]] FileError ErrorOfPath(DWORD code, const std::wstring& path);

/// Whether the path is an existing folder or a link to one.
[[nodiscard]] bool IsFolder(const std::wstring& path);

} // namespace ls
