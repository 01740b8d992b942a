#pragma once

#include <cstddef>
#include <string>

namespace ls::test {

/// The descriptors and memory that the process holds.
struct Held
{
    std::size_t descriptors = 0;
    std::size_t allocated = 0; ///< bytes given out by malloc; 0 under a sanitizer
    std::size_t resident = 0;  ///< bytes in memory; 0 under a sanitizer

    [[nodiscard]] static Held Now();
};

/// The growth that is allowed, for caches and tables that have not reached their size yet.
struct Tolerance
{
    std::size_t allocated = 32 * 1024;
    std::size_t resident = 8 * 1024 * 1024;
};

/// What has grown by more than the tolerance, in words; empty if nothing. Descriptors have no tolerance.
[[nodiscard]] std::string Growth(const Held& before, const Held& after, const Tolerance& tolerance = {});

} // namespace ls::test
