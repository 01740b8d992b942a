#pragma once

#include <cstdint>

namespace ls {

/// Told how far long work has come.
class Progress
{
public:
    virtual ~Progress() = default;

    /// `done` of `total` (bytes or entries) are through; false cancels the work.
    virtual bool Step(std::int64_t done, std::int64_t total) = 0;
};

} // namespace ls
