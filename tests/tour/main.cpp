// lstour: a tour through the real main window.
// lstour [--dark] PICTURE_FOLDER BOOK [/NAME=VALUE...]

#include "Tour.h"
#include "forms/FormFont.h"
#include "forms/FormMessages.h"
#include "forms/FormStyle.h"
#include "forms/ProgramIcon.h"
#include "platform/Console.h"
#include "platform/DdeSeam.h"
#include "platform/SystemSeams.h"
#include "reader/settings/CommandLine.h"
#include "reader/window/Global.h"
#include "reader/window/MainForm.h"
#include "render/print/SystemPrinter.h"

#include <QApplication>
#include <QLocale>
#include <QPalette>
#include <QtTest/qtestsystem.h>

#include <cstdio>
#include <cstdlib>

namespace {

constexpr int WrongUsage = 2;

// A dark desktop, as many users have.
void DarkenDesktop()
{
    const QColor window(49, 54, 59);
    const QColor text(239, 240, 241);
    QPalette dark(window); // derives the shades for edges and shadows
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        dark.setColor(role, text);
        dark.setColor(QPalette::Disabled, role, QColor(130, 135, 140));
    }
    dark.setColor(QPalette::Base, QColor(35, 38, 41));
    dark.setColor(QPalette::AlternateBase, QColor(42, 46, 50));
    dark.setColor(QPalette::ToolTipBase, window);
    dark.setColor(QPalette::PlaceholderText, QColor(160, 165, 170));
    dark.setColor(QPalette::Highlight, QColor(61, 174, 233));
    dark.setColor(QPalette::HighlightedText, QColor(35, 38, 41));
    QApplication::setPalette(dark);
}

// Makes the window as the program does and takes the tour in it.
bool TakeTour(const QDir& pictures, const std::vector<std::string>& arguments)
{
    ls::Global global;
    const auto files = ls::MakeFileSystem();
    const auto processes = ls::MakeProcesses();
    ls::FormMessages messages(global.end);
    const ls::Seams seams{*files, messages, *processes, global.end, ls::NativePaths()};
    const auto volumes = ls::MakeVolumes();
    const auto ddeServer = ls::MakeDdeServer();
    const auto registry = ls::MakeRegistry(*processes);
    const auto printService = ls::MakePrintService();
    ls::SystemPrinter printer(*files, *printService);
    ls::MainForm form(global, seams, {*volumes, *ddeServer, *registry, printer});
    messages.SetParent(&form);
    ls::Tour tour(form, pictures);
    form.Form_Load(ls::ParseArguments(arguments, seams));
    form.show();
    if (!QTest::qWaitForWindowActive(&form)) {
        std::puts("FAILED  the window does not become active");
        return false;
    }
    const auto* advisor = form.findChild<QWidget*>(QStringLiteral("AdvisorButton"));
    const bool asked = advisor != nullptr && advisor->isVisible();
    return (asked ? tour.TakeAdvisor() : tour.Take()) && !global.end.Ended();
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    ls::SetFormStyle();
    QApplication::setFont(ls::FormFont());
    QApplication::setWindowIcon(ls::ProgramIcon());
    std::vector<std::string> arguments = ls::ProgramArguments(argc, argv);
    if (!arguments.empty() && arguments.front() == "--dark") {
        arguments.erase(arguments.begin());
        DarkenDesktop();
    }
    const QDir pictures(arguments.empty() ? QString() : QString::fromLocal8Bit(arguments.front().c_str()));
    if (arguments.size() < 2 || !pictures.exists()) {
        std::fputs("usage: lstour [--dark] PICTURE_FOLDER BOOK [/NAME=VALUE...]; the folder must exist\n",
                   stderr);
        return WrongUsage;
    }
    arguments.erase(arguments.begin());
    return TakeTour(pictures, arguments) ? EXIT_SUCCESS : EXIT_FAILURE;
}
