#pragma once

#include "gui/Controls.h"
#include "render/pane/ReadingPane.h"
#include "render/text/DisplayLines.h"
#include "render/text/DrawLines.h"

#include <gtest/gtest.h>

#include <QHBoxLayout>
#include <QScrollBar>
#include <QTest>

#include <string>
#include <vector>

namespace ls::test {

/// A window with a pane and its scroll bar that shows a topic as the main window does.
class PaneFixture : public testing::Test
{
protected:
    PaneFixture()
    {
        auto* layout = new QHBoxLayout(&window);
        layout->addWidget(pane);
        layout->addWidget(bar);
        pane->SetScrollBar(bar);
        QObject::connect(bar, &QScrollBar::valueChanged, &window, [this] { Draw(); });
        window.resize(700, 300);
    }

    ~PaneFixture() override { pane->SetTopic(nullptr, 0); }

    /// Shows the window with a topic of these display lines. The pane has the focus.
    void Show(const std::vector<std::string>& texts)
    {
        ShowActive(window);
        lines.Clear();
        for (const std::string& text : texts) {
            *lines.AddLine() = text;
        }
        pane->SetTopic(&lines, 5.0F);
        const ScrollSetup setup = PlanScrolling(pane->InnerHeight(), pane->RowHeight(), lines.Count);
        bar->setRange(1, setup.max);
        bar->setPageStep(setup.largeChange);
        Draw();
        pane->setFocus();
    }

    /// Shows a topic of the lines "1", "2", ...
    void ShowNumbers(int count)
    {
        std::vector<std::string> texts;
        for (int i = 1; i <= count; ++i) {
            texts.push_back(std::to_string(i));
        }
        Show(texts);
    }

    void Draw() { DrawLines(*pane, lines, bar->value(), 5.0F); }

    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(pane, key, modifiers);
    }

    /// The point before that column of that row in the pane, both from 1.
    [[nodiscard]] QPoint Point(int row, int column) const
    {
        const QPointF inside((column - 1) * pane->CharWidth() + 1, (row - 0.5) * pane->RowHeight());
        return (inside + pane->contentsRect().topLeft()).toPoint();
    }

    [[nodiscard]] std::string Selected() const { return pane->SelectedText().toStdString(); }
    [[nodiscard]] std::size_t Caret() const { return pane->Selection().Caret(); }

    [[nodiscard]] QImage Look() const
    {
        QImage image(pane->size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::magenta);
        pane->render(&image);
        return image;
    }

    DisplayLines lines;
    QWidget window;
    ReadingPane* pane = new ReadingPane;
    QScrollBar* bar = new QScrollBar(Qt::Vertical);
};

} // namespace ls::test
