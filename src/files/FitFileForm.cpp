#include "files/FitFileForm.h"

#include "forms/NeededSize.h"
#include "ui_FileForm.h"

#include <QFontMetrics>
#include <QSize>

#include <algorithm>
#include <initializer_list>

namespace ls {

namespace {

constexpr int Margin = 12;
constexpr int Gap = 8;
constexpr int LabelGap = 2;

using Controls = std::initializer_list<QWidget*>;

// Arranges the labels, one below the other. Returns the top of the next row.
int FitLabels(Ui::FileForm& ui)
{
    int top = ui.TitleLabel->y();
    for (QWidget* label : {ui.TitleLabel, ui.DefaultLabel}) {
        label->setGeometry(Margin, top, label->width(), NeededHeight({label}));
        top += label->height() + LabelGap;
    }
    return std::max(ui.FilenameBox->y(), top + Gap - LabelGap);
}

// Makes room for the frame's title above its options.
void FitFrame(Ui::FileForm& ui, int top)
{
    const int inset = ui.ExclusiveOption->x();
    const int height = NeededHeight({ui.ExclusiveOption, ui.SharedOption});
    int width = ui.SharingFrame->width();
    int y = std::max(ui.ExclusiveOption->y(), ui.SharingFrame->fontMetrics().height() + Gap + LabelGap);
    for (QWidget* option : {ui.ExclusiveOption, ui.SharedOption}) {
        option->setGeometry(inset, y, NeededWidth(*option), height);
        y += height + LabelGap + LabelGap;
        width = std::max(width, inset + option->width() + Margin);
    }
    ui.SharingFrame->setGeometry(Margin, top, width, std::max(ui.SharingFrame->height(), y + Gap));
}

// Arranges the buttons in a row right of the frame, level with its lower edge. Returns the right end of the
// row.
int FitButtons(Ui::FileForm& ui)
{
    const Controls buttons = {ui.OKButton, ui.CancelButton, ui.InfoButton};
    const int height = NeededHeight(buttons);
    int x = ui.SharingFrame->geometry().right() + 1 + Gap + Gap;
    for (QWidget* button : buttons) {
        button->setGeometry(x, ui.SharingFrame->geometry().bottom() + 1 - height, NeededWidth(*button),
                            height);
        x += button->width() + Gap;
    }
    return x - Gap;
}

} // namespace

QSize FitFileForm(Ui::FileForm& ui, const QSize& designed)
{
    const int top = FitLabels(ui);
    const int height = NeededHeight({ui.FilenameBox, ui.BrowseButton, ui.HelpButton});
    FitFrame(ui, top + height + Margin);
    const int width = std::max(designed.width(), FitButtons(ui) + Margin);
    int x = width - Margin;
    for (QWidget* button : {ui.HelpButton, ui.BrowseButton}) {
        x -= NeededWidth(*button);
        button->setGeometry(x, top, NeededWidth(*button), height);
        x -= Gap;
    }
    ui.FilenameBox->setGeometry(Margin, top, x - LabelGap - Margin, height);
    for (QWidget* label : {ui.TitleLabel, ui.DefaultLabel}) {
        label->resize(width - 2 * Margin, label->height());
    }
    return {width, ui.SharingFrame->geometry().bottom() + 1 + Margin + LabelGap};
}

} // namespace ls
