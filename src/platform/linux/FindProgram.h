#pragma once

#include "base/FileError.h"

#include <string>

namespace ls {

/// Finds a command's program. A name with a "/" is its path. A bare name is searched in the folders of
/// `searchPath` (separated by ":"). Empty parts, which would mean the current folder, are skipped: a bare
/// name must not start a program that is beside a book.
///
/// Errors: 53 when it is missing, 70 when the file may not be run, 75 for a folder.
[[nodiscard]] FileError FindProgram(const std::string& name, const std::string& searchPath,
                                    std::string& program);

} // namespace ls
