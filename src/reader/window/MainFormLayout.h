#pragma once

#include "reader/window/MainLayout.h"

class QSize;

namespace Ui {
class MainForm;
}

namespace ls {

/// Moves and stretches the main window's controls to fit its size. The find bar takes its room from the pane.
class MainFormLayout
{
public:
    /// `designed` is the inner size of the form in which the controls have their designed places.
    MainFormLayout(Ui::MainForm& ui, const QSize& designed);

    /// Lays out for the form's current size, with or without the find bar.
    void Form_Resize();

private:
    Ui::MainForm& m_ui;
    MainLayout m_layout;
};

} // namespace ls
