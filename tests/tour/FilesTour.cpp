// Steps to other books: a new book, the forms that ask for a file, and a box that asks for a text.

#include "Tour.h"

#include <QMessageBox>
#include <QPushButton>
#include <QtTest/qtestmouse.h>

namespace ls {

bool Tour::TakeFiles()
{
    return WalkItem("FileMenu", "NewItem", "MsgBox", &Tour::WalkStartOver) &&
           WalkItem("FileMenu", "OpenItem", "FileForm", &Tour::WalkFileForm) &&
           WalkItem("EditMenu", "AddTopicItem", "InputBox", &Tour::WalkTitle);
}

bool Tour::WalkItem(const char* menu, const char* item, const char* form, bool (Tour::*walk)())
{
    return Report(QLatin1String(menu), OpenMenu(menu)) &&
           WalkForm(
               form, [this, menu, item] { return ClickItem(m_window, menu, item); }, walk);
}

bool Tour::WalkStartOver()
{
    return TakeSteps({{"box", &Tour::LookAtForm}}) && Report(QStringLiteral("OK"), PressOk());
}

Tour::Fault Tour::PressOk()
{
    const auto* box = qobject_cast<QMessageBox*>(m_form);
    if (box == nullptr)
        return QStringLiteral("there is no box");
    QTest::mouseClick(box->button(QMessageBox::Ok), Qt::LeftButton);
    return {};
}

bool Tour::WalkFileForm()
{
    if (!TakeSteps({{"file", &Tour::LookAtForm}}))
        return false;
    const auto browse = [this] { return PressInForm("BrowseButton"); };
    return WalkForm("OpenForm", browse, &Tour::WalkSelector) &&
           Report(QStringLiteral("Cancel"), PressInForm("CancelButton"));
}

bool Tour::WalkSelector()
{
    return TakeSteps({{"selector", &Tour::LookAtForm}}) &&
           Report(QStringLiteral("Cancel"), PressInForm("CancelButton"));
}

bool Tour::WalkTitle()
{
    return TakeSteps({{"title", &Tour::LookAtForm}});
}

} // namespace ls
