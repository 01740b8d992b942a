#include "gui/EveryForm.h"

#include "advisor/TempForm.h"
#include "authoring/DelTopicForm.h"
#include "authoring/InfoForm.h"
#include "authoring/LgEdForm.h"
#include "authoring/MoveTopicsForm.h"
#include "authoring/TxEdForm.h"
#include "files/FileForm.h"
#include "files/OpenForm.h"
#include "forms/FormProgress.h"
#include "forms/Notice.h"
#include "reader/window/AskRecoveryBox.h"
#include "reader/window/CheckForm.h"
#include "reader/window/CheckItem.h"
#include "reader/window/XrefForm.h"
#include "render/print/PrtForm.h"

#include <QCoreApplication>
#include <QProgressDialog>

namespace ls {

void EveryForm::StartOnFullBook()
{
    processes.programFolder = Path("");
    for (const char* page : {"Lodestar_Reader.htm", "Lodestar_Open.htm", "LSIdeas_Print_Parameters.htm"}) {
        Write(page, "");
    }
    printer.names = {"Office", "Print to PDF"};
    Start(Write("Full.IDA", test::CrLf({"LODESTAR BOOK V5.3 /AUTHOR=\"Ann\" /URL=\"http://127.0.0.1/\"",
                                        "[Watering]",
                                        "w",
                                        "<XREF TOPIC=\"Leaves\">Why they fall.</XREF>",
                                        "<IXML>",
                                        "<LOGIC>",
                                        "TARGET CURE",
                                        "CURE(WATER) = SOIL(DRY)",
                                        "CURE(LIGHT) = SOIL(WET)",
                                        "</LOGIC>",
                                        "<DEFINITIONS>",
                                        "<Q ID=CURE></Q>",
                                        "<Q ID=SOIL>How is the soil?</Q>",
                                        "<AV ID=CURE(WATER)>Water it.</AV>",
                                        "<AV ID=CURE(LIGHT)>Move it.</AV>",
                                        "</DEFINITIONS>",
                                        "</IXML>",
                                        "[Leaves]",
                                        "l",
                                        "<XREF TOPIC=\"Watering\">First aid.</XREF>",
                                        "<XREF TOPIC=\"Nowhere\">Lost.</XREF>"})));
}

void EveryForm::Show(const Look& look, const std::string& name, QWidget& form)
{
    form.show();
    QCoreApplication::processEvents();
    look(name, form);
    form.hide();
}

void EveryForm::ForEach(const Look& look)
{
    StartOnFullBook();
    look("MainForm", form);
    ForEachView(look);
    ForEachEditor(look);
    ForEachFileForm(look);
    LookAtAdvisor(look);
    ForEachBox(look);
}

void EveryForm::ForEachView(const Look& look)
{
    XrefForm references(&form, global.book, seams);
    Show(look, "XrefForm", references);
    const CheckedBook checked = CheckOpenBook(global.book, seams, nullptr);
    CheckForm check(&form, checked);
    Show(look, "CheckForm", check);
    PrtForm print(&form, global.print, global.book, seams, {*volumes, dde, registry, printer});
    Show(look, "PrtForm", print);
}

void EveryForm::ForEachEditor(const Look& look)
{
    TxEdForm text(&form, global.book, seams);
    Show(look, "TxEdForm", text);
    LgEdForm logic(&form, global.book, seams);
    EXPECT_TRUE(logic.Form_Load());
    Show(look, "LgEdForm", logic);
    TempForm block(&form, "<IXML>\n<LOGIC>\n</LOGIC>", {{3, "Line 3, warning: A rule that can never fire."}});
    Show(look, "TempForm", block);
    DelTopicForm removal(&form, global.book, global.topicFlags, false);
    Show(look, "DelTopicForm", removal);
    MoveTopicsForm move(&form, global.book, global.topicFlags, seams);
    Show(look, "MoveTopicsForm", move);
    test::Find<QAbstractItemView>(move, "MoveFromList")->selectAll();
    test::Find<QAbstractItemView>(move, "MoveFromList")
        ->setCurrentIndex(test::Find<QAbstractItemView>(move, "MoveFromList")->model()->index(0, 0));
    test::Find<QAbstractButton>(move, "DoneButton")->click();
    Show(look, "MoveTopicsForm, step 2", move);
    InfoForm properties(&form, global.book, seams);
    Show(look, "InfoForm", properties);
}

void EveryForm::ForEachFileForm(const Look& look)
{
    FileDialog& dialog = global.fileDialog;
    dialog = FileDialog{};
    dialog.FileMode = "R";
    dialog.FileFormTitle = "Select a book to open:";
    dialog.ShowSharing = true;
    dialog.DefaultFolder = Path("");
    dialog.FilePattern = "*.IDA";
    {
        FileForm open(&form, dialog, global.book, global.settings, seams, {*volumes, dde, registry, printer});
        Show(look, "FileForm to open", open);
    }
    dialog.FileMode = "W";
    dialog.FileFormTitle = "Save the book as:";
    dialog.ShowSharing = false;
    FileForm save(&form, dialog, global.book, global.settings, seams, {*volumes, dde, registry, printer});
    Show(look, "FileForm to save", save);
    dialog.ChosenFullPath = Path("*.IDA");
    OpenForm selector(&form, dialog, seams, *volumes, "");
    Show(look, "OpenForm", selector);
}

void EveryForm::LookAtAdvisor(const Look& look)
{
    test::ModalScript script;
    script.Do([&look](QWidget& window) {
        look("AdvForm, a question", window);
        test::Find<QComboBox>(window, "AnswerCombo")->setCurrentIndex(1);
        test::Press(window, "NextButton");
        QCoreApplication::processEvents();
        look("AdvForm, advice", window);
        test::Press(window, "NextButton");
    });
    test::Press(form, "AdvisorButton");
}

void EveryForm::ForEachBox(const Look& look)
{
    const std::vector<std::pair<std::string, Buttons>> boxes = {{"OK", Buttons::Ok},
                                                                {"OK, Cancel", Buttons::OkCancel},
                                                                {"Yes, No", Buttons::YesNo},
                                                                {"Yes, No, Cancel", Buttons::YesNoCancel}};
    for (const auto& [name, buttons] : boxes) {
        test::ModalScript script;
        script.Do([&look, name = name](QWidget& box) {
            look("box with " + name, box);
            box.close();
        });
        messages.MsgBox("Why?", Icon::Question, buttons);
    }
    {
        test::ModalScript script;
        script.Do([&look](QWidget& box) {
            look("input box", box);
            box.close();
        });
        messages.InputBox("Topic Name:", "Lodestar Advisor", "");
        script.Do([&look](QWidget& box) {
            look("recovery box", box);
            box.close();
        });
        EXPECT_EQ(AskRecoveryBox(&form, "Recover what was not saved?"), RecoveryChoice::Later);
        ShowNotice(&form, "Your changes cannot be kept safe.");
        auto* notice = test::Find<QWidget>(form, "NoticeBox");
        look("notice", *notice);
        notice->close();
    }
    ProgressBox progress;
    progress.label = QStringLiteral("Writing Full.IDA");
    progress.delayMilliseconds = 0;
    FormProgress writing(&form, progress);
    EXPECT_TRUE(writing.Step(1, 2));
    look("progress box", *test::Find<QProgressDialog>(form, "ProgressBox"));
}

} // namespace ls
