#include "forms/NeededSize.h"

#include <QWidget>

#include <algorithm>

namespace ls {

int NeededHeight(std::initializer_list<QWidget*> controls)
{
    int height = 0;
    for (const QWidget* control : controls) {
        height = std::max({height, control->height(), control->sizeHint().height()});
    }
    return height;
}

int NeededWidth(const QWidget& control)
{
    return std::max(control.width(), control.sizeHint().width());
}

} // namespace ls
