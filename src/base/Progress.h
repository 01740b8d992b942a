#pragma once

#include <cstdint>

namespace ls {

/// Receives the progress of long work.
class Progress
{
public:
    virtual ~Progress() = default;

    /// `done` of `total` (bytes or entries) are complete; false cancels the work.
    virtual bool Step(std::int64_t done, std::int64_t total) = 0;
};

} // namespace ls
