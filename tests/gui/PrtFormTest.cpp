// The print dialog of the real main window, with a printer that only records.

#include "render/print/PrtForm.h"
#include "gui/MainFormFixture.h"
#include "support/PageText.h"

#include <QGroupBox>
#include <QLineEdit>
#include <QRadioButton>

namespace ls {
namespace {

using test::Find;
using test::ModalScript;
using test::Press;

struct PrtFormTest : MainFormFixture
{
    PrtFormTest() { printer.names = {"Office", "Attic", "Print to PDF"}; }

    // Opens the dialog by the menu and does something in it, which must close it.
    void InDialog(ModalScript& script, const std::function<void(QWidget& dialog)>& step)
    {
        script.Do([step](QWidget& dialog) {
            ASSERT_EQ(dialog.objectName(), QStringLiteral("PrtForm"));
            step(dialog);
        });
    }

    // What the dialog shows, chosen entries only: "Office|Letter 8.5 x 11 in.|Pica (10 chars/inch)|colour".
    static std::string Shown(const QWidget& dialog)
    {
        std::string text;
        for (const char* combo : {"PrinterCombo", "PaperCombo", "TypeSizeCombo"}) {
            text += Find<QComboBox>(dialog, combo)->currentText().toStdString() + "|";
        }
        return text + (Find<QRadioButton>(dialog, "ColourOption")->isChecked() ? "colour" : "") +
               (Find<QRadioButton>(dialog, "BWOption")->isChecked() ? "black" : "");
    }

    static Strings Entries(const QWidget& dialog, const char* name)
    {
        const auto* combo = Find<QComboBox>(dialog, name);
        Strings entries;
        for (int i = 0; i < combo->count(); ++i) {
            entries.push_back(combo->itemText(i).toStdString());
        }
        return entries;
    }

    // Chooses an entry as a user does with the keys.
    static void Pick(QWidget& dialog, const char* name, int index)
    {
        auto* combo = Find<QComboBox>(dialog, name);
        combo->setFocus();
        while (combo->currentIndex() != index) {
            QTest::keyClick(combo, combo->currentIndex() < index ? Qt::Key_Down : Qt::Key_Up);
        }
    }

    Strings PrintedRows()
    {
        return printer.Pages().empty() ? Strings{} : test::RowTexts(printer.Pages().back());
    }
};

TEST_F(PrtFormTest, captions_areAsDesigned)
{
    Start(WriteThree());
    ModalScript script;
    InDialog(script, [](QWidget& dialog) {
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("LSAdvisor Print"));
        const auto plain = [](QString text) { return text.remove(QLatin1Char('&')).toStdString(); };
        EXPECT_EQ(plain(Find<QLabel>(dialog, "Label1")->text()), "Printer");
        EXPECT_EQ(plain(Find<QLabel>(dialog, "Label2")->text()), "Paper Size");
        EXPECT_EQ(plain(Find<QLabel>(dialog, "Label3")->text()), "Type Size");
        EXPECT_EQ(plain(Find<QGroupBox>(dialog, "Frame2")->title()), "Print Mode");
        EXPECT_EQ(plain(Find<QRadioButton>(dialog, "ColourOption")->text()), "Colour");
        EXPECT_EQ(plain(Find<QRadioButton>(dialog, "BWOption")->text()), "Black and White");
        EXPECT_EQ(plain(Find<QPushButton>(dialog, "OKButton")->text()), "Print Topic");
        EXPECT_EQ(plain(Find<QPushButton>(dialog, "CancelButton")->text()), "Cancel");
        EXPECT_EQ(Find<QPushButton>(dialog, "HelpButton")->toolTip(), QStringLiteral("Show help page"));
        EXPECT_TRUE(
            Find<QGroupBox>(dialog, "Frame2")->isAncestorOf(Find<QRadioButton>(dialog, "ColourOption")));
        EXPECT_TRUE(Find<QGroupBox>(dialog, "Frame2")->isAncestorOf(Find<QRadioButton>(dialog, "BWOption")));
        EXPECT_EQ(Entries(dialog, "PrinterCombo"), (Strings{"Office", "Attic", "Print to PDF"}));
        EXPECT_EQ(Entries(dialog, "PaperCombo"),
                  (Strings{"Letter 8.5 x 11 in.", "Legal 11 x 14 in.", "A4 Letter 21 x 29.7 cm"}));
        EXPECT_EQ(Entries(dialog, "TypeSizeCombo"),
                  (Strings{"Pica (10 chars/inch)", "Elite (12 chars/inch)"}));
        EXPECT_EQ(Shown(dialog), "Office|Letter 8.5 x 11 in.|Pica (10 chars/inch)|black");
        EXPECT_TRUE(Find<QPushButton>(dialog, "OKButton")->isDefault());
        test::TakePicture(dialog, "PrtForm");
        Press(dialog, "CancelButton");
    });
    Press(form, "PrintItem");
}

TEST_F(PrtFormTest, labels_leadToTheirControls)
{
    Start(WriteThree());
    ModalScript script;
    InDialog(script, [](QWidget& dialog) {
        for (const auto& [key, control] : {std::pair{Qt::Key_S, "PaperCombo"},
                                           {Qt::Key_T, "TypeSizeCombo"},
                                           {Qt::Key_P, "PrinterCombo"}}) {
            QTest::keyClick(dialog.windowHandle(), key, Qt::AltModifier);
            EXPECT_EQ(dialog.focusWidget(), Find<QComboBox>(dialog, control)) << control;
        }
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    Press(form, "PrintItem");
    EXPECT_FALSE(global.print.PrintConfirmed);
}

TEST_F(PrtFormTest, printTopic_printsTheTopicOnShow)
{
    Start(WriteThree(), "B");
    ModalScript script;
    InDialog(script, [](QWidget& dialog) {
        Pick(dialog, "PrinterCombo", 1);
        Pick(dialog, "PaperCombo", 2);
        Pick(dialog, "TypeSizeCombo", 1);
        QTest::mouseClick(Find<QRadioButton>(dialog, "ColourOption"), Qt::LeftButton);
        Press(dialog, "OKButton");
    });
    Press(form, "PrintItem");
    EXPECT_EQ(printer.log, (Strings{"choose Attic", "choose Attic", "paper 9", "colour", "title B",
                                    "font Courier New 10", "end"}));
    EXPECT_EQ(PrintedRows(), (Strings{"", "", "", "        B", "", "        b"}));
    EXPECT_EQ(PaneText(), "b");
}

TEST_F(PrtFormTest, enter_printsAndChoicesComeBack)
{
    Start(WriteThree());
    {
        ModalScript script;
        InDialog(script, [](QWidget& dialog) {
            Pick(dialog, "PrinterCombo", 1);
            Pick(dialog, "PaperCombo", 1);
            Pick(dialog, "TypeSizeCombo", 1);
            QTest::mouseClick(Find<QRadioButton>(dialog, "ColourOption"), Qt::LeftButton);
            QTest::keyClick(&dialog, Qt::Key_Return);
        });
        Press(form, "PrintItem");
    }
    EXPECT_EQ(printer.log.back(), "end");
    std::string again;
    ModalScript script;
    InDialog(script, [&again](QWidget& dialog) {
        again = Shown(dialog);
        Press(dialog, "CancelButton");
    });
    Press(form, "PrintItem");
    EXPECT_EQ(again, "Attic|Legal 11 x 14 in.|Elite (12 chars/inch)|colour");
    EXPECT_EQ(printer.Pages().size(), 1U) << "Cancel prints nothing";
}

TEST_F(PrtFormTest, refusedPaper_keepsTheDialogOpen)
{
    printer.refuse[5] = {380, "Invalid property value"};
    Start(WriteThree());
    ModalScript script;
    InDialog(script, [](QWidget& dialog) {
        Pick(dialog, "PaperCombo", 1);
        Press(dialog, "OKButton");
        EXPECT_TRUE(dialog.isVisible());
        Pick(dialog, "PaperCombo", 0);
        Press(dialog, "OKButton");
    });
    script.Answer(Reply::Ok);
    Press(form, "PrintItem");
    ASSERT_EQ(script.Seen().size(), 2U);
    EXPECT_EQ(script.Seen()[1],
              "warning|Lodestar Advisor|I cannot select the paper size on your printer due to error "
              "#380: Invalid property value");
    EXPECT_EQ(PrintedRows().back(), "      a");
}

TEST_F(PrtFormTest, smallPaper_isRefusedBeforeAnythingIsPrinted)
{
    printer.state.paperSize = 11;
    printer.state.width = 8400;
    Start(WriteThree());
    ModalScript script;
    InDialog(script, [](QWidget& dialog) {
        EXPECT_EQ(Entries(dialog, "PaperCombo").back(), "Printer default (other)");
        EXPECT_EQ(Find<QComboBox>(dialog, "PaperCombo")->currentText(),
                  QStringLiteral("Printer default (other)"));
        Press(dialog, "OKButton");
        Press(dialog, "CancelButton");
    });
    script.Answer(Reply::Ok);
    Press(form, "PrintItem");
    ASSERT_EQ(script.Seen().size(), 2U);
    EXPECT_EQ(
        script.Seen()[1],
        "warning|Lodestar Advisor|The paper selected for your printer is too small.  Put in larger paper and "
        "choose a new size using the Windows control panel or using my paper selection list.");
    EXPECT_EQ(printer.log, Strings{"choose Office"}) << "not even the printer's own paper was set";
}

TEST_F(PrtFormTest, pdf_asksForItsNameAndBeforeItReplacesAFile)
{
    printer.fileTo = "Print to PDF";
    const std::string path = Write("Out.pdf", "old");
    Start(WriteThree());
    ModalScript script;
    InDialog(script, [](QWidget& dialog) {
        Pick(dialog, "PrinterCombo", 2);
        Press(dialog, "OKButton"); // No to the question
        EXPECT_TRUE(dialog.isVisible());
        Press(dialog, "OKButton"); // Yes
    });
    script.Enter("Out.pdf").Answer(Reply::No).Enter("Out.pdf").Answer(Reply::Yes);
    Press(form, "PrintItem");
    ASSERT_EQ(script.Seen().size(), 5U);
    EXPECT_EQ(script.Seen()[1], "input|Lodestar Advisor|Filename for the PDF file|A.pdf");
    EXPECT_EQ(script.Seen()[2], "question|Lodestar Advisor|The file <<" + path +
                                    ">> already exists. Do you want to replace it?|YesNo");
    EXPECT_EQ(printer.log, (Strings{"choose Attic", "choose Print to PDF", "choose Print to PDF", "paper 1",
                                    "grey", "choose Print to PDF", "paper 1", "grey",
                                    "file " + path + " replaced", "title A", "font Courier New 12", "end"}));
}

TEST_F(PrtFormTest, printerFailsAfterwards_isTold)
{
    printer.failEndDoc = MakeFileError(error::DiskFull);
    Start(WriteThree());
    ModalScript script;
    InDialog(script, [](QWidget& dialog) { Press(dialog, "OKButton"); });
    script.Answer(Reply::Ok);
    Press(form, "PrintItem");
    ASSERT_EQ(script.Seen().size(), 2U);
    EXPECT_EQ(script.Seen()[1],
              "critical|Lodestar Advisor|I cannot print the topic due to error #61: Disk full");
}

TEST_F(PrtFormTest, noBook_saysThatThereIsNothing)
{
    ModalScript script;
    script.Escape(); // the file form of the first showing
    Start("");
    script.Answer(Reply::Ok);
    Press(form, "PrintItem");
    EXPECT_EQ(script.Seen().back(), "warning|Lodestar Advisor|There is nothing to print.");
}

TEST_F(PrtFormTest, noTopicOnShow_asksForOne)
{
    Start(WriteThree());
    Select(1);
    ModalScript script;
    script.Answer(Reply::Ok);
    Press(form, "PrintItem");
    EXPECT_EQ(script.Seen(),
              Strings{"warning|Lodestar Advisor|Please display the topic first by choosing it from the "
                      "list and clicking Go."});
}

TEST_F(PrtFormTest, plainText_isPrinted)
{
    const std::string path = Write("Notes.TXT", "one\r\ntwo\r\n");
    ModalScript script;
    script.Answer(Reply::Ok);
    Start(path);
    InDialog(script, [](QWidget& dialog) { Press(dialog, "OKButton"); });
    Press(form, "PrintItem");
    EXPECT_EQ(PrintedRows(), (Strings{"", "", "", "      one", "      two"}));
}

TEST_F(PrtFormTest, keyOfTheMenu_opensTheDialog)
{
    Start(WriteThree());
    ModalScript script;
    InDialog(script, [](QWidget& dialog) { Press(dialog, "CancelButton"); });
    QTest::keyClick(form.windowHandle(), Qt::Key_P, Qt::ControlModifier);
    EXPECT_TRUE(test::WaitFor([&script] { return script.Seen().size() == 1; }));
}

TEST_F(PrtFormTest, help_noPageBesideTheProgram_isDisabled)
{
    Start(WriteThree());
    ModalScript script;
    InDialog(script, [](QWidget& dialog) {
        EXPECT_FALSE(Find<QPushButton>(dialog, "HelpButton")->isEnabled());
        Press(dialog, "CancelButton");
    });
    Press(form, "PrintItem");
}

TEST_F(PrtFormTest, help_showsThePageOnPrinting)
{
    processes.programFolder = Path("");
    const std::string page = Write("LSIdeas_Print_Parameters.htm", "");
    registry.RegisterForUser(".HTM", "page", "/usr/bin/web");
    Start(WriteThree());
    ModalScript script;
    InDialog(script, [](QWidget& dialog) {
        Press(dialog, "HelpButton");
        EXPECT_TRUE(dialog.isVisible());
        Press(dialog, "CancelButton");
    });
    Press(form, "PrintItem");
    EXPECT_EQ(processes.started, Strings{"/usr/bin/web " + page});
}

TEST_F(PrtFormTest, help_noBrowser_selectorFindsOne)
{
    processes.programFolder = Path("");
    const std::string page = Write("LSIdeas_Print_Parameters.htm", "");
    Write("web", "");
    Start(WriteThree());
    ModalScript script;
    InDialog(script, [](QWidget& dialog) {
        Press(dialog, "HelpButton");
        Press(dialog, "CancelButton");
    });
    script.Answer(Reply::Ok).Answer(Reply::Yes).Do([this](QWidget& selector) {
        test::Type(selector, "TextBox", QString::fromStdString(Path("web")));
        Press(selector, "OKButton");
    });
    Press(form, "PrintItem");
    EXPECT_EQ(processes.started, Strings{Path("web") + " " + page});
}

TEST_F(PrtFormTest, tabOrder_followsTheEye)
{
    Start(WriteThree());
    ModalScript script;
    InDialog(script, [](QWidget& dialog) {
        Strings order;
        Find<QComboBox>(dialog, "PrinterCombo")->setFocus();
        for (int i = 0; i < 6; ++i) {
            order.push_back(dialog.focusWidget()->objectName().toStdString());
            QTest::keyClick(dialog.windowHandle(), Qt::Key_Tab);
        }
        EXPECT_EQ(order, (Strings{"PrinterCombo", "PaperCombo", "TypeSizeCombo", "BWOption", "OKButton",
                                  "CancelButton"}));
        Press(dialog, "CancelButton");
    });
    Press(form, "PrintItem");
}

} // namespace
} // namespace ls
