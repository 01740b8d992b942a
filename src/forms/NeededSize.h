#pragma once

#include <initializer_list>

class QWidget;

namespace ls {

/// The height, in pixels, that a row of controls needs: none of them gets lower than it was designed, nor
/// than its font asks for.
[[nodiscard]] int NeededHeight(std::initializer_list<QWidget*> controls);

/// The width of one control by the same rule.
[[nodiscard]] int NeededWidth(const QWidget& control);

} // namespace ls
