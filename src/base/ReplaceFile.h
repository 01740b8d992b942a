#pragma once

#include "base/FileSystem.h"

#include <memory>
#include <string>

namespace ls {

/// Opens `path` for writing, to replace an existing file of that name. The new bytes go into a file beside it
/// ("Export.htm.new"), which takes the name only when `Finish` has all of them on the disk. Until then, after
/// any failure, or without `Finish`, the existing file stays unchanged.
///
/// A folder is error 75, a device 68, a file that is read-only or locked elsewhere 70; none of them is
/// replaced.
FileError OpenToReplace(FileSystem& files, const std::string& path, std::unique_ptr<OutputFile>& file);

/// Like `OpenToReplace`, for a new file: `Finish` fails with 58 when the name is taken by then.
FileError OpenToCreate(FileSystem& files, const std::string& path, std::unique_ptr<OutputFile>& file);

} // namespace ls
