// The Save item of the real main window, on real files.

#include "gui/MainFormFixture.h"

namespace ls {
namespace {

using test::ModalScript;
using test::Press;

constexpr const char* Saved = "information|Lodestar Advisor|File saved";
constexpr const char* AskShared =
    "warning|Lodestar Advisor|You did not have the input file locked for editing.  It is best to save only "
    "if "
    "you are sure that no other editing was started on this file since you opened it.  Continue to "
    "save?|OKCancel";
constexpr const char* AskType = "question|Lodestar Advisor|You did not specify a filetype as part of the "
                                "name. Would you like me to add a "
                                "type of .IDA?|YesNo";
constexpr const char* TheFileForm = "form|FileForm|Lodestar Advisor Save";

struct SaveItemFormTest : MainFormFixture
{
    // Opens "Three.IDA", locked for editing, and edits its second topic.
    void StartEdited()
    {
        Start(WriteThree());
        ModalScript script;
        script.Do([this](QWidget& chooser) {
            test::Find<QAbstractButton>(chooser, "ExclusiveOption")->click();
            ChooseFile(chooser, Path("Three.IDA"));
        });
        Press(form, "OpenItem");
        global.book.TopicRecs(2).Text = "edited\r\n";
        global.book.BookChanged = true;
    }

    // Opens "Long.IDA" of 8 MB, locked for editing, and marks it as changed.
    void StartLong()
    {
        std::string book = "LODESTAR BOOK V5.3\r\n[First]\r\nf\r\n";
        for (int i = 0; i < 100; ++i) {
            book += "[T]\r\n" + std::string(80000, 'x') + "\r\n";
        }
        Start(Write("Long.IDA", book));
        global.book.LockBook = true;
        global.book.BookChanged = true;
    }

    static constexpr const char* EditedBook =
        "LODESTAR BOOK V5.3\r\n[A]\r\na\r\n[B]\r\nedited\r\n\r\n[C]\r\nc\r\n";
};

TEST_F(SaveItemFormTest, save_proposedName_isSavedAndOpen)
{
    StartEdited();
    ModalScript script;
    script
        .Do([this](QWidget& chooser) {
            EXPECT_EQ(test::Find<QComboBox>(chooser, "FilenameBox")->currentText().toStdString(),
                      Path("Three (001).IDA"));
            EXPECT_EQ(test::Find<QComboBox>(chooser, "FilenameBox")->count(), 0);
            EXPECT_EQ(test::Find<QLabel>(chooser, "TitleLabel")->text().remove(u'&'),
                      QStringLiteral("Save the book as:"));
            EXPECT_FALSE(test::Find<QWidget>(chooser, "SharingFrame")->isVisible());
            test::TakePicture(chooser, "main-save");
            Press(chooser, "OKButton");
        })
        .Answer(Reply::Ok);
    Press(form, "SaveItem");
    EXPECT_EQ(script.Seen(), (Strings{TheFileForm, Saved}));
    EXPECT_EQ(Read("Three (001).IDA"), EditedBook);
    EXPECT_EQ(Read("Three (001).IDA.part"), "(none)");
    EXPECT_EQ(global.book.BookPath, Path("Three (001).IDA"));
    EXPECT_FALSE(global.book.BookChanged);
    EXPECT_EQ(ItemTexts(), (Strings{"1. A", "2. B", "3. C"}));
    EXPECT_EQ(PaneText(), "a");
    Press(form, "NextItem");
    EXPECT_EQ(PaneText(), "edited|");
    std::unique_ptr<BookFile> elsewhere;
    EXPECT_EQ(files.OpenForReading(Path("Three (001).IDA"), Sharing::Shared, elsewhere).number,
              error::PermissionDenied)
        << "it is locked for editing";
    EXPECT_EQ(files.OpenForReading(Path("Three.IDA"), Sharing::Locked, elsewhere), FileError{})
        << "the old one is free";
}

TEST_F(SaveItemFormTest, save_openedSharedAndNoType_asksBoth)
{
    Start(WriteThree());
    ModalScript script;
    script.Answer(Reply::Ok)
        .Do([](QWidget& chooser) { ChooseFile(chooser, "Out"); })
        .Answer(Reply::Yes)
        .Answer(Reply::Ok);
    Press(form, "SaveItem");
    EXPECT_EQ(script.Seen(), (Strings{AskShared, TheFileForm, AskType, Saved}));
    EXPECT_EQ(Read("Out.IDA"), Read("Three.IDA"));
    EXPECT_TRUE(global.book.LockBook);
}

TEST_F(SaveItemFormTest, save_slowDisk_showsABoxWhoseCancelRemovesThePart)
{
    StartLong();
    files.pause = 60;
    ModalScript script;
    script.Do([](QWidget& chooser) { ChooseFile(chooser, "Out.IDA"); }).Do([this](QWidget& box) {
        EXPECT_EQ(box.objectName(), QStringLiteral("ProgressBox"));
        EXPECT_EQ(box.findChild<QLabel*>()->text(), QStringLiteral("Writing Out.IDA"));
        EXPECT_NE(Read("Out.IDA.part"), "(none)");
        auto* cancel = box.findChild<QPushButton*>();
        ASSERT_NE(cancel, nullptr);
        test::TakePicture(box, "main-save-progress");
        QTest::mouseClick(cancel, Qt::LeftButton);
    });
    Press(form, "SaveItem");
    files.pause = 0;
    EXPECT_EQ(script.Seen(), (Strings{TheFileForm, "form|ProgressBox|Lodestar Advisor"}));
    EXPECT_EQ(Read("Out.IDA"), "(none)");
    EXPECT_EQ(Read("Out.IDA.part"), "(none)");
    EXPECT_EQ(global.book.BookPath, Path("Long.IDA"));
    EXPECT_TRUE(global.book.BookChanged);
}

TEST_F(SaveItemFormTest, save_slowDiskWaitedFor_isSavedAndTheBoxGoes)
{
    StartLong();
    files.pause = 40;
    ModalScript script;
    QPointer<QWidget> progress;
    script.Do([](QWidget& chooser) { ChooseFile(chooser, "Out.IDA"); })
        .Do([&](QWidget& box) {
            progress = &box;
            EXPECT_EQ(QApplication::activeModalWidget(), &box) << "nothing else can be worked meanwhile";
            files.pause = 0;
        })
        .Do([&](QWidget& box) {
            EXPECT_TRUE(progress.isNull());
            QTest::keyClick(&box, Qt::Key_Return);
        });
    Press(form, "SaveItem");
    EXPECT_EQ(script.Seen(), (Strings{TheFileForm, "form|ProgressBox|Lodestar Advisor", Saved}));
    EXPECT_EQ(Read("Out.IDA"), Read("Long.IDA"));
    EXPECT_FALSE(global.book.BookChanged);
}

} // namespace
} // namespace ls
