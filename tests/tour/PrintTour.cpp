// Steps in the print dialog. It is cancelled, so nothing is printed.

#include "Tour.h"

#include <QComboBox>
#include <QRadioButton>
#include <QtTest/qtestkeyboard.h>
#include <QtTest/qtestmouse.h>

namespace ls {

bool Tour::TakePrint()
{
    return Report(QStringLiteral("Action"), OpenMenu("ActionMenu")) &&
           WalkForm(
               "PrtForm", [this] { return ClickItem(m_window, "ActionMenu", "PrintItem"); },
               &Tour::WalkPrint);
}

bool Tour::WalkPrint()
{
    return TakeSteps({{"print", &Tour::ChoosePrintMode}}) &&
           Report(QStringLiteral("Cancel"), PressInForm("CancelButton"));
}

/// Chooses Elite type in colour; the paper is not changed.
Tour::Fault Tour::ChoosePrintMode()
{
    const auto find = [this](const char* name) { return m_form->findChild<QComboBox*>(QLatin1String(name)); };
    auto* type = m_form == nullptr ? nullptr : find("TypeSizeCombo");
    if (type == nullptr || find("PrinterCombo")->currentText().isEmpty() ||
        find("PaperCombo")->currentText().isEmpty())
        return QStringLiteral("the dialog shows no printer, paper or type size");
    type->setFocus();
    QTest::keyClick(type, Qt::Key_Down);
    auto* colour = m_form->findChild<QRadioButton*>(QStringLiteral("ColourOption"));
    QTest::mouseClick(colour, Qt::LeftButton);
    if (type->currentText() != QStringLiteral("Elite (12 chars/inch)") || !colour->isChecked())
        return QStringLiteral("the choices are not taken");
    return {};
}

} // namespace ls
