#include "reader/window/StartUp.h"

#include "base/Processes.h"
#include "reader/settings/CommandLine.h"
#include "reader/window/BookCommands.h"
#include "reader/window/Global.h"

namespace ls {

void StartUp(Global& global, const Seams& seams, const CommandLine& commandLine, BookCommands& commands,
             const std::function<bool()>& recover)
{
    global.book.WorkDir = seams.processes.Environment("LSADVISOR_WORKDIR");
    ReportInvalidParameters(commandLine, seams);
    global.settings.IniDir = commandLine.iniDir;
    global.book.StartTopic = commandLine.startTopic;
    LoadSettings(global.settings, seams);
    if (seams.end.Ended()) {
        return;
    }
    if (recover()) {
        commands.ShowRecovered();
        return;
    }
    if (seams.end.Ended() || commandLine.bookPath.empty()) {
        return;
    }
    global.book.BookPath = commandLine.bookPath;
    commands.OpenAtStart();
}

} // namespace ls
