#pragma once

#include <initializer_list>

class QWidget;

namespace ls {

/// The height, in pixels, that a row of controls needs. No control gets lower than designed, or lower than
/// its font needs.
[[nodiscard]] int NeededHeight(std::initializer_list<QWidget*> controls);

/// The width of one control by the same rule.
[[nodiscard]] int NeededWidth(const QWidget& control);

} // namespace ls
