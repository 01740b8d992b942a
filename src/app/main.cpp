// lsadvisor: the desktop program.

#include "forms/FormFont.h"
#include "forms/FormMessages.h"
#include "forms/FormStyle.h"
#include "forms/Notice.h"
#include "forms/ProgramIcon.h"
#include "platform/DdeSeam.h"
#include "platform/ReadCommandLine.h"
#include "platform/SystemSeams.h"
#include "reader/window/AskRecoveryBox.h"
#include "reader/window/Global.h"
#include "reader/window/JournalKeeper.h"
#include "reader/window/MainForm.h"
#include "recovery/OfferJournals.h"
#include "recovery/OwnJournal.h"
#include "render/print/SystemPrinter.h"

#include <QApplication>
#include <QLocale>

#include <iostream>

namespace {

constexpr int EndedNormally = 0;
constexpr int EndedByFault = 4;

// The program speaks only English, in every locale. It has no display name, because the toolkit would add
// that to every form's title.
void SetUpApplication()
{
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    ls::SetFormStyle();
    QApplication::setFont(ls::FormFont());
    QApplication::setApplicationName(QStringLiteral("lsadvisor"));
    QApplication::setApplicationVersion(QStringLiteral(LS_VERSION));
    QApplication::setWindowIcon(ls::ProgramIcon());
    QGuiApplication::setDesktopFileName(QStringLiteral("org.lodestar.Advisor"));
}

int ExitStatus(const ls::ProgramEnd& end)
{
    if (!end.Ended()) {
        return EndedNormally;
    }
    std::cerr << "lsadvisor: " << end.Reason() << '\n';
    return EndedByFault;
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv); // removes the toolkit's own arguments
    SetUpApplication();
    ls::Global global;
    const std::unique_ptr<ls::FileSystem> files = ls::MakeFileSystem();
    const std::unique_ptr<ls::Processes> processes = ls::MakeProcesses();
    ls::FormMessages messages(global.end);
    const std::unique_ptr<ls::Volumes> volumes = ls::MakeVolumes();
    const std::unique_ptr<ls::Registry> registry = ls::MakeRegistry(*processes);
    const std::unique_ptr<ls::DdeServer> ddeServer = ls::MakeDdeServer();
    const std::unique_ptr<ls::PrintService> printService = ls::MakePrintService();
    ls::SystemPrinter printer(*files, *printService);
    const ls::Seams seams{*files, messages, *processes, global.end, ls::NativePaths()};
    ls::MainForm form(global, seams, {*volumes, *ddeServer, *registry, printer});
    messages.SetParent(&form);
    const std::string stateFolder = ls::StateFolder(*processes);
    ls::OwnJournal journal(seams, stateFolder);
    ls::JournalKeeper keeper(
        global.book, seams, journal, [&form] { return form.Busy(); },
        [&form](const std::string& text) { ls::ShowNotice(&form, text); });
    QObject::connect(&form, &ls::MainForm::CommandDone, &keeper, &ls::JournalKeeper::Keep);
    form.Form_Load(ls::ReadCommandLine(argc, argv, seams), [&] {
        const auto ask = [&form](const std::string& question) { return ls::AskRecoveryBox(&form, question); };
        return ls::OfferJournals(stateFolder, global.book, seams, journal, ask);
    });
    if (!global.end.Ended()) {
        keeper.Start();
        form.show();
        QApplication::exec();
    }
    keeper.Finish();
    return ExitStatus(global.end);
}
