#pragma once

#include "base/FileSystem.h"
#include "base/Seams.h"

#include <string>

namespace ls {

struct Book;

/// Whether the first 64 KiB of a file hold LF but no CR, as in texts from Unix editors. Such a file would
/// read as one endless line. False if the file cannot be read.
[[nodiscard]] bool HasUnixLineEnds(BookFile& file);

/// Copies a file block by block. Each LF without a CR before it becomes CR LF; all other bytes stay.
FileError CopyWithCrLf(BookFile& from, OutputFile& to);

/// Returns the path to open; call it before `OpenBook`. If the file that `BookPath` names has Unix line ends,
/// it offers to open a converted copy.
///
/// The copy gets the next free numbered name in the same folder, and gets it only when it is complete. The
/// path is `BookPath` itself if there is nothing to convert, if the user declines, or if the copy fails
/// (after a message).
[[nodiscard]] std::string OfferConvertedCopy(const Book& book, const Seams& seams);

} // namespace ls
