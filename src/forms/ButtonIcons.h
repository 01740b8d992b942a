#pragma once

#include <QIcon>

namespace ls {

/// The pictures of the buttons that have no caption. They are drawn as shapes in the palette's text colour
/// whenever they are needed, so they are sharp at every display scale and grey on a disabled button.
enum class ButtonPicture
{
    ArrowLeft,
    ArrowRight,
    Globe,
    QuestionMark
};

[[nodiscard]] QIcon ButtonIcon(ButtonPicture picture);

} // namespace ls
