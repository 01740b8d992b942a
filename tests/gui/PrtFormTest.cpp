// The print dialog of the real main window, with a printer that only records.

#include "render/print/PrtForm.h"
#include "gui/MainFormFixture.h"
#include "support/PageText.h"

#include <QRadioButton>

namespace ls {
namespace {

using test::Find;
using test::ModalScript;
using test::Press;

struct PrtFormTest : MainFormFixture
{
    PrtFormTest() { printer.names = {"Office", "Attic", "Print to PDF"}; }

    // Opens the dialog by the menu and runs `step` in it, which must close it.
    void InDialog(ModalScript& script, const std::function<void(QWidget& dialog)>& step)
    {
        script.Do([step](QWidget& dialog) {
            ASSERT_EQ(dialog.objectName(), QStringLiteral("PrtForm"));
            step(dialog);
        });
    }

    // The chosen entries of the dialog: "Office|Letter 8.5 x 11 in.|Pica (10 chars/inch)|colour".
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

TEST_F(PrtFormTest, lists_areThoseOfThePrinter)
{
    Start(WriteThree());
    ModalScript script;
    InDialog(script, [](QWidget& dialog) {
        EXPECT_EQ(Entries(dialog, "PrinterCombo"), (Strings{"Office", "Attic", "Print to PDF"}));
        EXPECT_EQ(Entries(dialog, "PaperCombo"),
                  (Strings{"Letter 8.5 x 11 in.", "Legal 11 x 14 in.", "A4 Letter 21 x 29.7 cm"}));
        EXPECT_EQ(Entries(dialog, "TypeSizeCombo"),
                  (Strings{"Pica (10 chars/inch)", "Elite (12 chars/inch)"}));
        EXPECT_EQ(Shown(dialog), "Office|Letter 8.5 x 11 in.|Pica (10 chars/inch)|black");
        test::TakePicture(dialog, "PrtForm");
        Press(dialog, "CancelButton");
    });
    Press(form, "PrintItem");
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

TEST_F(PrtFormTest, pdf_asksForItsNameAndBeforeItReplacesAFile)
{
    printer.fileTo = "Print to PDF";
    const std::string path = Write("Out.pdf", "old");
    Start(WriteThree());
    ModalScript script;
    InDialog(script, [](QWidget& dialog) {
        Pick(dialog, "PrinterCombo", 2);
        Press(dialog, "OKButton"); // the script answers No
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

} // namespace
} // namespace ls
