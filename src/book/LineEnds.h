#pragma once

#include "base/FileSystem.h"
#include "base/Seams.h"

#include <string>

namespace ls {

struct Book;

/// Whether the first 64 KiB of a file hold LF but no CR, as Unix editors write texts. Such a file would read
/// as one endless line. False when the file cannot be read.
[[nodiscard]] bool HasUnixLineEnds(BookFile& file);

/// Copies a file block by block. Each LF without a CR before it becomes CR LF; every other byte is kept.
FileError CopyWithCrLf(BookFile& from, OutputFile& to);

/// To be asked before `OpenBook`: when the file that `BookPath` names has Unix line ends, offers to open a
/// converted copy, and gives back the path to open.
///
/// The copy gets the next free numbered name beside the file, and that name only when it is complete. Where
/// there is nothing to convert, or the user declines, or after the message of a copy that failed, the path is
/// `BookPath` as it stands.
[[nodiscard]] std::string OfferConvertedCopy(const Book& book, const Seams& seams);

} // namespace ls
