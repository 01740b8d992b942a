#include "render/pane/TopicDisplay.h"

#include "render/pane/ReadingPane.h"
#include "render/pane/ReadingPlace.h"
#include "render/text/DrawLines.h"

#include <QScrollBar>

#include <algorithm>
#include <utility>

namespace ls {

namespace {

constexpr int MaxAtRest = 10;
constexpr int LargeChangeAtRest = 1;
constexpr int LeastLineWidth = 20; // the largest indent is 10

} // namespace

TopicDisplay::TopicDisplay(ReadingPane& pane, QScrollBar& bar) : m_pane(pane), m_bar(bar)
{
    m_pane.SetScrollBar(&m_bar);
    m_bar.setSingleStep(1);
    ClearDisplay();
}

// The pane may live longer than the lines.
TopicDisplay::~TopicDisplay()
{
    m_pane.SetTopic(nullptr, 0);
}

int TopicDisplay::LineWidthChars() const
{
    return std::max(CharsAcross(m_pane.InnerWidth(), m_pane.TextWidth("W")), LeastLineWidth);
}

void TopicDisplay::Show(DisplayLines& lines, float bookVersion)
{
    std::swap(m_lines, lines);
    m_bookVersion = bookVersion;
    m_pane.SetTopic(&m_lines, bookVersion);
    SetUpScrolling();
}

void TopicDisplay::PaneHeight_Change()
{
    if (m_bar.isHidden()) {
        return;
    }
    m_bar.setPageStep(PlanScrolling(m_pane.InnerHeight(), m_pane.TextHeight("W"), m_lines.Count).largeChange);
    Draw(m_bar.value());
}

void TopicDisplay::KeepSelection(const std::function<void()>& showAgain)
{
    m_pane.KeepSelection(showAgain);
}

void TopicDisplay::KeepPlace(const std::function<void()>& showAgain)
{
    const TopicText& topic = m_pane.Topic();
    const std::size_t place = m_bar.isHidden() ? 0 : ReadingPlace(topic, topic.LineStart(m_bar.value()));
    KeepSelection(showAgain);
    if (place > 0 && !m_bar.isHidden()) {
        m_suppressScrollRedraw = true;
        m_bar.setValue(LineOfPlace(m_pane.Topic(), place));
        m_suppressScrollRedraw = false;
        Draw(m_bar.value());
    }
}

void TopicDisplay::SetUpScrolling()
{
    const ScrollSetup setup = PlanScrolling(m_pane.InnerHeight(), m_pane.TextHeight("W"), m_lines.Count);
    SetBar(setup.max, setup.largeChange);
    m_bar.show();
    Draw(1);
}

// The bar of a topic without lines has 0 as its greatest and least value.
void TopicDisplay::SetBar(int max, int largeChange)
{
    m_suppressScrollRedraw = true;
    m_bar.setRange(std::min(1, max), max);
    m_bar.setPageStep(largeChange);
    m_bar.setValue(1);
    m_suppressScrollRedraw = false;
}

void TopicDisplay::VScroll1_Change()
{
    if (!m_suppressScrollRedraw) {
        Draw(m_bar.value());
    }
}

void TopicDisplay::Draw(int firstLine)
{
    DrawLines(m_pane, m_lines, firstLine, m_bookVersion);
}

void TopicDisplay::ClearDisplay()
{
    m_pane.Clear();
    m_lines.Clear();
    m_pane.SetTopic(nullptr, 0);
    m_bar.hide();
    SetBar(MaxAtRest, LargeChangeAtRest);
}

} // namespace ls
