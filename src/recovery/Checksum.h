#pragma once

#include <cstdint>
#include <string_view>

namespace ls {

/// The CRC-32 checksum, as archive and picture files use it. `before` is the checksum of the bytes that come
/// before `bytes`.
[[nodiscard]] std::uint32_t Crc32(std::string_view bytes, std::uint32_t before = 0);

} // namespace ls
