#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace ls {

/// Eight characters as one number, the first one lowest. Copied as they lie in memory where the processor has
/// its bytes in this order: put together by shifts they cost a compiler's vectors more than they gain.
inline std::uint64_t EightBytes(const char* from)
{
    std::uint64_t bytes = 0;
    if constexpr (std::endian::native == std::endian::little) {
        std::memcpy(&bytes, from, sizeof bytes);
    } else {
        for (std::size_t i = 0; i < sizeof bytes; ++i) {
            bytes |= std::uint64_t{static_cast<unsigned char>(from[i])} << (8 * i);
        }
    }
    return bytes;
}

/// The same number in each of the eight bytes.
constexpr std::uint64_t InEachByte(unsigned char value)
{
    return 0x0101010101010101 * std::uint64_t{value};
}

} // namespace ls
