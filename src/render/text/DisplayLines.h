#pragma once

#include "base/Array1.h"
#include "base/Count16.h"

#include <string>

namespace ls {

/// The display lines of a topic: wrapped and indented with spaces, with their tags and entities.
///
/// The strings are reused for the next topic. So wrapping a topic again, as in each step of a resize,
/// allocates no memory for its lines.
struct DisplayLines
{
    Array1<std::string> Lines; ///< elements 1..Count are in use
    Count16 Count;

    [[nodiscard]] const std::string& operator()(int number) const { return Lines(number); }

    /// Adds a line and returns it to be overwritten; nullptr if there are 32,767 lines already.
    [[nodiscard]] std::string* AddLine();

    /// Sets the count to 0. Only the memory of very long lines is freed.
    void Clear();
};

/// The growth of the table: when the count passes its bound, the new bound is the count plus this.
inline constexpr int DisplayGrowthStep = 999;

} // namespace ls
