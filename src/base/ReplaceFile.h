#pragma once

#include "base/FileSystem.h"

#include <memory>
#include <string>

namespace ls {

/// Opens `path` for writing, in place of what has that name. The new bytes are written beside it (as
/// "Export.htm.new") and take the name only when `Finish` has them all on the disk; until then, and for good
/// when anything fails or `Finish` is never called, what was there stays as it was.
///
/// A folder is error 75, a device 68, a file that is read-only or that somebody else has locked 70: none of
/// them is replaced.
FileError OpenToReplace(FileSystem& files, const std::string& path, std::unique_ptr<OutputFile>& file);

/// The same for a file that is to be new: `Finish` fails with 58 when anything has that name by then.
FileError OpenToCreate(FileSystem& files, const std::string& path, std::unique_ptr<OutputFile>& file);

} // namespace ls
