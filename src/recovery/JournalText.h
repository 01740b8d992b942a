#pragma once

#include "recovery/Journal.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace ls {

/// The start of a journal's first line; the format's version number follows it.
inline constexpr std::string_view JournalMagic = "LODESTAR RECOVERY JOURNAL ";
inline constexpr std::int64_t JournalVersion = 1;

/// How much of a journal's file could be read.
enum class JournalState
{
    Whole,
    Damaged,    ///< something is missing or broken; the whole sections were read
    Unreadable, ///< it holds nothing that could be recovered
    Newer,      ///< written by a later version of this program, which alone can read it
};

struct JournalReading
{
    JournalState state = JournalState::Unreadable;
    Journal journal;
};

/// The bytes of a journal's file.
///
/// The first line is "LODESTAR RECOVERY JOURNAL 1". Sections follow, and each begins with a line like this:
///
///   @TOPIC 1234 89abcdef     its kind, its size in bytes, and the checksum of kind and bytes
///
/// A line end follows the bytes. The last section is "@END", with the number of sections before it. A section
/// is a row of texts, each written as its length, ":", its bytes and ",". So each section can be checked by
/// itself, and found even after a broken one.
[[nodiscard]] std::string JournalText(const Journal& journal);

/// The first bytes of `JournalText`: the first line and the section with the time, if the journal has a time.
/// The bytes after them do not depend on the time.
[[nodiscard]] std::string JournalHead(const Journal& journal);

/// Reads a journal's bytes, damaged or not. Sections whose checksum matches are read, all others are skipped.
[[nodiscard]] JournalReading ParseJournal(std::string_view bytes);

} // namespace ls
