#pragma once

#include "base/NoFile.h"

#include <algorithm>
#include <random>
#include <string>
#include <utility>

namespace ls::test {

/// A file in memory that gives few bytes at a time, so that its reader meets the end of a block again and
/// again.
class DrippingFile : public NoFile
{
public:
    /// Each read gives at most `drop` bytes.
    DrippingFile(std::string bytes, std::size_t drop) : m_bytes(std::move(bytes)), m_drop(drop) {}

    FileError ReadAt(FilePos pos, char* buffer, std::size_t size, std::size_t& got) override
    {
        const auto at = static_cast<std::size_t>(pos - 1);
        got = 0;
        if (at >= failsAt) {
            return MakeFileError(error::DeviceIo);
        }
        const std::size_t drop = uneven ? 1 + m_random() % m_drop : m_drop;
        got = m_bytes.copy(buffer, std::min(size, drop), std::min(at, m_bytes.size()));
        return {};
    }

    std::size_t failsAt = std::string::npos; ///< reads from this index on fail
    bool uneven = false;                     ///< each read gives 1 to `drop` bytes, the same in every run

private:
    std::string m_bytes;
    std::size_t m_drop;
    std::minstd_rand m_random;
};

} // namespace ls::test
