#pragma once

#include "base/Array1.h"
#include "base/Count16.h"

#include <string>

namespace ls {

/// The prepared lines of a topic: wrapped, indented by spaces, tags and entities still inside.
///
/// Strings keep their memory from topic to topic, so that wrapping a topic again, as every step of a resize
/// does, allocates nothing for its lines.
struct DisplayLines
{
    Array1<std::string> Lines; ///< elements 1..Count are in use
    Count16 Count;

    [[nodiscard]] const std::string& operator()(int number) const { return Lines(number); }

    /// Counts one line more and gives it to be overwritten; nullptr when there are 32,767 already.
    [[nodiscard]] std::string* AddLine();

    /// Sets the count to 0. Memory is kept, except that of lines far beyond what a topic's rows need.
    void Clear();
};

/// How the table grows: past its bound, the bound becomes the new count plus this.
inline constexpr int DisplayGrowthStep = 999;

} // namespace ls
