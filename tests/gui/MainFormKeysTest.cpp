// The keys of the main window, pressed in the real one.

#include "gui/MainFormFixture.h"
#include "support/RowName.h"

namespace ls {
namespace {

using test::ModalScript;

struct MainFormKeysTest : MainFormFixture
{
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(form.windowHandle(), key, modifiers);
    }

    [[nodiscard]] bool Enabled(const char* item)
    {
        return form.findChild<QAction*>(QLatin1String(item))->isEnabled();
    }
};

TEST_F(MainFormKeysTest, altLeftAndRight_goBackAndForwardAmongTheTopicsShown)
{
    Start(WriteThree());
    EXPECT_FALSE(Enabled("GoBackItem"));
    Select(2);
    test::Press(form, "GoToButton");
    EXPECT_EQ(PaneText(), "c");
    EXPECT_TRUE(Enabled("GoBackItem"));
    EXPECT_FALSE(Enabled("GoForwardItem"));
    Key(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(PaneText(), "a");
    EXPECT_EQ(Get<QComboBox>("TopicList").currentIndex(), 0);
    EXPECT_FALSE(Enabled("GoBackItem"));
    EXPECT_TRUE(Enabled("GoForwardItem"));
    Key(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(PaneText(), "c");
    Key(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(PaneText(), "c") << "there is nothing ahead, and no message";
}

TEST_F(MainFormKeysTest, items_doTheSame)
{
    Start(WriteThree());
    test::Press(form, "NextItem");
    test::Press(form, "GoBackItem");
    EXPECT_EQ(PaneText(), "a");
    test::Press(form, "GoForwardItem");
    EXPECT_EQ(PaneText(), "b");
}

TEST_F(MainFormKeysTest, ctrlPageKeys_goAlongTheList)
{
    Start(WriteThree());
    Key(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(PaneText(), "b");
    Key(Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(PaneText(), "a");
}

TEST_F(MainFormKeysTest, altLetters_pressTheButtonsWithoutCaption)
{
    Start(WriteThree());
    Key(Qt::Key_X, Qt::AltModifier); // acts a moment later, so that the user sees the button go down
    EXPECT_TRUE(test::WaitFor([this] { return PaneText() == "b"; }));
    Key(Qt::Key_B, Qt::AltModifier);
    EXPECT_TRUE(test::WaitFor([this] { return PaneText() == "a"; }));
}

TEST_F(MainFormKeysTest, ctrlG_leadsToTheTopicList)
{
    Start(WriteThree());
    Get<QWidget>("MsgPic").setFocus();
    Key(Qt::Key_G, Qt::ControlModifier);
    EXPECT_EQ(form.focusWidget(), &Get<QComboBox>("TopicList"));
    EXPECT_EQ(PaneText(), "a") << "the topic stays until another one is picked";
    Get<QWidget>("DoneButton").setFocus();
    Key(Qt::Key_T, Qt::AltModifier);
    EXPECT_EQ(form.focusWidget(), &Get<QComboBox>("TopicList")) << "so does the label's letter";
}

TEST_F(MainFormKeysTest, ctrlG_plainTextWithoutList_doesNothing)
{
    ModalScript script;
    script.Answer(Reply::Ok);
    Start(Write("Plain.TXT", "plain\r\n"));
    Get<QWidget>("MsgPic").setFocus();
    Key(Qt::Key_G, Qt::ControlModifier);
    EXPECT_EQ(form.focusWidget(), &Get<QWidget>("MsgPic"));
}

struct FormKey
{
    const char* name;
    Qt::Key key;
    const char* seen;
};

struct FormKeyTest : MainFormKeysTest, testing::WithParamInterface<FormKey>
{
};

TEST_P(FormKeyTest, ctrlLetter_opensItsForm)
{
    Start(WriteThree());
    global.book.LockBook = true; // otherwise saving asks first
    ModalScript script;
    script.Escape();
    Key(GetParam().key, Qt::ControlModifier);
    EXPECT_EQ(script.Seen(), Strings{GetParam().seen});
}

INSTANTIATE_TEST_SUITE_P(Keys, FormKeyTest,
                         testing::Values(FormKey{"open", Qt::Key_O, "form|FileForm|Lodestar Advisor Open"},
                                         FormKey{"save", Qt::Key_S, "form|FileForm|Lodestar Advisor Save"},
                                         FormKey{"print", Qt::Key_P, "form|PrtForm|LSAdvisor Print"}),
                         test::RowName());

TEST_F(MainFormKeysTest, f1_showsTheHelpPage)
{
    processes.programFolder = Path("");
    const std::string page = Write("Lodestar_Reader.htm", "");
    registry.RegisterForUser(".HTM", "page", "/usr/bin/web");
    MainForm helped(global, seams, {*volumes, dde, registry, printer});
    global.book.BookPath = WriteThree(); // otherwise the program asks for a book
    test::ShowActive(helped);
    QTest::keyClick(helped.windowHandle(), Qt::Key_F1);
    EXPECT_EQ(processes.started, Strings{"/usr/bin/web " + page});
}

} // namespace
} // namespace ls
