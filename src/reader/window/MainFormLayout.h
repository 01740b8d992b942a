#pragma once

#include "reader/window/MainLayout.h"

class QSize;

namespace Ui {
class MainForm;
}

namespace ls {

/// The main window's controls, moved and stretched as its size asks. The find bar takes its room from the
/// pane above it.
class MainFormLayout
{
public:
    /// The controls stand where they were designed, in a form of that inner size.
    MainFormLayout(Ui::MainForm& ui, const QSize& designed);

    /// Lays out at the size that the form has now, with or without the find bar.
    void Form_Resize();

private:
    Ui::MainForm& m_ui;
    MainLayout m_layout;
};

} // namespace ls
