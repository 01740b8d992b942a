#pragma once

namespace ls {

/// Rounds to the nearest integer, halves to the even neighbour: 2.5 gives 2, 3.5 gives 4.
[[nodiscard]] int RoundHalfEven(double value);

} // namespace ls
