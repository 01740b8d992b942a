#pragma once

#include "base/Progress.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace ls::test {

/// Counts the steps of a piece of work, and cancels it at one of them (0: at none).
struct StepProgress : Progress
{
    explicit StepProgress(int cancelAt = 0) : m_cancelAt(cancelAt) {}
    bool Step(std::int64_t done, std::int64_t total) override
    {
        EXPECT_LE(done, total);
        return ++steps != m_cancelAt;
    }
    int steps = 0;

private:
    int m_cancelAt;
};

} // namespace ls::test
