#include "recovery/Checksum.h"

#include <array>
#include <cstddef>

namespace ls {

namespace {

constexpr std::uint32_t Polynomial = 0xEDB88320U;

constexpr std::size_t Step = 8; // bytes per step

// Entry b of table k: the effect of byte b on the checksum when k more bytes follow it.
using Tables = std::array<std::array<std::uint32_t, 256>, Step>;

constexpr Tables MakeTables()
{
    Tables tables{};
    for (std::size_t byte = 0; byte < 256; ++byte) {
        auto value = static_cast<std::uint32_t>(byte);
        for (int bit = 0; bit < 8; ++bit) {
            value = (value & 1U) != 0 ? (value >> 1U) ^ Polynomial : value >> 1U;
        }
        tables[0][byte] = value;
    }
    for (std::size_t k = 1; k < Step; ++k) {
        for (std::size_t byte = 0; byte < 256; ++byte) {
            const std::uint32_t before = tables[k - 1][byte];
            tables[k][byte] = (before >> 8U) ^ tables[0][before & 0xFFU];
        }
    }
    return tables;
}

constexpr Tables Table = MakeTables();

} // namespace

std::uint32_t Crc32(std::string_view bytes, std::uint32_t before)
{
    std::uint32_t value = ~before;
    for (; bytes.size() >= Step; bytes.remove_prefix(Step)) {
        std::uint32_t next = 0;
        for (std::size_t i = 0; i < Step; ++i) {
            const std::uint32_t mixed = i < 4 ? value >> (8 * i) : 0;
            next ^= Table[Step - 1 - i][(mixed ^ static_cast<unsigned char>(bytes[i])) & 0xFFU];
        }
        value = next;
    }
    for (const char c : bytes) {
        value = (value >> 8U) ^ Table[0][(value ^ static_cast<unsigned char>(c)) & 0xFFU];
    }
    return ~value;
}

} // namespace ls
