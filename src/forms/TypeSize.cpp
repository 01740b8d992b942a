#include "forms/TypeSize.h"

#include <algorithm>
#include <array>

namespace ls {

namespace {

// Whole pixels on a screen of 96 dots an inch: 9, 11, 13, 15, 18, 22, 27, 33, 40 and 48.
constexpr std::array<double, 10> Sizes = {6.75, 8.25,  NormalTypeSize, 11.25, 13.5,
                                          16.5, 20.25, 24.75,          30,    36};

} // namespace

double LargerType(double points)
{
    const auto* const larger = std::upper_bound(Sizes.begin(), Sizes.end(), points);
    return larger == Sizes.end() ? Sizes.back() : *larger;
}

double SmallerType(double points)
{
    const auto* const next = std::lower_bound(Sizes.begin(), Sizes.end(), points);
    return next == Sizes.begin() ? Sizes.front() : *(next - 1);
}

} // namespace ls
