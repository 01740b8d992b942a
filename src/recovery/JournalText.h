#pragma once

#include "recovery/Journal.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace ls {

/// What a journal's first line consists of: the mark and the number of the format's version.
inline constexpr std::string_view JournalMagic = "LODESTAR RECOVERY JOURNAL ";
inline constexpr std::int64_t JournalVersion = 1;

/// How much of a journal's file could be read.
enum class JournalState
{
    Whole,
    Damaged,    ///< something is missing or broken; what is whole was read
    Unreadable, ///< there is nothing in it that could be recovered
    Newer,      ///< a later version of this program wrote it, and only that can read it
};

/// A journal as it was read.
struct JournalReading
{
    JournalState state = JournalState::Unreadable;
    Journal journal;
};

/// The bytes of a journal's file.
///
/// The first line is "LODESTAR RECOVERY JOURNAL 1". Sections follow, each with a line of its own in front
/// ("@TOPIC 1234 89abcdef": its kind, the bytes in it, and the checksum of both) and a line end behind; the
/// last one is "@END", with the number of those before it. A section is a row of texts, each as its length,
/// ":", its bytes and ",". So every section can be told to be whole by itself, and found behind one that is
/// broken.
[[nodiscard]] std::string JournalText(const Journal& journal);

/// The first bytes of that: the first line, and the section that holds the time, if the journal has one. The
/// rest of the bytes does not depend on the time.
[[nodiscard]] std::string JournalHead(const Journal& journal);

/// Reads such bytes, whatever has happened to them: a section counts when its checksum does, and all others
/// are passed over.
[[nodiscard]] JournalReading ParseJournal(std::string_view bytes);

} // namespace ls
