// Opening: books, plain texts, converted copies, files from the command line, and searches for files.

#include "FaultRow.h"

#include "base/Volumes.h"
#include "files/OpenFormRules.h"
#include "reader/settings/CommandLine.h"
#include "reader/window/StartUp.h"
#include "support/TestSeams.h"

namespace ls::test {

namespace {

struct NoVolumes : Volumes
{
    std::vector<Volume> List() override { return {}; }
};

void OpenAnotherBook(Desk& desk)
{
    desk.files["/work/New.IDA"] = CrLf({"LODESTAR BOOK V5.3", "[N]", "n"});
    desk.OpenEdited();
}

void Start(Desk& desk)
{
    CommandLine commandLine;
    commandLine.bookPath = "Book.IDA";
    commandLine.iniDir = "/ini";
    desk.global.settings = Settings{};
    StartUp(desk.global, desk.seams, commandLine, desk.commands);
}

void ListFolder(Desk& desk)
{
    NoVolumes volumes;
    OpenFormRules selector(desk.seams, volumes, "R", "");
    selector.Load("/ini/*.*");
    selector.OkClicked("/ini/LSAdvisor.INI");
    desk.shown = "lists";
    for (const std::string& file : selector.Files()) {
        desk.shown += " " + file;
    }
    desk.shown += ", chose " + selector.ChosenFullPath();
}

} // namespace

std::vector<FaultRow> OpenRows()
{
    return {
        {"openBook", OpenAnotherBook, [](Desk& desk) { desk.Open("New.IDA"); }, true, QuietSettings},
        {"openPlainText", [](Desk& desk) { desk.files["/work/Notes.TXT"] = "one\r\ntwo\r\n"; },
         [](Desk& desk) { desk.Open("Notes.TXT"); }, false, QuietSettings},
        {"openConvertedCopy",
         [](Desk& desk) { desk.files["/work/Unix.IDA"] = "LODESTAR BOOK V5.3\n[U]\nu\n"; },
         [](Desk& desk) { desk.Open("Unix.IDA"); }, false, QuietSettings},
        {"openNameInAnotherCase", nullptr, [](Desk& desk) { desk.Open("book.ida"); }, false, QuietSettings},
        {"startWithBook", nullptr, Start, false, QuietSettings},
        {"chooseInFolder", nullptr, ListFolder},
    };
}

} // namespace ls::test
