#pragma once

#include "base/FileError.h"

#include <string>

namespace ls {

/// Converts a path of the core (UTF-8) for the system's wide calls.
///
/// A path that is too long for old calls gets the long form ("\\?\C:\..."), so that a book deep below a long
/// folder name opens. Bytes that are not UTF-8 are error 52; so is a NUL, which would cut the path and name
/// another file. An empty path is 53.
[[nodiscard]] FileError ToWidePath(const std::string& path, std::wstring& wide);

/// The full path of a wide path, from the current folder; empty on failure.
[[nodiscard]] std::wstring FullWidePath(const std::wstring& path);

} // namespace ls
