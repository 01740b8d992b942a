#include "reader/window/MainLayout.h"

#include "base/Rounding.h"

#include <initializer_list>

namespace ls {

namespace {

constexpr double ScrollGap = 2; // between the pane and its scroll bar

} // namespace

MainLayout::MainLayout(const MainGeometry& designed) : m_live(designed), m_design(designed)
{
    for (double* length : {&m_design.innerWidth, &m_design.innerHeight, &m_design.picWidth,
                           &m_design.picHeight, &m_design.picTop, &m_design.doneTop, &m_design.listWidth,
                           &m_design.goToLeft, &m_design.backLeft, &m_design.nextLeft}) {
        *length = RoundHalfEven(*length);
    }
}

MainPositions MainLayout::Form_Resize(double innerWidth, double innerHeight) const
{
    MainPositions positions;
    LayOutAcross(innerWidth, positions);
    LayOutDown(innerHeight, positions);
    return positions;
}

void MainLayout::LayOutAcross(double innerWidth, MainPositions& positions) const
{
    positions.picWidth = m_design.picWidth;
    positions.listWidth = m_design.listWidth;
    positions.goToLeft = m_design.goToLeft;
    positions.backLeft = m_design.backLeft;
    positions.nextLeft = m_design.nextLeft;
    if (innerWidth > m_design.innerWidth) {
        const int rightGap = RoundHalfEven(m_design.innerWidth - m_design.picWidth - m_live.scrollWidth);
        positions.picWidth = innerWidth - m_live.scrollWidth - ScrollGap - rightGap;
        positions.goToLeft = innerWidth - (m_design.innerWidth - m_design.goToLeft);
        positions.backLeft = innerWidth - (m_design.innerWidth - m_design.backLeft);
        positions.nextLeft = innerWidth - (m_design.innerWidth - m_design.nextLeft);
        const int listGap = RoundHalfEven(m_design.innerWidth - m_design.listWidth - m_live.listLeft);
        positions.listWidth = innerWidth - listGap - m_live.listLeft;
    }
    positions.scrollLeft = m_live.picLeft + positions.picWidth + ScrollGap;
}

void MainLayout::LayOutDown(double innerHeight, MainPositions& positions) const
{
    positions.picHeight = m_design.picHeight;
    positions.buttonTop = m_design.doneTop;
    if (innerHeight > m_design.innerHeight) {
        const double marginBelow = m_design.innerHeight - m_design.picTop - m_design.picHeight;
        positions.picHeight = innerHeight - m_design.picTop - marginBelow;
        const double gapAboveButtons = m_design.doneTop - m_design.picTop - m_design.picHeight;
        positions.buttonTop = m_design.picTop + positions.picHeight + gapAboveButtons;
    }
    positions.scrollHeight = positions.picHeight;
}

} // namespace ls
