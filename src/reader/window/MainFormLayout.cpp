#include "reader/window/MainFormLayout.h"

#include "ui_MainForm.h"

#include <cmath>

namespace ls {

namespace {

int Pixels(double length)
{
    return static_cast<int>(std::lround(length));
}

MainGeometry DesignOf(const Ui::MainForm& ui, const QSize& inner)
{
    MainGeometry design;
    design.innerWidth = inner.width();
    design.innerHeight = inner.height();
    design.picLeft = ui.MsgPic->x();
    design.picTop = ui.MsgPic->y();
    design.picWidth = ui.MsgPic->width();
    design.picHeight = ui.MsgPic->height();
    design.scrollWidth = ui.VScroll1->width();
    design.listLeft = ui.TopicList->x();
    design.listWidth = ui.TopicList->width();
    design.goToLeft = ui.GoToButton->x();
    design.backLeft = ui.BackButton->x();
    design.nextLeft = ui.NextButton->x();
    design.doneTop = ui.DoneButton->y();
    return design;
}

} // namespace

MainFormLayout::MainFormLayout(Ui::MainForm& ui, const QSize& designed)
    : m_ui(ui), m_layout(DesignOf(ui, designed))
{
}

void MainFormLayout::Form_Resize()
{
    const QSize inner = m_ui.centralwidget->size();
    const MainPositions to = m_layout.Form_Resize(inner.width(), inner.height());
    const int findHeight = m_ui.FindBar->isHidden() ? 0 : m_ui.FindBar->sizeHint().height();
    const int paneHeight = Pixels(to.picHeight) - findHeight;
    m_ui.MsgPic->resize(Pixels(to.picWidth), paneHeight);
    m_ui.FindBar->setGeometry(m_ui.MsgPic->x(), m_ui.MsgPic->y() + paneHeight,
                              Pixels(to.scrollLeft) + m_ui.VScroll1->width() - m_ui.MsgPic->x(), findHeight);
    m_ui.VScroll1->move(Pixels(to.scrollLeft), m_ui.VScroll1->y());
    m_ui.VScroll1->resize(m_ui.VScroll1->width(), Pixels(to.scrollHeight) - findHeight);
    m_ui.TopicList->resize(Pixels(to.listWidth), m_ui.TopicList->height());
    m_ui.GoToButton->move(Pixels(to.goToLeft), m_ui.GoToButton->y());
    m_ui.BackButton->move(Pixels(to.backLeft), m_ui.BackButton->y());
    m_ui.NextButton->move(Pixels(to.nextLeft), m_ui.NextButton->y());
    for (QWidget* button : {m_ui.DoneButton, m_ui.AdvisorButton, m_ui.XRButton, m_ui.ExplainButton}) {
        button->move(button->x(), Pixels(to.buttonTop));
    }
}

} // namespace ls
