#pragma once

#include "render/pane/TextSelection.h"

#include <QAbstractSlider>

#include <optional>

namespace ls {

/// What a key without modifiers does to the scroll bar of the reading pane.
[[nodiscard]] std::optional<QAbstractSlider::SliderAction> ScrollActionOf(int key);

/// How the caret goes along with an arrow or page key that scrolls.
[[nodiscard]] CaretMove ScrollMoveOf(int key);

struct CaretKey
{
    CaretMove move = CaretMove::Left;
    bool extend = false;
};

/// What a key does to the caret: left and right, by words with Control; with Shift every key extends the
/// selection; Home and End are those of the row with Shift, those of the topic with Control.
[[nodiscard]] std::optional<CaretKey> CaretKeyOf(int key, Qt::KeyboardModifiers modifiers);

} // namespace ls
