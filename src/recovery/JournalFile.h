#pragma once

#include "base/FileSystem.h"
#include "recovery/JournalText.h"

#include <string>
#include <string_view>

namespace ls {

/// Puts a journal's bytes under its name, in place of the older journal that is there. They are written
/// beside it (".new" behind the name) and take the name only when all of them are on the disk, so that at
/// every moment a whole journal stands there. After a failure the older one does.
///
/// The name is this program's alone: see `JournalClaim`.
FileError WriteJournal(FileSystem& files, const std::string& path, std::string_view bytes);

/// The most that a journal may hold, in bytes: what cannot be read back is not written. Error 7 tells of
/// more.
inline constexpr FilePos MostJournalBytes = FilePos{1} << 30U;

/// Reads the journal of that name. An error is that of the file; what became of its bytes is told by
/// `reading`.
FileError ReadJournal(FileSystem& files, const std::string& path, JournalReading& reading);

/// Writes a journal's bytes, whatever they are, under another name too.
FileError CopyJournal(FileSystem& files, const std::string& from, const std::string& to);

/// The name under which a journal is written until it is whole.
[[nodiscard]] std::string NewJournalName(const std::string& path);

} // namespace ls
