#pragma once

#include <QIcon>

namespace ls {

/// The pictures of the buttons without a caption. They are drawn as shapes in the palette's text colour each
/// time, so they are sharp at every display scale and grey on a disabled button.
enum class ButtonPicture
{
    ArrowLeft,
    ArrowRight,
    Globe,
    QuestionMark
};

[[nodiscard]] QIcon ButtonIcon(ButtonPicture picture);

} // namespace ls
