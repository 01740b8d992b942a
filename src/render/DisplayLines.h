#pragma once

#include "base/Array1.h"
#include "base/Count16.h"

#include <string>

namespace ls {

/// The prepared lines of a topic: wrapped, indented by spaces, tags and entities still inside.
struct DisplayLines
{
    Array1<std::string>
        Lines; ///< elements 1..Count are in use; the others keep their memory for the next topic
    Count16 Count;

    [[nodiscard]] const std::string& operator()(int number) const
    {
        return Lines(static_cast<std::size_t>(number));
    }
};

/// How the table grows: past its bound, the bound becomes the new count plus this.
inline constexpr std::size_t DisplayGrowthStep = 999;

} // namespace ls
