#include "gui/MainFormFixture.h"

#include <QMenu>
#include <QWheelEvent>

namespace ls {
namespace {

using test::ModalScript;
using test::Press;

constexpr const char* NextAtEnd = "information|Lodestar Advisor|There are no more topics in the list.";
constexpr const char* PreviousAtStart =
    "information|Lodestar Advisor|You are at the first topic in the list.";
constexpr const char* AskExit = "question|Lodestar Advisor|Exit without saving changes?|OKCancel";
constexpr const char* AskPlain = "question|Lodestar Advisor|The file you opened is not a Lodestar Book or "
                                 "Advice file. Do you want to view "
                                 "it as a single topic text file?|OKCancel";
constexpr const char* TheFileForm = "form|FileForm|Lodestar Advisor Open";

struct MainFormTest : MainFormFixture
{
    [[nodiscard]] bool IsDefault(const char* button) { return Get<QPushButton>(button).isDefault(); }

    void EnterInWindow() { QTest::keyClick(form.windowHandle(), Qt::Key_Return); }
};

TEST_F(MainFormTest, firstShowing_noBook_opensTheFileFormOnce)
{
    ModalScript script;
    script.Do([](QWidget& chooser) {
        test::TakePicture(chooser, "main-chooser");
        QTest::keyClick(&chooser, Qt::Key_Escape);
    });
    Start("");
    EXPECT_EQ(script.Seen(), Strings{TheFileForm});
    form.hide();
    test::ShowActive(form);
    Settle();
    EXPECT_EQ(script.Seen().size(), 1U);
    EXPECT_FALSE(Visible("VScroll1"));
    EXPECT_FALSE(Visible("XRButton"));
    EXPECT_FALSE(Visible("AdvisorButton"));
    EXPECT_FALSE(Visible("ExplainButton"));
    EXPECT_TRUE(IsDefault("GoToButton"));
    EXPECT_TRUE(Get<QAction>("ContentsItem").isChecked());
    EXPECT_FALSE(Get<QAction>("AlphaItem").isChecked());
}

TEST_F(MainFormTest, firstShowing_bookOfTheCommandLine_showsItWithoutAsking)
{
    Start(WriteThree());
    EXPECT_EQ(ItemTexts(), (Strings{"1. A", "2. B", "3. C"}));
    EXPECT_EQ(PaneText(), "a");
    EXPECT_TRUE(Visible("VScroll1"));
    EXPECT_TRUE(IsDefault("DoneButton"));
    EXPECT_FALSE(IsDefault("GoToButton"));
    EXPECT_EQ(Get<QComboBox>("TopicList").itemData(2).toInt(), 3);
}

TEST_F(MainFormTest, open_fileForm_opensTheChosenBook)
{
    Start(WriteThree());
    const std::string other =
        Write("Other.ida", test::CrLf({"LODESTAR BOOK V5.3 /URL=\"http://a.example\"", "[X]", "x"}));
    ModalScript script;
    Open(script, other);
    EXPECT_EQ(script.Seen(), Strings{TheFileForm});
    EXPECT_EQ(PaneText(), "x");
    EXPECT_TRUE(Visible("ExplainButton"));
    EXPECT_FALSE(global.book.LockBook);
    EXPECT_EQ(global.settings.RecentFiles[0], other);
    EXPECT_TRUE(QFile::exists(QString::fromStdString(Path("LSAdvisor.INI"))));
    Open(script, Path("Three.IDA"));
    EXPECT_FALSE(Visible("ExplainButton"));
}

TEST_F(MainFormTest, goTo_listChanged_clearsThePaneUntilEnter)
{
    Start(WriteThree());
    Select(1);
    EXPECT_EQ(PaneText(), "");
    EXPECT_FALSE(Visible("VScroll1"));
    EXPECT_TRUE(IsDefault("GoToButton"));
    EXPECT_FALSE(IsDefault("DoneButton"));
    EnterInWindow();
    EXPECT_EQ(PaneText(), "b");
    EXPECT_TRUE(IsDefault("DoneButton"));
    EXPECT_TRUE(form.isVisible());
    EnterInWindow();
    EXPECT_FALSE(form.isVisible());
}

TEST_F(MainFormTest, goTo_sameEntryPickedAgain_clearsThePaneToo)
{
    Start(WriteThree());
    auto& list = Get<QComboBox>("TopicList");
    Q_EMIT list.activated(0);
    EXPECT_EQ(PaneText(), "");
    Press(form, "GoToButton");
    EXPECT_EQ(PaneText(), "a");
}

TEST_F(MainFormTest, goTo_clickedByMouse_thenEnterCloses)
{
    Start(WriteThree());
    Select(2);
    Press(form, "GoToButton");
    EXPECT_EQ(PaneText(), "c");
    EnterInWindow();
    EXPECT_FALSE(form.isVisible());
}

TEST_F(MainFormTest, enter_otherButtonFocused_pressesThatButton)
{
    Start(WriteThree());
    Get<QPushButton>("NextButton").setFocus();
    EnterInWindow();
    EXPECT_EQ(PaneText(), "b");
    EXPECT_TRUE(form.isVisible());
}

TEST_F(MainFormTest, list_doubleClick_goesToTheTopic)
{
    Start(WriteThree());
    Select(1);
    auto& list = Get<QComboBox>("TopicList");
    QTest::mouseDClick(list.view()->viewport(), Qt::LeftButton);
    EXPECT_EQ(PaneText(), "b");
    Select(2);
    QTest::mouseDClick(&list, Qt::LeftButton);
    EXPECT_EQ(PaneText(), "c");
}

TEST_F(MainFormTest, list_wheelWithoutFocus_changesNothing)
{
    Start(WriteThree());
    auto& list = Get<QComboBox>("TopicList");
    const auto wheel = [&list] {
        QWheelEvent event(QPointF(5, 5), list.mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, -120),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&list, &event);
    };
    wheel();
    EXPECT_EQ(list.currentIndex(), 0);
    list.setFocus();
    wheel();
    EXPECT_EQ(list.currentIndex(), 1);
}

TEST_F(MainFormTest, nextAndPrevious_buttonsAndItems_moveAndTellTheEnds)
{
    Start(WriteThree());
    Press(form, "NextButton");
    EXPECT_EQ(PaneText(), "b");
    Press(form, "NextItem");
    EXPECT_EQ(PaneText(), "c");
    ModalScript script;
    script.Answer(Reply::Ok).Answer(Reply::Ok).Answer(Reply::Ok).Answer(Reply::Ok);
    Press(form, "NextButton");
    Press(form, "NextItem");
    EXPECT_EQ(PaneText(), "c");
    Press(form, "BackButton");
    Press(form, "PrevTopic");
    EXPECT_EQ(PaneText(), "a");
    Press(form, "BackButton");
    Press(form, "PrevTopic");
    EXPECT_EQ(PaneText(), "a");
    EXPECT_EQ(script.Seen(), (Strings{NextAtEnd, NextAtEnd, PreviousAtStart, PreviousAtStart}));
}

TEST_F(MainFormTest, indexMenu_marksTheOrderAndRefillsTheList)
{
    Start(Write("Order.IDA", test::CrLf({"LODESTAR BOOK V5.3", "[b]", "b", "[A]", "a"})));
    Press(form, "AlphaItem");
    EXPECT_TRUE(Get<QAction>("AlphaItem").isChecked());
    EXPECT_FALSE(Get<QAction>("ContentsItem").isChecked());
    EXPECT_EQ(ItemTexts(), (Strings{"A", "b"}));
    EXPECT_EQ(Get<QComboBox>("TopicList").currentIndex(), 1);
    EXPECT_EQ(PaneText(), "b");
    Press(form, "AlphaItem");
    EXPECT_TRUE(Get<QAction>("AlphaItem").isChecked()) << "picked again it stays checked";
    Press(form, "ContentsItem");
    EXPECT_FALSE(Get<QAction>("AlphaItem").isChecked());
    EXPECT_TRUE(Get<QAction>("ContentsItem").isChecked());
    EXPECT_EQ(ItemTexts(), (Strings{"1. b", "2. A"}));
}

TEST_F(MainFormTest, list_specialCharacters_areShownFromTheCodePage)
{
    Start(Write("Umlaut.IDA", "LODESTAR BOOK V5.3\r\n[\xDC"
                              "ber \x80]\r\ntext\r\n"));
    EXPECT_EQ(ItemTexts(), Strings{"1. \xC3\x9C"
                                   "ber \xE2\x82\xAC"});
}

TEST_F(MainFormTest, topicButtons_followTheTopic)
{
    Start(Write("Refs.IDA", test::CrLf({"LODESTAR BOOK V5.3", "[A]", "a", "<XREF TOPIC=B>", "note</XREF>",
                                        "[B]", "b", "[C]", "c", "<IXML>", "<LOGIC>"})));
    EXPECT_TRUE(Visible("XRButton"));
    EXPECT_FALSE(Visible("AdvisorButton"));
    EXPECT_TRUE(Get<QPushButton>("XRButton").isEnabled());
    test::TakePicture(form, "main-topic");
    Press(form, "NextButton");
    EXPECT_TRUE(Visible("XRButton")) << "A refers to it";
    Press(form, "NextButton");
    EXPECT_FALSE(Visible("XRButton"));
    EXPECT_TRUE(Visible("AdvisorButton"));
    EXPECT_TRUE(Get<QPushButton>("AdvisorButton").isEnabled());
    Select(0);
    EXPECT_FALSE(Visible("XRButton"));
    EXPECT_FALSE(Visible("AdvisorButton"));
}

TEST_F(MainFormTest, plainText_hidesTheListsControlsUntilABookComes)
{
    const std::string note = Write("Note.TXT", "plain words\r\n");
    const std::string book = WriteThree();
    ModalScript script;
    script.Answer(Reply::Ok);
    Start(note);
    EXPECT_EQ(script.Seen(), Strings{AskPlain});
    EXPECT_EQ(PaneText(), "plain words");
    test::TakePicture(form, "main-plain-text");
    const auto hidden = {"TopicLabel", "TopicList", "GoToButton", "ExportItem", "NextItem", "PrevTopic"};
    for (const char* name : hidden) {
        EXPECT_FALSE(Visible(name)) << name;
    }
    EXPECT_FALSE(Get<QMenu>("IndexMenu").menuAction()->isVisible());
    Open(script, book);
    for (const char* name : hidden) {
        EXPECT_TRUE(Visible(name)) << name;
    }
    EXPECT_TRUE(Get<QMenu>("IndexMenu").menuAction()->isVisible());
    EXPECT_EQ(PaneText(), "a");
}

TEST_F(MainFormTest, plainText_enterWithoutAVisibleDefaultButton_doesNothing)
{
    ModalScript script;
    script.Answer(Reply::Ok);
    Start(Write("Note.TXT", "one\r\ntwo\r\n"));
    Get<QScrollBar>("VScroll1").setValue(2);
    Get<ReadingPane>("MsgPic").setFocus();
    EnterInWindow();
    EXPECT_EQ(PaneText(), "two");
    EXPECT_TRUE(form.isVisible());
}

TEST_F(MainFormTest, newItem_accepted_clearsTheWindow)
{
    Start(WriteThree());
    ModalScript script;
    script.Answer(Reply::Ok);
    Press(form, "NewItem");
    EXPECT_EQ(PaneText(), "");
    EXPECT_EQ(ItemTexts(), Strings{});
    EXPECT_FALSE(Visible("VScroll1"));
    EXPECT_EQ(Get<QScrollBar>("VScroll1").value(), 1);
    EXPECT_FALSE(global.book.IsOpen());
}

TEST_F(MainFormTest, leave_changes_everyWayAsksAndFollowsTheAnswer)
{
    Start(WriteThree());
    global.book.BookChanged = true;
    ModalScript script;
    script.Answer(Reply::Cancel).Answer(Reply::Cancel).Answer(Reply::Cancel).Answer(Reply::Ok);
    Press(form, "DoneButton");
    EXPECT_TRUE(form.isVisible());
    Press(form, "ExitItem");
    EXPECT_TRUE(form.isVisible());
    form.close();
    EXPECT_TRUE(form.isVisible());
    Press(form, "ExitItem");
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(script.Seen(), (Strings{AskExit, AskExit, AskExit, AskExit}));
}

TEST_F(MainFormTest, programEnd_readErrorWhileScanning_closesTheWindowWithoutAsking)
{
    Start(WriteThree());
    const std::string big = Write("Big.IDA", "LODESTAR BOOK V5.3\r\n" + std::string(900000, 'x'));
    ModalScript script;
    script.Do([this, big](QWidget& chooser) {
        files.failure = error::DeviceIo;
        files.readsBefore = 2;
        ChooseFile(chooser, big);
    });
    script.Answer(Reply::Ok);
    Press(form, "OpenItem");
    EXPECT_EQ(script.Seen(),
              (Strings{TheFileForm,
                       "critical|Lodestar Advisor|Error reading book file with code 57: Device I/O error"}));
    EXPECT_EQ(global.end.Reason(), "error reading the book file");
    EXPECT_FALSE(form.isVisible());
}

} // namespace
} // namespace ls
