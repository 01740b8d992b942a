#pragma once

#include "base/FileError.h"
#include "base/FilePos.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace ls {

class FileSystem;
class Progress;

/// Facts about the bytes of any file.
struct FileFacts
{
    FilePos size = 0;
    std::int64_t crLf = 0; ///< line ends by kind
    std::int64_t cr = 0;
    std::int64_t lf = 0;
    std::int64_t nul = 0;
    std::array<std::int64_t, 5> unassigned{}; ///< the number of each of `UnassignedBytes`
    bool ascii = true;                        ///< no byte above 7F
    bool utf8 = false;                        ///< has bytes above 7F, and they are valid UTF-8

    friend bool operator==(const FileFacts&, const FileFacts&) = default;
};

/// The bytes for which the code page has no character.
inline constexpr std::array<unsigned char, 5> UnassignedBytes = {0x81, 0x8D, 0x8F, 0x90, 0x9D};

/// Reads a whole file, block by block.
FileError GatherFacts(FileSystem& files, const std::string& path, Progress* progress, FileFacts& facts);

/// "CR LF", "CR", "LF", "none", or "mixed (3 CR LF, 1 LF)".
[[nodiscard]] std::string LineEndsText(const FileFacts& facts);

} // namespace ls
