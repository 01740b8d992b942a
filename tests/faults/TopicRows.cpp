// Reading topics of the open book: to show, edit, print, check and advise.

#include "FaultRow.h"

#include "advisor/AdvisorRunner.h"
#include "check/CheckBook.h"
#include "reader/window/CheckItem.h"
#include "reader/window/PrintItem.h"
#include "support/PageText.h"
#include "support/TestSeams.h"

namespace ls::test {

namespace {

void Show(Desk& desk, int item)
{
    desk.view.SelectItem(item);
    desk.navigation.TopicList_Change();
    desk.navigation.GoToButton_Click();
    desk.messages.Take();
}

void GoTo(Desk& desk)
{
    desk.view.SelectItem(1);
    desk.navigation.TopicList_Change();
    desk.navigation.GoToButton_Click();
}

void OpenPlain(Desk& desk)
{
    desk.files["/work/Notes.TXT"] = "one\r\ntwo\r\n";
    desk.Open("Notes.TXT");
}

// The author adds a word in the text editor and presses Done.
void EditText(Desk& desk)
{
    desk.view.onTxEdForm = [&desk] {
        desk.book.TopicRecs(desk.book.CurrentTopicNo).Text += "more\r\n";
        desk.book.BookChanged = true;
        return true;
    };
    desk.edit.EdTextItem_Click();
    desk.shown = std::to_string(desk.view.textForms) + " editors";
}

void EditLogic(Desk& desk)
{
    desk.view.onLgEdForm = [] { return true; };
    desk.edit.AdviceEdItem_Click();
    desk.shown = std::to_string(desk.view.logicForms) + " editors";
}

void Print(Desk& desk)
{
    PrintSettings& settings = desk.global.print;
    PrintItem_Click(desk.book, settings, desk.printer, desk.seams, [&] { settings.PrintConfirmed = true; });
    std::string first;
    std::size_t count = 0;
    for (const auto& page : desk.printer.Pages()) {
        for (const std::string& row : RowTexts(page)) {
            count += row.empty() ? 0 : 1;
            first = first.empty() ? row : first;
        }
    }
    desk.shown = "prints " + std::to_string(count) + " rows: " + first;
}

// Answers 1 and 1 in the first dialogue.
void Advise(Desk& desk)
{
    AdvisorPlayer player;
    player.answer = [](const AdvisorEvent&) { return "1"; };
    player.reply = [](const std::string&, Buttons) { return Reply::Yes; };
    player.event = [&desk](const AdvisorEvent& event) {
        switch (event.kind) {
        case AdvisorEvent::Kind::Box:
            desk.messages.MsgBox(event.name, event.icon);
            break;
        case AdvisorEvent::Kind::Question:
            desk.shown += "? " + event.name + " ";
            break;
        case AdvisorEvent::Kind::Text:
            desk.shown += event.text + " ";
            break;
        case AdvisorEvent::Kind::Advice:
            desk.shown += "! " + event.text + " ";
            break;
        case AdvisorEvent::Kind::NoAdvisor:
            desk.shown += "no advisor ";
            break;
        case AdvisorEvent::Kind::Button:
            desk.shown += event.name + " ";
            break;
        default:
            break;
        }
    };
    RunAdvisor(desk.book, desk.global.advisor, desk.seams, player, 1, "Ask");
}

void Check(Desk& desk)
{
    desk.view.onCheckForm = [&desk](const CheckedBook& checked) {
        desk.shown = checked.summary + " " + checked.notes;
        return std::nullopt;
    };
    CheckItem_Click(desk.book, desk.seams, desk.view, desk.navigation);
}

// The logic editor's Done checks the block, which leads to another topic.
void CheckText(Desk& desk)
{
    const std::string text = "<IXML>\r\n<LOGIC>\r\nTARGET R\r\nDEFINE Y@More\r\nR(1)=Y(1)\r\n</LOGIC>\r\n"
                             "<DEFINITIONS>\r\n<Q ID=R></Q>\r\n<AV ID=R(1)>One.</AV>\r\n</DEFINITIONS>\r\n"
                             "</IXML>\r\n";
    for (const Finding& finding : CheckLogicText(desk.book, desk.seams, 3, text)) {
        desk.shown += finding.rule + " ";
    }
}

} // namespace

std::vector<FaultRow> TopicRows()
{
    const auto openBook = [](Desk& desk) { desk.OpenBook(); };
    const auto openLong = [](Desk& desk) { desk.OpenLong(); };
    const auto openEdited = [](Desk& desk) { desk.OpenEdited(); };
    return {
        {"showTopic", openBook, GoTo},
        {"showLongTopic", openLong, [](Desk& desk) { desk.navigation.GoToButton_Click(); }},
        {"showPlainTextAgain", OpenPlain, [](Desk& desk) { desk.navigation.GoToButton_Click(); }},
        {"showAfterResize", openBook, [](Desk& desk) { desk.navigation.ShowAgain(); }},
        {"editText", openBook, EditText},
        {"editTextOfAdvisor",
         [](Desk& desk) {
             desk.OpenBook();
             Show(desk, 2);
         },
         EditText,
         false,
         {"read /work/Book.IDA 115"}},
        {"editLongText", openLong, EditText},
        {"editLogic",
         [](Desk& desk) {
             desk.OpenBook();
             Show(desk, 2);
         },
         EditLogic},
        {"editLogicNotTaken",
         [](Desk& desk) {
             desk.OpenBook();
             Show(desk, 4);
         },
         EditLogic},
        {"printTopic", openBook, Print},
        {"printLongTopic", openLong, Print},
        {"advise", openBook, Advise},
        {"checkBook", openBook, Check},
        {"checkBookWithEdits", openEdited, Check},
        {"checkLogicText", openBook, CheckText},
    };
}

} // namespace ls::test
