#pragma once

#include "base/FileError.h"

#include <string>

namespace ls {

/// A path of the core, which is UTF-8, as the system's wide calls take it.
///
/// One that is longer than old calls could take comes in the long form ("\\?\C:\..."), so that a book deep
/// below a long folder name opens. Bytes that are not UTF-8, and a NUL, which would cut the name so that it
/// means another file, are error 52; an empty path is 53.
[[nodiscard]] FileError ToWidePath(const std::string& path, std::wstring& wide);

/// The full path that a wide path has in the current folder; empty on failure.
[[nodiscard]] std::wstring FullWidePath(const std::wstring& path);

} // namespace ls
