#include "render/pane/PaneKeys.h"

namespace ls {

namespace {

std::optional<CaretMove> PlainMoveOf(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return CaretMove::Left;
    case Qt::Key_Right:
        return CaretMove::Right;
    case Qt::Key_Up:
        return CaretMove::Up;
    case Qt::Key_Down:
        return CaretMove::Down;
    case Qt::Key_PageUp:
        return CaretMove::PageUp;
    case Qt::Key_PageDown:
        return CaretMove::PageDown;
    case Qt::Key_Home:
        return CaretMove::RowStart;
    case Qt::Key_End:
        return CaretMove::RowEnd;
    default:
        return std::nullopt;
    }
}

std::optional<CaretMove> ControlMoveOf(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return CaretMove::WordLeft;
    case Qt::Key_Right:
        return CaretMove::WordRight;
    case Qt::Key_Home:
        return CaretMove::TextStart;
    case Qt::Key_End:
        return CaretMove::TextEnd;
    default:
        return std::nullopt;
    }
}

} // namespace

std::optional<QAbstractSlider::SliderAction> ScrollActionOf(int key)
{
    switch (key) {
    case Qt::Key_Up:
        return QAbstractSlider::SliderSingleStepSub;
    case Qt::Key_Down:
        return QAbstractSlider::SliderSingleStepAdd;
    case Qt::Key_PageUp:
        return QAbstractSlider::SliderPageStepSub;
    case Qt::Key_PageDown:
        return QAbstractSlider::SliderPageStepAdd;
    case Qt::Key_Home:
        return QAbstractSlider::SliderToMinimum;
    case Qt::Key_End:
        return QAbstractSlider::SliderToMaximum;
    default:
        return std::nullopt;
    }
}

CaretMove ScrollMoveOf(int key)
{
    return PlainMoveOf(key).value_or(CaretMove::Down);
}

std::optional<CaretKey> CaretKeyOf(int key, Qt::KeyboardModifiers modifiers)
{
    const Qt::KeyboardModifiers held = modifiers & ~Qt::KeypadModifier;
    const bool control = held.testFlag(Qt::ControlModifier);
    const bool shift = held.testFlag(Qt::ShiftModifier);
    if ((held & ~(Qt::ControlModifier | Qt::ShiftModifier)) != Qt::NoModifier) {
        return std::nullopt;
    }
    const std::optional<CaretMove> move = control ? ControlMoveOf(key) : PlainMoveOf(key);
    return move ? std::optional<CaretKey>({*move, shift}) : std::nullopt;
}

} // namespace ls
