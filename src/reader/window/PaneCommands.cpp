#include "reader/window/PaneCommands.h"

#include "forms/TypeSize.h"
#include "ui_MainForm.h"

#include <utility>

namespace ls {

PaneCommands::PaneCommands(Ui::MainForm& ui, std::function<void()> typeSizeChanged,
                           const std::function<void()>& barShownOrHidden)
    : m_ui(ui), m_typeSizeChanged(std::move(typeSizeChanged))
{
    m_ui.FindBar->SetPane(m_ui.MsgPic);
    connect(m_ui.FindBar, &FindBar::ShownOrHidden, this, barShownOrHidden);
    ConnectText();
    ConnectTypeSize();
}

void PaneCommands::ConnectText()
{
    m_ui.CopyItem->setShortcuts(
        {QKeySequence(Qt::CTRL | Qt::Key_C), QKeySequence(Qt::CTRL | Qt::Key_Insert)});
    connect(m_ui.CopyItem, &QAction::triggered, m_ui.MsgPic, &ReadingPane::Copy);
    connect(m_ui.SelectAllItem, &QAction::triggered, m_ui.MsgPic, &ReadingPane::SelectAll);
    connect(m_ui.FindItem, &QAction::triggered, m_ui.FindBar, &FindBar::Open);
    connect(m_ui.FindNextItem, &QAction::triggered, m_ui.FindBar, &FindBar::FindNext);
    connect(m_ui.FindPreviousItem, &QAction::triggered, m_ui.FindBar, &FindBar::FindPrevious);
    // The context menu has the same items as the menu.
    m_ui.MsgPic->setContextMenuPolicy(Qt::ActionsContextMenu);
    m_ui.MsgPic->addActions({m_ui.CopyItem, m_ui.SelectAllItem, m_ui.FindItem});
}

void PaneCommands::ConnectTypeSize()
{
    // On most keyboards plus is Shift and the key of "=".
    m_ui.LargerItem->setShortcuts(
        {QKeySequence(Qt::CTRL | Qt::Key_Plus), QKeySequence(Qt::CTRL | Qt::Key_Equal)});
    connect(m_ui.LargerItem, &QAction::triggered, this,
            [this] { SetTypeSize(LargerType(m_ui.MsgPic->TypeSize())); });
    connect(m_ui.SmallerItem, &QAction::triggered, this,
            [this] { SetTypeSize(SmallerType(m_ui.MsgPic->TypeSize())); });
    connect(m_ui.MsgPic, &ReadingPane::WheelZoomed, this,
            [this](bool larger) { (larger ? m_ui.LargerItem : m_ui.SmallerItem)->trigger(); });
    connect(m_ui.NormalSizeItem, &QAction::triggered, this, [this] { SetTypeSize(NormalTypeSize); });
}

void PaneCommands::SetTypeSize(double points)
{
    if (points != m_ui.MsgPic->TypeSize()) {
        m_ui.MsgPic->SetTypeSize(points);
        m_typeSizeChanged();
    }
}

} // namespace ls
