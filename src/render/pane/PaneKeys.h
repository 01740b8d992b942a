#pragma once

#include "render/pane/TextSelection.h"

#include <QAbstractSlider>

#include <optional>

namespace ls {

/// The scroll bar's action for a key without modifiers.
[[nodiscard]] std::optional<QAbstractSlider::SliderAction> ScrollActionOf(int key);

/// The caret's move for an arrow or page key that scrolls.
[[nodiscard]] CaretMove ScrollMoveOf(int key);

struct CaretKey
{
    CaretMove move = CaretMove::Left;
    bool extend = false;
};

/// The caret's move for a key: Left and Right, by words with Control. With Shift, every key extends the
/// selection. Home and End go to the ends of the row with Shift, to those of the topic with Control.
[[nodiscard]] std::optional<CaretKey> CaretKeyOf(int key, Qt::KeyboardModifiers modifiers);

} // namespace ls
