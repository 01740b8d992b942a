#pragma once

#include <cstdint>
#include <string_view>

namespace ls {

/// The CRC-32 that archives and pictures use, of `bytes`; `before` is that of what stands in front of them.
[[nodiscard]] std::uint32_t Crc32(std::string_view bytes, std::uint32_t before = 0);

} // namespace ls
