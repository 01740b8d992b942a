#include "authoring/MoveTopicsForm.h"

#include "authoring/TopicFlags.h"
#include "authoring/TopicTable.h"
#include "gui/Controls.h"
#include "gui/MainFormFixture.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include <memory>
#include <string>

namespace ls {
namespace {

using test::Find;

struct MoveTopicsFormTest : testing::Test
{
    test::TestSeams world;
    Book book;
    TopicFlags flags;
    std::unique_ptr<MoveTopicsForm> form;

    void Load(const Strings& names)
    {
        for (const std::string& name : names) {
            ASSERT_TRUE(AddTopic(book, name));
        }
        book.BookChanged = false;
        Show();
    }

    void Show()
    {
        form = std::make_unique<MoveTopicsForm>(nullptr, book, flags, world.Get());
        test::ShowActive(*form);
    }

    [[nodiscard]] QListWidget& From() const { return *Find<QListWidget>(*form, "MoveFromList"); }
    [[nodiscard]] QListWidget& To() const { return *Find<QListWidget>(*form, "MoveToList"); }
    [[nodiscard]] QString Instruction() const
    {
        return Find<QLabel>(*form, "InstructionLabel")->text().remove(u'&');
    }
    [[nodiscard]] QString Caption() const
    {
        return Find<QPushButton>(*form, "DoneButton")->text().remove(u'&');
    }
    void Done() { test::Press(*form, "DoneButton"); }
    Strings Boxes() { return world.messages.Take(); }

    static Strings Entries(const QListWidget& list)
    {
        Strings entries;
        for (int row = 0; row < list.count(); ++row) {
            entries.push_back(list.item(row)->text().toStdString() + "@" +
                              std::to_string(list.item(row)->data(Qt::UserRole).toInt()));
        }
        return entries;
    }

    static void Click(QListWidget& list, int row, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::mouseClick(list.viewport(), Qt::LeftButton, modifiers,
                          list.visualItemRect(list.item(row)).center());
    }

    [[nodiscard]] std::string Order() const
    {
        std::string order;
        for (int i = 1; i <= book.TopicCount; ++i) {
            order += book.TopicNames(i);
        }
        return order;
    }
};

TEST_F(MoveTopicsFormTest, load_nothingToMove_saysSoAndHidesTheButton)
{
    Load({"A"});
    book.TopicRecs(1).Deleted = true;
    flags.TopicsRearranged = true; // left from the last use of the form
    Show();
    EXPECT_EQ(Instruction(), QStringLiteral("There are no topics available to move."));
    EXPECT_FALSE(Find<QPushButton>(*form, "DoneButton")->isVisible());
    EXPECT_EQ(From().count(), 0);
    QTest::keyClick(form->windowHandle(), Qt::Key_Return);
    test::TakePicture(*form, "MoveTopicsNone");
    if (form->isVisible()) {
        test::Press(*form, "CancelButton");
    }
    EXPECT_FALSE(form->isVisible());
    EXPECT_FALSE(flags.TopicsRearranged);
}

TEST_F(MoveTopicsFormTest, next_nothingOrEverythingSelected_isRefused)
{
    Load({"A", "B"});
    Done();
    EXPECT_EQ(Boxes(), Strings{"exclamation|Lodestar Advisor|You must select at least one topic to move."});
    From().setFocus();
    QTest::keyClick(form->windowHandle(), Qt::Key_A, Qt::ControlModifier);
    Done();
    EXPECT_EQ(Boxes(), Strings{"exclamation|Lodestar Advisor|You may not select all the topics at once."});
    EXPECT_EQ(Caption(), QStringLiteral("Next"));
    EXPECT_TRUE(form->isVisible());
}

TEST_F(MoveTopicsFormTest, next_goesToStepTwo)
{
    Load({"A", "B", "C", "D"});
    book.TopicRecs(4).Deleted = true;
    Show();
    Click(From(), 1);
    test::TakePicture(*form, "MoveTopicsStep1");
    Done();
    EXPECT_EQ(Entries(To()), (Strings{"** Start **@0", "A@1", "C@3"}));
    EXPECT_EQ(Instruction(), QStringLiteral("Step 2: Pick the topic that the item(s) will be moved after."));
    EXPECT_EQ(Caption(), QStringLiteral("Done"));
    EXPECT_TRUE(To().isVisible());
    EXPECT_FALSE(From().isVisible());
    EXPECT_TRUE(To().hasFocus());
    test::TakePicture(*form, "MoveTopicsStep2");
}

TEST_F(MoveTopicsFormTest, done_noTargetSelected_isRefused)
{
    Load({"A", "B"});
    Click(From(), 1);
    Done();
    Done();
    EXPECT_EQ(Boxes(), Strings{"exclamation|Lodestar Advisor|You must select a topic"});
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(Order(), "[A][B]");
    EXPECT_FALSE(book.BookChanged);
}

TEST_F(MoveTopicsFormTest, done_movesBehindTheChosenTopicAndCloses)
{
    Load({"A", "B", "C", "D"});
    Click(From(), 3);
    Click(From(), 0, Qt::ControlModifier);
    Done();
    Click(To(), 1);
    Done();
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(Order(), "[B][A][D][C]");
    EXPECT_TRUE(flags.TopicsRearranged);
    EXPECT_TRUE(book.BookChanged);
    EXPECT_EQ(Boxes(), Strings{});
}

TEST_F(MoveTopicsFormTest, doubleClickOnATarget_isDone)
{
    Load({"A", "B"});
    Click(From(), 1);
    Done();
    const QPoint start = To().visualItemRect(To().item(0)).center();
    QTest::mouseClick(To().viewport(), Qt::LeftButton, Qt::NoModifier, start);
    QTest::mouseDClick(To().viewport(), Qt::LeftButton, Qt::NoModifier, start);
    EXPECT_EQ(Order(), "[B][A]");
    EXPECT_FALSE(form->isVisible());
}

TEST_F(MoveTopicsFormTest, keyboard_bothSteps)
{
    Load({"A", "B", "C"});
    QTest::keyClick(form->windowHandle(), Qt::Key_End);
    QTest::keyClick(form->windowHandle(), Qt::Key_Return);
    ASSERT_TRUE(To().isVisible());
    QTest::keyClick(form->windowHandle(), Qt::Key_Space); // the list has the focus, but no selection yet
    QTest::keyClick(form->windowHandle(), Qt::Key_Return);
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(Order(), "[C][A][B]");
}

TEST_F(MoveTopicsFormTest, cancelAndEscape_inBothSteps_changeNothing)
{
    Load({"A", "B"});
    for (const bool second : {false, true}) {
        for (const bool byKey : {false, true}) {
            Show();
            Click(From(), 1);
            if (second) {
                Done();
                Click(To(), 0);
            }
            if (byKey) {
                QTest::keyClick(form->windowHandle(), Qt::Key_Escape);
            } else {
                test::Press(*form, "CancelButton");
            }
            EXPECT_FALSE(form->isVisible());
            EXPECT_EQ(Order(), "[A][B]");
            EXPECT_FALSE(flags.TopicsRearranged);
            EXPECT_FALSE(book.BookChanged);
        }
    }
}

TEST_F(MoveTopicsFormTest, thirtyThousandTopics_everyOtherOneIsMoved)
{
    GrowTopicTables(book, 30000);
    for (int i = 1; i <= 30000; ++i) {
        book.TopicNames(i) = "[" + std::to_string(i) + "]";
    }
    book.TopicCount = 30000;
    Show();
    QItemSelection selection;
    for (int row = 1; row < 30000; row += 2) {
        const QModelIndex entry = From().model()->index(row, 0);
        selection.append(QItemSelectionRange(entry));
    }
    From().selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    Done();
    EXPECT_EQ(To().count(), 15001);
    Click(To(), 0);
    Done();
    EXPECT_EQ(book.TopicNames(1), "[2]");
    EXPECT_EQ(book.TopicNames(15000), "[30000]");
    EXPECT_EQ(book.TopicNames(15001), "[1]");
    EXPECT_EQ(book.TopicNames(30000), "[29999]");
}

struct ReorderItemTest : MainFormFixture
{
    // Moves the topic of that row to the start.
    static void MoveToStart(test::ModalScript& script, int row)
    {
        script.Do([row](QWidget& window) {
            Find<QListWidget>(window, "MoveFromList")->setCurrentRow(row);
            test::Press(window, "DoneButton");
            Find<QListWidget>(window, "MoveToList")->setCurrentRow(0);
            test::Press(window, "DoneButton");
        });
    }
};

TEST_F(ReorderItemTest, contentsOrder_theListIsRefilledAndFollowsTheTopicOnShow)
{
    Start(WriteThree());
    test::ModalScript script;
    MoveToStart(script, 2);
    test::Press(form, "ReorderItem");
    EXPECT_EQ(script.Seen(), Strings{"form|MoveTopicsForm|Move Topics"});
    EXPECT_EQ(ItemTexts(), (Strings{"1. C", "2. A", "3. B"}));
    EXPECT_EQ(Get<QComboBox>("TopicList").currentText(), QStringLiteral("2. A"));
    EXPECT_EQ(PaneText(), "a");
    test::Press(form, "BackButton");
    EXPECT_EQ(PaneText(), "c");
}

TEST_F(ReorderItemTest, alphabeticOrder_asksAndYesChecksContentsOrder)
{
    Start(WriteThree());
    test::Press(form, "AlphaItem");
    test::ModalScript script;
    MoveToStart(script, 2);
    script.Answer(Reply::Yes);
    test::Press(form, "ReorderItem");
    EXPECT_EQ(
        script.Seen().back(),
        "question|Lodestar Advisor|The topics have been rearranged.  Do you want to display the book in "
        "table-of-contents order now?  If not, click No to show the topics in alphabetical order.|YesNo");
    EXPECT_TRUE(Get<QAction>("ContentsItem").isChecked());
    EXPECT_FALSE(Get<QAction>("AlphaItem").isChecked());
    EXPECT_EQ(ItemTexts(), (Strings{"1. C", "2. A", "3. B"}));
}

} // namespace
} // namespace ls
