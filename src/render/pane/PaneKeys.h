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

/// The caret's move for a key, after `ScrollActionOf` has taken the keys that scroll. With Shift the move
/// extends the selection. Left and Right go by characters, with Control by words. Home and End go to the ends
/// of the row, with Control to those of the topic.
[[nodiscard]] std::optional<CaretKey> CaretKeyOf(int key, Qt::KeyboardModifiers modifiers);

} // namespace ls
