#pragma once

namespace ls {

/// The type size of the reading pane, in points, that a program starts with. It is the one that the main
/// window is designed for: 80 characters stand in a row.
inline constexpr double NormalTypeSize = 9.75;

/// The next size of a fixed series; the largest and the smallest stay as they are.
[[nodiscard]] double LargerType(double points);
[[nodiscard]] double SmallerType(double points);

} // namespace ls
