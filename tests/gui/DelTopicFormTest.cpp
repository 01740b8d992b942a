#include "authoring/DelTopicForm.h"

#include "authoring/TopicFlags.h"
#include "authoring/TopicTable.h"
#include "gui/Controls.h"
#include "gui/MainFormFixture.h"

#include <QListWidget>
#include <QTest>

#include <memory>
#include <string>

namespace ls {
namespace {

using test::Find;

struct DelTopicFormTest : testing::Test
{
    Book book;
    TopicFlags flags;
    std::unique_ptr<DelTopicForm> form;

    void Add(const Strings& names)
    {
        for (const std::string& name : names) {
            ASSERT_TRUE(AddTopic(book, name));
        }
        book.BookChanged = false;
    }

    void AddMany(int count)
    {
        for (int i = 1; i <= count; ++i) {
            ASSERT_TRUE(AddTopic(book, "Topic " + std::to_string(i)));
        }
    }

    void Load(bool alphabetic = false)
    {
        form = std::make_unique<DelTopicForm>(nullptr, book, flags, alphabetic);
        test::ShowActive(*form);
    }

    [[nodiscard]] QListWidget& List() const { return *Find<QListWidget>(*form, "TopicListBox"); }

    // "text@item data", with "+" before a checked entry.
    [[nodiscard]] Strings Entries() const
    {
        Strings entries;
        for (int row = 0; row < List().count(); ++row) {
            const QListWidgetItem* item = List().item(row);
            entries.push_back((item->checkState() == Qt::Checked ? "+" : "") + item->text().toStdString() +
                              "@" + std::to_string(item->data(Qt::UserRole).toInt()));
        }
        return entries;
    }

    void ClickBox(int row)
    {
        const QRect entry = List().visualItemRect(List().item(row));
        QTest::mouseClick(List().viewport(), Qt::LeftButton, Qt::NoModifier,
                          QPoint(entry.left() + 10, entry.center().y()));
    }
};

TEST_F(DelTopicFormTest, load_contentsOrder_listsEveryTopicWithItsNumberAndState)
{
    Add({"B", "Caf\xE9", "A"});
    book.TopicRecs(2).Deleted = true;
    Load();
    EXPECT_EQ(Entries(), (Strings{"1. B@1", "+2. Caf\xC3\xA9@2", "3. A@3"}));
}

TEST_F(DelTopicFormTest, load_120Topics_standsAtTheCurrentOne)
{
    AddMany(120);
    book.CurrentTopicNo = 77;
    book.TopicRecs(79).Deleted = true;
    Load();
    EXPECT_EQ(List().item(0)->text(), QStringLiteral("001. Topic 1"));
    EXPECT_EQ(List().item(119)->text(), QStringLiteral("120. Topic 120"));
    EXPECT_EQ(List().currentRow(), 76);
    EXPECT_TRUE(List().viewport()->rect().contains(List().visualItemRect(List().item(76))));
    test::TakePicture(*form, "DelTopicForm");
}

TEST_F(DelTopicFormTest, ok_removesAndRestoresAndTellsTheMainWindow)
{
    Add({"A", "B", "C"});
    book.TopicRecs(2).Deleted = true;
    Load();
    ClickBox(0);
    ClickBox(1);
    EXPECT_EQ(Entries(), (Strings{"+1. A@1", "2. B@2", "3. C@3"}));
    EXPECT_FALSE(book.TopicRecs(1).Deleted) << "only O.K. does it";
    test::Press(*form, "OKButton");
    EXPECT_FALSE(form->isVisible());
    EXPECT_TRUE(book.TopicRecs(1).Deleted);
    EXPECT_FALSE(book.TopicRecs(2).Deleted);
    EXPECT_FALSE(book.TopicRecs(3).Deleted);
    EXPECT_TRUE(flags.TopicListStale);
    EXPECT_TRUE(book.BookChanged);
}

TEST_F(DelTopicFormTest, ok_alphabeticOrder_goesByItemData)
{
    Add({"B", "A"});
    Load(true);
    ClickBox(0);
    test::Press(*form, "OKButton");
    EXPECT_FALSE(book.TopicRecs(1).Deleted);
    EXPECT_TRUE(book.TopicRecs(2).Deleted);
}

TEST_F(DelTopicFormTest, cancelAndEscape_changeNothing)
{
    Add({"A", "B"});
    for (const bool byKey : {false, true}) {
        Load();
        ClickBox(0);
        if (byKey) {
            QTest::keyClick(form->windowHandle(), Qt::Key_Escape);
        } else {
            test::Press(*form, "CancelButton");
        }
        EXPECT_FALSE(form->isVisible());
        EXPECT_FALSE(book.TopicRecs(1).Deleted);
        EXPECT_FALSE(flags.TopicListStale);
        EXPECT_FALSE(book.BookChanged);
    }
}

TEST_F(DelTopicFormTest, keyboard_spaceChecksTheEntryAndEnterIsOk)
{
    Add({"A", "B", "C"});
    book.CurrentTopicNo = 1;
    Load();
    QTest::keyClick(form->windowHandle(), Qt::Key_Down);
    QTest::keyClick(form->windowHandle(), Qt::Key_Space);
    QTest::keyClick(form->windowHandle(), Qt::Key_Return);
    EXPECT_FALSE(form->isVisible());
    EXPECT_FALSE(book.TopicRecs(1).Deleted);
    EXPECT_TRUE(book.TopicRecs(2).Deleted);
}

struct DelTopicItemTest : MainFormFixture
{
};

TEST_F(DelTopicItemTest, throughTheMainWindow_theListIsRefilledAndTheRemovedTopicLeaves)
{
    Start(WriteThree());
    test::ModalScript script;
    script.Do([](QWidget& window) {
        Find<QListWidget>(window, "TopicListBox")->item(0)->setCheckState(Qt::Checked);
        test::Press(window, "OKButton");
    });
    test::Press(form, "DelTopicItem");
    EXPECT_EQ(script.Seen(), Strings{"form|DelTopicForm|Topic Deletion"});
    EXPECT_EQ(ItemTexts(), (Strings{"1. B", "2. C"}));
    EXPECT_EQ(PaneText(), "");
    EXPECT_EQ(Get<QComboBox>("TopicList").currentIndex(), -1);
    script.Do([](QWidget& window) {
        EXPECT_EQ(Find<QListWidget>(window, "TopicListBox")->item(0)->checkState(), Qt::Checked);
        Find<QListWidget>(window, "TopicListBox")->item(0)->setCheckState(Qt::Unchecked);
        test::Press(window, "OKButton");
    });
    test::Press(form, "DelTopicItem");
    EXPECT_EQ(ItemTexts(), (Strings{"1. A", "2. B", "3. C"}));
    test::Press(form, "NextButton");
    EXPECT_EQ(PaneText(), "a");
}

TEST_F(DelTopicItemTest, alphabeticOrder_theFormFollowsTheMainWindow)
{
    Start(WriteThree());
    test::Press(form, "AlphaItem");
    test::ModalScript script;
    script.Do([](QWidget& window) {
        EXPECT_EQ(Find<QListWidget>(window, "TopicListBox")->item(0)->text(), QStringLiteral("A"));
        test::Press(window, "CancelButton");
    });
    test::Press(form, "DelTopicItem");
    EXPECT_EQ(PaneText(), "a");
}

} // namespace
} // namespace ls
