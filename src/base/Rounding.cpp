#include "base/Rounding.h"

#include <cmath>

namespace ls {

int RoundHalfEven(double value)
{
    const double below = std::floor(value);
    const double rest = value - below;
    if (rest < 0.5 || (rest == 0.5 && std::fmod(below, 2.0) == 0.0)) {
        return static_cast<int>(below);
    }
    return static_cast<int>(below) + 1;
}

} // namespace ls
