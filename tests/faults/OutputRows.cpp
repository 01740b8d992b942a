// Files that are written beside the book: exports, and pages for the browser.

#include "FaultRow.h"

#include "browser/HelpPages.h"
#include "browser/WebReferral.h"
#include "render/html/ExportItem.h"
#include "render/print/PrtFormRules.h"

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

// Presses the print dialog's button, with the printer that writes a PDF file under the proposed name.
void NamePdf(Desk& desk)
{
    desk.printer.names = {"PDF"};
    desk.printer.fileTo = "PDF";
    desk.printer.log.clear();
    const bool accepted =
        AcceptPrtForm(desk.global.print, desk.printer, desk.book, desk.seams, {"PDF", 1, false, false});
    desk.shown = accepted ? desk.printer.log.back() : "no file";
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
        {"pdfName", openEdited, NamePdf},
        {"pdfNameTaken",
         [](Desk& desk) {
             desk.files["/work/A.pdf"] = "older";
             desk.OpenEdited();
         },
         NamePdf},
        {"pdfNameOfAFolder",
         [](Desk& desk) {
             desk.files.AddFolder("/work/A.pdf");
             desk.OpenEdited();
         },
         NamePdf},
        {"helpPage",
         [](Desk& desk) { desk.files["/program/Lodestar_Reader.htm"] = "help"; },
         Help,
         false,
         {"list /program"}},
    };
}

} // namespace ls::test
