// The Add Topic item of the real main window.

#include "gui/MainFormFixture.h"

#include <QLineEdit>

namespace ls {
namespace {

struct AddTopicItemTest : MainFormFixture
{
};

TEST_F(AddTopicItemTest, newName_isListedLastSelectedAndShownWithItsText)
{
    Start(WriteThree());
    test::ModalScript script;
    script.Do([](QWidget& box) {
        box.findChild<QLineEdit*>()->setText(QStringLiteral("Caf\u00E9"));
        QTest::keyClick(&box, Qt::Key_Return);
    });
    script.Do([](QWidget& editor) {
        test::Type(editor, "MainTxBox", QStringLiteral("new"));
        test::Press(editor, "SaveButton");
    });
    test::Press(form, "AddTopicItem");
    EXPECT_EQ(ItemTexts(), (Strings{"1. A", "2. B", "3. C", "4. Caf\xC3\xA9"}));
    EXPECT_EQ(Get<QComboBox>("TopicList").currentIndex(), 3);
    EXPECT_EQ(PaneText(), "new");
    EXPECT_EQ(script.Seen(),
              (Strings{"input|Lodestar Advisor|Topic Name:|", "form|TxEdForm|Topic Text Edit"}));
    test::TakePicture(form, "AddTopic");
    global.book.BookChanged = false; // otherwise the window asks when it closes
}

TEST_F(AddTopicItemTest, nameWithAPastedLineEnd_isOneLine)
{
    Start(WriteThree());
    test::ModalScript script;
    script.Do([](QWidget& box) {
        box.findChild<QLineEdit*>()->setText(QStringLiteral("One\nTwo\n"));
        QTest::keyClick(&box, Qt::Key_Return);
    });
    script.Escape(); // closes the text editor
    test::Press(form, "AddTopicItem");
    EXPECT_EQ(global.book.TopicNames(4), "[One Two]");
    global.book.BookChanged = false;
}

} // namespace
} // namespace ls
