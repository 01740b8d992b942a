#pragma once

#include <cstddef>
#include <string>

namespace ls::test {

/// What the process holds at a moment.
struct Held
{
    std::size_t descriptors = 0;
    std::size_t allocated = 0; ///< bytes handed out by malloc; 0 under a sanitizer
    std::size_t resident = 0;  ///< bytes in memory; 0 under a sanitizer

    [[nodiscard]] static Held Now();
};

/// How much more may be held at the end: what a cache or a table that has found its size may still take.
struct Tolerance
{
    std::size_t allocated = 32 * 1024;
    std::size_t resident = 8 * 1024 * 1024;
};

/// What has grown beyond the tolerance, in words; empty when nothing has. Not one descriptor may be left.
[[nodiscard]] std::string Growth(const Held& before, const Held& after, const Tolerance& tolerance = {});

} // namespace ls::test
