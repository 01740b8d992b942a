#include "reader/window/XrefForm.h"

#include "book/Book.h"
#include "gui/Controls.h"
#include "gui/MainFormFixture.h"
#include "support/TestSeams.h"

#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QTest>

namespace ls {
namespace {

using test::Find;

struct XrefFormTest : testing::Test
{
    test::TestSeams world;
    Book book;
    std::unique_ptr<XrefForm> form;

    void Add(const char* from, const char* to, const char* note)
    {
        ASSERT_TRUE(book.XrefCount.Add());
        book.Xrefs(book.XrefCount) = {from, to, note};
    }

    void Load()
    {
        book.CurrentTopicName = "[A]";
        form = std::make_unique<XrefForm>(nullptr, book, world.Get());
        test::ShowActive(*form);
    }

    void LoadWithThree()
    {
        Add("A", "B", "to B");
        Add("A", "C\xE9", "to C\r\nin two lines <B>");
        Add("D", "A", "from D");
        Load();
    }

    void ClickRow(const char* list, int row)
    {
        auto* widget = Find<QListWidget>(*form, list);
        QTest::mouseClick(widget->viewport(), Qt::LeftButton, Qt::NoModifier,
                          widget->visualItemRect(widget->item(row)).center());
    }

    [[nodiscard]] QString Note() const { return Find<QPlainTextEdit>(*form, "NoteBox")->toPlainText(); }
    [[nodiscard]] bool Visible(const char* name) const { return Find<QWidget>(*form, name)->isVisible(); }
};

TEST_F(XrefFormTest, load_showsTitleAndLists)
{
    LoadWithThree();
    EXPECT_EQ(form->windowTitle(), QStringLiteral("LSAdvisor Cross Reference"));
    EXPECT_EQ(Find<QLabel>(*form, "TitleLabel")->text(), QStringLiteral("Cross Reference Topics for: A"));
    auto* to = Find<QListWidget>(*form, "ToList");
    ASSERT_EQ(to->count(), 2);
    EXPECT_EQ(to->item(1)->text(), QStringLiteral("C\u00E9"));
    EXPECT_EQ(to->item(1)->data(Qt::UserRole).toInt(), 2);
    auto* in = Find<QListWidget>(*form, "InList");
    ASSERT_EQ(in->count(), 1);
    EXPECT_EQ(in->item(0)->text(), QStringLiteral("D"));
    EXPECT_EQ(in->item(0)->data(Qt::UserRole).toInt(), 3);
    EXPECT_EQ(Note(), QString());
    test::TakePicture(*form, "XrefForm");
}

TEST_F(XrefFormTest, noReferences_hidesListsLabelsAndGoButtons)
{
    Load();
    for (const char* name : {"ToList", "ToListLabel", "ToGoButton", "InList", "InListLabel", "InGoButton"}) {
        EXPECT_FALSE(Visible(name)) << name;
    }
    for (const char* name : {"TitleLabel", "NoteBox", "CloseButton", "Line1"}) {
        EXPECT_TRUE(Visible(name)) << name;
    }
}

TEST_F(XrefFormTest, oneDirectionOnly_hidesTheOther)
{
    Add("A", "B", "n");
    Load();
    EXPECT_TRUE(Visible("ToList"));
    EXPECT_FALSE(Visible("InList"));
    EXPECT_FALSE(Visible("InGoButton"));
}

TEST_F(XrefFormTest, clickEntry_showsItsNoteAsItStands)
{
    LoadWithThree();
    ClickRow("ToList", 1);
    EXPECT_EQ(Note(), QStringLiteral("to C\nin two lines <B>"));
    ClickRow("InList", 0);
    EXPECT_EQ(Note(), QStringLiteral("from D"));
    ClickRow("ToList", 1);
    EXPECT_EQ(Note(), QStringLiteral("to C\nin two lines <B>")) << "the entry was selected all the time";
}

TEST_F(XrefFormTest, focusAlone_selectsNothing)
{
    LoadWithThree();
    Find<QListWidget>(*form, "ToList")->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(Note(), QString());
    test::Press(*form, "ToGoButton");
    EXPECT_EQ(world.messages.Take(),
              Strings{"exclamation|Lodestar Advisor|Please select a related topic first."});
}

TEST_F(XrefFormTest, goWithNothingSelected_keepsTheViewOpen)
{
    LoadWithThree();
    test::Press(*form, "ToGoButton");
    test::Press(*form, "InGoButton");
    EXPECT_EQ(world.messages.Take(),
              (Strings{"exclamation|Lodestar Advisor|Please select a related topic first.",
                       "exclamation|Lodestar Advisor|Please select another topic first."}));
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(book.CurrentTopicName, "[A]");
}

TEST_F(XrefFormTest, goInEitherList_storesTheTitleAndCloses)
{
    LoadWithThree();
    ClickRow("ToList", 1);
    test::Press(*form, "ToGoButton");
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(book.CurrentTopicName, "C\xE9");
    Load();
    ClickRow("InList", 0);
    test::Press(*form, "InGoButton");
    EXPECT_EQ(book.CurrentTopicName, "D");
}

TEST_F(XrefFormTest, enterOnAnEntry_goesThere)
{
    LoadWithThree();
    auto* list = Find<QListWidget>(*form, "ToList");
    list->setFocus();
    QTest::keyClick(form->windowHandle(), Qt::Key_Down);
    QTest::keyClick(form->windowHandle(), Qt::Key_Return);
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(book.CurrentTopicName, "C\xE9") << "the list's focus stood on the first entry";
}

TEST_F(XrefFormTest, closeAndEscape_leaveTheTopicOnShow)
{
    LoadWithThree();
    ClickRow("ToList", 0);
    test::Press(*form, "CloseButton");
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(book.CurrentTopicName, "[A]");
    Load();
    QTest::keyClick(form->windowHandle(), Qt::Key_Escape);
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(book.CurrentTopicName, "[A]");
}

struct XrefButtonTest : MainFormFixture
{
};

TEST_F(XrefButtonTest, goThroughTheMainWindow_showsTheTopic)
{
    Start(Write("Refs.IDA", test::CrLf({"LODESTAR BOOK V5.3", "[A]", "a", "<XREF TOPIC=C>", "note</XREF>",
                                        "[B]", "b", "[C]", "c"})));
    test::ModalScript script;
    script.Do([](QWidget& view) {
        Find<QListWidget>(view, "ToList")->setCurrentRow(0);
        test::Press(view, "ToGoButton");
    });
    test::Press(form, "XRButton");
    EXPECT_EQ(PaneText(), "c");
    EXPECT_EQ(Get<QComboBox>("TopicList").currentText(), QStringLiteral("3. C"));
    EXPECT_EQ(script.Seen(), Strings{"form|XrefForm|LSAdvisor Cross Reference"});
}

} // namespace
} // namespace ls
