// The windows in the pictures of the help pages, with the sample books. scripts/update-pictures sets
// LS_PICTURES; then this test takes the pictures.

#include "files/OpenForm.h"
#include "gui/MainFormFixture.h"
#include "reader/window/AskRecoveryBox.h"
#include "recovery/FindJournals.h"

namespace ls {
namespace {

using test::ModalScript;
using test::Press;
using test::TakePicture;

struct HelpPictures : MainFormFixture
{
    // Copies the sample, so that the original does not change.
    std::string Sample(const char* name)
    {
        const std::string path = Path(name);
        EXPECT_TRUE(QFile::copy(QStringLiteral(LS_SAMPLES "/") + QString::fromLatin1(name),
                                QString::fromStdString(path)));
        return path;
    }

    // Makes the pictures show the same folder for everybody.
    void PretendFolder()
    {
        processes.programFolder = Path("");
        Write("Lodestar_Open.htm", "");
        global.book.WorkDir = "/home/ann/books";
        global.settings.RecentFileCount = 1;
        global.settings.RecentFiles[0] = "Guide.IDA";
    }

    // Presses a button or item and takes a picture of the window that opens.
    Strings Picture(const char* control, const char* name, const std::function<void(QWidget&)>& before = {})
    {
        ModalScript script;
        script.Do([&](QWidget& window) {
            if (before) {
                before(window);
            }
            TakePicture(window, name);
            QTest::keyClick(&window, Qt::Key_Escape);
        });
        Press(form, control);
        return script.Seen();
    }
};

TEST_F(HelpPictures, reader_cross_references_editor_properties)
{
    Start(Sample("Guide.IDA"), "Reading and Scrolling");
    EXPECT_NE(PaneText().find("The scroll bar"), std::string::npos);
    TakePicture(form, "reader");
    EXPECT_EQ(Picture("XRButton", "cross-reference",
                      [](QWidget& window) {
                          auto* list = test::Find<QAbstractItemView>(window, "ToList");
                          list->setCurrentIndex(list->model()->index(1, 0));
                      }),
              Strings{"form|XrefForm|LSAdvisor Cross Reference"});
    EXPECT_EQ(Picture("EdTextItem", "editor"), Strings{"form|TxEdForm|Topic Text Edit"});
    EXPECT_EQ(Picture("EditPropertiesOption", "properties"),
              Strings{"form|InfoForm|LSAdvisor File Information"});
}

TEST_F(HelpPictures, advisor)
{
    Start(Sample("Advice.IDA"), "A Sick Houseplant");
    EXPECT_EQ(Picture("AdvisorButton", "question"),
              Strings{"form|AdvForm|Lodestar Advisor - Questions and Answers"});
}

TEST_F(HelpPictures, rules)
{
    Start(Sample("Advice.IDA"), "A Sick Houseplant");
    EXPECT_EQ(Picture("AdviceEdItem", "rules",
                      [](QWidget& window) {
                          auto* variables = test::Find<QComboBox>(window, "VarCombo");
                          variables->setFocus();
                          QTest::keyClick(variables, Qt::Key_Down);
                          EXPECT_GT(test::Find<QComboBox>(window, "AnswerCombo")->count(), 1);
                      }),
              Strings{"form|LgEdForm|Topic Logic Edit"});
}

TEST_F(HelpPictures, print)
{
    printer.names = {"Office", "Print to PDF"};
    processes.programFolder = Path("");
    Write("LSIdeas_Print_Parameters.htm", "");
    Start(Sample("Guide.IDA"));
    EXPECT_EQ(Picture("PrintItem", "print"), Strings{"form|PrtForm|LSAdvisor Print"});
}

TEST_F(HelpPictures, open_and_save)
{
    Start(Sample("Guide.IDA"));
    PretendFolder();
    EXPECT_EQ(Picture("OpenItem", "open"), Strings{"form|FileForm|Lodestar Advisor Open"});
    global.book.LockBook = true;
    global.book.BookPath = "Guide.IDA";
    EXPECT_EQ(Picture("SaveItem", "save"), Strings{"form|FileForm|Lodestar Advisor Save"});
}

TEST_F(HelpPictures, recover)
{
    JournalReading reading{JournalState::Whole, {}};
    reading.journal.book = JournalBook{"/home/ann/books/Guide.IDA", 1, true};
    ModalScript script;
    script.Do([](QWidget& box) {
        TakePicture(box, "recover");
        QTest::keyClick(&box, Qt::Key_Escape);
    });
    EXPECT_EQ(AskRecoveryBox(&form, RecoveryQuestion(reading, JournalFit::Fits)), RecoveryChoice::Later);
}

TEST_F(HelpPictures, selector)
{
    test::TestSeams world;
    world.files["/home/ann/books/Advice.IDA"] = "";
    world.files["/home/ann/books/Guide.IDA"] = "";
    world.files["/home/ann/books/Guide (001).IDA"] = "";
    world.files["/home/ann/books/Drafts/Garden.IDA"] = "";
    FileDialog dialog;
    dialog.FileMode = "R";
    dialog.ChosenFullPath = "/home/ann/books/*.IDA";
    OpenForm selector(nullptr, dialog, world.Get(), *volumes, "");
    test::ShowActive(selector);
    EXPECT_EQ(test::Find<QAbstractItemView>(selector, "FileListBox")->model()->rowCount(), 3);
    TakePicture(selector, "selector");
}

} // namespace
} // namespace ls
