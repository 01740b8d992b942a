// Files that are written beside the book: exports, and pages for the browser.

#include "FaultRow.h"

#include "browser/HelpPages.h"
#include "browser/WebReferral.h"
#include "render/ExportItem.h"

namespace ls::test {

namespace {

void Export(Desk& desk)
{
    desk.messages.input = "/work/Export.htm";
    ExportItem_Click(desk.book, desk.seams);
}

void Refer(Desk& desk)
{
    ShowWebReferral(desk.book, desk.seams, desk.registry, "A");
    desk.shown = std::to_string(desk.processes.started.size()) + " browsers";
}

void Help(Desk& desk)
{
    ShowHelpPage("lodestar_reader.htm", desk.seams, desk.registry, [](const std::string&) { return ""; });
    desk.shown = desk.processes.started.empty() ? "" : desk.processes.started.front();
}

} // namespace

std::vector<FaultRow> OutputRows()
{
    const auto openEdited = [](Desk& desk) { desk.OpenEdited(); };
    return {
        {"exportNew", openEdited, Export},
        {"exportOver",
         [](Desk& desk) {
             desk.files["/work/Export.htm"] = "older";
             desk.OpenEdited();
         },
         Export},
        {"exportLong", [](Desk& desk) { desk.OpenLong(); }, Export},
        {"referralPage", openEdited, Refer},
        {"referralPageAgain",
         [](Desk& desk) {
             desk.files["/work/Lodestar_Ideas_Temp.htm"] = "older";
             desk.OpenEdited();
         },
         Refer},
        {"helpPage",
         [](Desk& desk) { desk.files["/program/Lodestar_Reader.htm"] = "help"; },
         Help,
         false,
         {"list /program"}},
    };
}

} // namespace ls::test
