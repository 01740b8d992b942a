#pragma once

#include "bench/Measure.h"

#include <functional>
#include <string>

namespace ls::bench {

/// Rows that compare ten times the work with the work. A row misses its aim above 20 times the time;
/// quadratic work would take 100 times as long. Linear work may take more than 10 times as long, because
/// large tables outgrow the processor's caches; sorting takes 13 times as long.
class GrowthRows
{
public:
    explicit GrowthRows(std::string what) : m_what(std::move(what)) {}

    void Measure(const std::string& name, int rounds, const std::function<void()>& large,
                 const std::function<void()>& small) const
    {
        // Not in turns, because memory that the large work freed would slow the small work.
        const double smallTime = bench::Measure(rounds, small);
        const double largeTime = bench::Measure(rounds, large);
        PrintRow(m_what + name, Milliseconds(largeTime), largeTime / smallTime, Limit);
    }

private:
    static constexpr double Limit = 20;

    std::string m_what;
};

/// Parts of `BenchGrowth` in other files.
void BenchLineGrowth(const std::string& folder);
void BenchRuleGrowth(const std::string& folder);

} // namespace ls::bench
