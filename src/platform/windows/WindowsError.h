#pragma once

#include "base/FileError.h"

#include <string>

#include <windows.h>

namespace ls {

/// The program's error for a code of `GetLastError`; `FileError{}` for 0.
[[nodiscard]] FileError ErrorOfCode(DWORD code);

/// As `ErrorOfCode`, for a call that named a path: the system says "access denied" (or, with a
/// separator at its end, that the path is bad) also of a folder that is used as a file (75), and "not found"
/// also where the whole drive is missing (68) or has no disk (71), and "bad handle" of "CON" where there is
/// no console (68).
[[nodiscard]] FileError ErrorOfPath(DWORD code, const std::wstring& path);

/// Whether a folder is there, also behind a link.
[[nodiscard]] bool IsFolder(const std::wstring& path);

} // namespace ls
