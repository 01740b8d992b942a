#pragma once

#include "bench/Measure.h"

#include <functional>
#include <string>

namespace ls::bench {

/// Rows that compare ten times the work with the work, and miss when it takes more than 20 times as long;
/// what is quadratic takes 100 times as long. The rest is for the processor's caches, which large tables
/// outgrow, and for sorting, which takes 13 times as long.
class GrowthRows
{
public:
    explicit GrowthRows(std::string what) : m_what(std::move(what)) {}

    void Measure(const std::string& name, int rounds, const std::function<void()>& large,
                 const std::function<void()>& small) const
    {
        // Not in turns: what a large piece of work leaves of freed memory would be the small one's burden.
        const double smallTime = bench::Measure(rounds, small);
        const double largeTime = bench::Measure(rounds, large);
        PrintRow(m_what + name, Milliseconds(largeTime), largeTime / smallTime, Limit);
    }

private:
    static constexpr double Limit = 20;

    std::string m_what;
};

/// The parts of `BenchGrowth` that other files hold.
void BenchLineGrowth(const std::string& folder);
void BenchRuleGrowth(const std::string& folder);

} // namespace ls::bench
