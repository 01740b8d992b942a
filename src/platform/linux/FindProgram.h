#pragma once

#include "base/FileError.h"

#include <string>

namespace ls {

/// Where a command's program lies. A name that holds a "/" is its path; a bare one is looked for in the
/// folders of `searchPath` (parted by ":"). An empty part, which would mean the current folder, is passed
/// over: a program that lies beside a book is not started by its bare name.
///
/// The errors: 53 where it is missing, 70 where the file may not be run, 75 for a folder.
[[nodiscard]] FileError FindProgram(const std::string& name, const std::string& searchPath,
                                    std::string& program);

} // namespace ls
