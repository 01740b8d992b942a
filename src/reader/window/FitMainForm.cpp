#include "reader/window/FitMainForm.h"

#include "forms/NeededSize.h"
#include "ui_MainForm.h"

#include <QSize>

#include <algorithm>
#include <initializer_list>

namespace ls {

namespace {

constexpr int Margin = 8;
constexpr int ButtonGap = 4; // between the buttons beside the list

// A button with a picture keeps its width, because the picture does not grow with the font.
void WidenToCaption(QPushButton& button, int height)
{
    const int needed = button.text().isEmpty() ? 0 : button.sizeHint().width();
    button.resize(std::max(button.width(), needed), height);
}

// The list shrinks to make room for the buttons to its right. If that is not enough, the form gets wider.
int FitTopRow(Ui::MainForm& ui, int width)
{
    constexpr int leastListWidth = 240;
    ui.TopicLabel->resize(std::max(ui.TopicLabel->width(), ui.TopicLabel->sizeHint().width()),
                          NeededHeight({ui.TopicLabel}));
    const int height = NeededHeight({ui.TopicList, ui.GoToButton, ui.BackButton, ui.NextButton});
    const int top = std::max(ui.TopicList->y(), ui.TopicLabel->geometry().bottom() + 3);
    int buttons = 0;
    for (QPushButton* button : {ui.GoToButton, ui.BackButton, ui.NextButton}) {
        WidenToCaption(*button, height);
        buttons += button->width() + ButtonGap;
    }
    const int left = ui.TopicList->x();
    const int listWidth = std::max(leastListWidth, width - left - 2 * Margin - (buttons - ButtonGap));
    ui.TopicList->setGeometry(left, top, listWidth, height);
    int x = left + listWidth + Margin;
    for (QWidget* button : {ui.GoToButton, ui.BackButton, ui.NextButton}) {
        button->move(x, top);
        x += button->width() + ButtonGap;
    }
    return x - ButtonGap + Margin;
}

int FitBottomRow(Ui::MainForm& ui, int top)
{
    const int height = NeededHeight({ui.DoneButton, ui.AdvisorButton, ui.XRButton, ui.ExplainButton});
    int x = ui.DoneButton->x();
    for (QPushButton* button : {ui.DoneButton, ui.AdvisorButton, ui.XRButton, ui.ExplainButton}) {
        WidenToCaption(*button, height);
        button->move(x, top);
        x += button->width() + Margin;
    }
    return x;
}

} // namespace

QSize FitMainForm(Ui::MainForm& ui, const QSize& designed)
{
    const int rightOfPane = designed.width() - ui.MsgPic->width();
    const int topWidth = FitTopRow(ui, designed.width());
    const int paneTop = ui.TopicList->geometry().bottom() + 1 + Margin;
    const int bottomTop = paneTop + ui.MsgPic->height() + Margin;
    const int width = std::max({designed.width(), topWidth, FitBottomRow(ui, bottomTop)});
    ui.MsgPic->setGeometry(ui.MsgPic->x(), paneTop, width - rightOfPane, ui.MsgPic->height());
    ui.VScroll1->move(ui.VScroll1->x() + width - designed.width(), paneTop);
    return {width, bottomTop + ui.DoneButton->height() + Margin};
}

} // namespace ls
