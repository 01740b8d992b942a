#pragma once

namespace ls {

/// The reading pane's type size at the start, in points. The main window is designed for it: a row holds 80
/// characters.
inline constexpr double NormalTypeSize = 9.75;

/// The next size of a fixed series; the largest and the smallest do not change.
[[nodiscard]] double LargerType(double points);
[[nodiscard]] double SmallerType(double points);

} // namespace ls
