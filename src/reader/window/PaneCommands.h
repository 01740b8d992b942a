#pragma once

#include <QObject>

#include <functional>

namespace Ui {
class MainForm;
}

namespace ls {

/// The main window's items for the text in the reading pane: copy, select all, find, type size.
class PaneCommands : public QObject
{
    Q_OBJECT

public:
    /// `typeSizeChanged` wraps the topic again; `barShownOrHidden` lays out the window.
    PaneCommands(Ui::MainForm& ui, std::function<void()> typeSizeChanged,
                 const std::function<void()>& barShownOrHidden);

private:
    void ConnectText();
    void ConnectTypeSize();
    void SetTypeSize(double points);

    Ui::MainForm& m_ui;
    std::function<void()> m_typeSizeChanged;
};

} // namespace ls
