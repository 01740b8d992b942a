#pragma once

#include "base/FileSystem.h"
#include "recovery/JournalText.h"

#include <string>
#include <string_view>

namespace ls {

/// Replaces the journal at `path`. The bytes are written to a file beside it (its name ends in ".new"), which
/// takes the name once all of them are on the disk. So a whole journal exists at every moment; after a
/// failure it is the older one.
///
/// REQUIRES: this program claims the journal, see `JournalClaim`.
FileError WriteJournal(FileSystem& files, const std::string& path, std::string_view bytes);

/// The greatest size of a journal, in bytes. A larger one could not be read back, so it is not written: error
/// 7.
inline constexpr FilePos MostJournalBytes = FilePos{1} << 30U;

/// Reads the journal of that name. Returns an error of the file itself; damage in its bytes is reported in
/// `reading`.
FileError ReadJournal(FileSystem& files, const std::string& path, JournalReading& reading);

/// Copies a journal's bytes to another name, damaged or not.
FileError CopyJournal(FileSystem& files, const std::string& from, const std::string& to);

/// The name of the file that holds a journal until it is whole.
[[nodiscard]] std::string NewJournalName(const std::string& path);

} // namespace ls
