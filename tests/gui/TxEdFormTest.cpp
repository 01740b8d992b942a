#include "authoring/TxEdForm.h"

#include "book/Book.h"
#include "gui/Controls.h"
#include "gui/MainFormFixture.h"
#include "support/RowName.h"
#include "support/TestSeams.h"

#include <QClipboard>
#include <QFontInfo>
#include <QPlainTextEdit>
#include <QTest>
#include <QWheelEvent>

namespace ls {
namespace {

using test::Find;

struct TxEdFormTest : testing::Test
{
    test::TestSeams world;
    Book book;
    std::unique_ptr<TxEdForm> form;

    TxEdFormTest()
    {
        EXPECT_TRUE(book.TopicCount.Add());
        book.TopicNames(1) = "[A]";
        book.CurrentTopicNo = 1;
        book.CurrentTopicName = "[A]";
    }

    void Load(const std::string& text)
    {
        book.TopicRecs(1).Text = text;
        form = std::make_unique<TxEdForm>(nullptr, book, world.Get());
        test::ShowActive(*form);
    }

    [[nodiscard]] QPlainTextEdit& Box() const { return *Find<QPlainTextEdit>(*form, "MainTxBox"); }
    [[nodiscard]] QComboBox& Symbols() const { return *Find<QComboBox>(*form, "SymCombo"); }
    [[nodiscard]] std::string Text() const { return Box().toPlainText().toStdString(); }

    void Select(int from, int to) const
    {
        QTextCursor cursor = Box().textCursor();
        cursor.setPosition(from);
        cursor.setPosition(to, QTextCursor::KeepAnchor);
        Box().setTextCursor(cursor);
    }

    [[nodiscard]] std::string Selected() const { return Box().textCursor().selectedText().toStdString(); }
    [[nodiscard]] int Caret() const { return Box().textCursor().position(); }

    /// Presses a key in the control that has the focus.
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QTest::keyClick(form->windowHandle(), key, modifiers);
    }

    void PickSymbol(int index) const
    {
        Symbols().setCurrentIndex(index);
        Q_EMIT Symbols().activated(index);
    }

    Strings Boxes() { return world.messages.Take(); }
};

TEST_F(TxEdFormTest, load_showsTheText)
{
    Load("caf\xE9 <B>b</B>\r\n\r\n[x\xA0y\r\n");
    EXPECT_EQ(form->windowTitle(), QStringLiteral("Topic Text Edit"));
    EXPECT_EQ(Text(), "caf\xC3\xA9 <B>b</B>\n\n[x y\n"); // the box returns a no-break space as a blank
    ASSERT_EQ(Symbols().count(), 3);
    EXPECT_EQ(Symbols().itemText(0) + Symbols().itemText(1) + Symbols().itemText(2), QStringLiteral("<>&"));
    EXPECT_EQ(Symbols().currentText(), QString());
    EXPECT_TRUE(QFontInfo(Box().font()).fixedPitch());
    EXPECT_EQ(form->focusWidget(), &Box());
    test::TakePicture(*form, "TxEdForm");
}

TEST_F(TxEdFormTest, done_storesTheTextAndCloses)
{
    Load("a\r\nb\r\n");
    Key(Qt::Key_X);
    Key(Qt::Key_Return);
    test::Press(*form, "SaveButton");
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(form->result(), QDialog::Accepted);
    EXPECT_EQ(book.TopicRecs(1).Text, "x\r\na\r\nb\r\n");
    EXPECT_TRUE(book.BookChanged);
}

TEST_F(TxEdFormTest, doneUntouched_keepsEveryByte)
{
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) {
        if (byte != '\r' && byte != '\n') {
            bytes += static_cast<char>(byte);
        }
    }
    bytes += "\r\n\r\n  \r\n\tlast";
    Load(bytes);
    test::Press(*form, "SaveButton");
    EXPECT_EQ(book.TopicRecs(1).Text, bytes);
}

TEST_F(TxEdFormTest, cancel_changesNothingAndAsksNothing)
{
    Load("a\r\n");
    Key(Qt::Key_X);
    test::Press(*form, "CancelButton");
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(form->result(), QDialog::Rejected);
    EXPECT_EQ(book.TopicRecs(1).Text, "a\r\n");
    EXPECT_FALSE(book.BookChanged);
    EXPECT_EQ(Boxes(), Strings());
}

TEST_F(TxEdFormTest, escape_asksWhenTheTextWasChanged)
{
    Load("a\r\n");
    Key(Qt::Key_Escape);
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(Boxes(), Strings());
    Load("a\r\n");
    Key(Qt::Key_X);
    world.messages.replies = {Reply::Cancel, Reply::Ok};
    Key(Qt::Key_Escape);
    EXPECT_TRUE(form->isVisible());
    form->close();
    EXPECT_FALSE(form->isVisible());
    const std::string question = "question|Lodestar Advisor|Close without keeping your changes?|OKCancel";
    EXPECT_EQ(Boxes(), (Strings{question, question}));
    EXPECT_EQ(book.TopicRecs(1).Text, "a\r\n");
}

struct WrapCase
{
    const char* name;
    const char* control; ///< a button or an item of the Insert menu
    const char* open;
    const char* close;
};

struct WrapSelection : TxEdFormTest, testing::WithParamInterface<WrapCase>
{
};

TEST_P(WrapSelection, selection_isPutBetweenTheTagsAndStaysSelected)
{
    Load("one two three");
    Select(4, 7);
    test::Press(*form, GetParam().control);
    EXPECT_EQ(Text(), std::string("one ") + GetParam().open + "two" + GetParam().close + " three");
    EXPECT_EQ(Selected(), "two");
    EXPECT_EQ(form->focusWidget(), &Box());
}

TEST_P(WrapSelection, nothingSelected_leavesAnEmptyPairAtTheCaret)
{
    Load("one");
    Select(1, 1);
    test::Press(*form, GetParam().control);
    EXPECT_EQ(Text(), std::string("o") + GetParam().open + GetParam().close + "ne");
    Key(Qt::Key_X);
    EXPECT_EQ(Text(), std::string("o") + GetParam().open + "x" + GetParam().close + "ne");
}

const WrapCase WrapCases[] = {
    {"H1Button", "H1Button", "<H1>", "</H1>"}, {"H2Button", "H2Button", "<H2>", "</H2>"},
    {"BButton", "BButton", "<B>", "</B>"},     {"IButton", "IButton", "<I>", "</I>"},
    {"UButton", "UButton", "<U>", "</U>"},     {"H1Item", "H1Item", "<H1>", "</H1>"},
    {"H2Item", "H2Item", "<H2>", "</H2>"},     {"BItem", "BItem", "<B>", "</B>"},
    {"IItem", "IItem", "<I>", "</I>"},         {"UItem", "UItem", "<U>", "</U>"},
};

INSTANTIATE_TEST_SUITE_P(Markup, WrapSelection, testing::ValuesIn(WrapCases), test::RowName());

TEST_F(TxEdFormTest, wrap_isOneStepToUndoAndRedo)
{
    Load("one two");
    Select(0, 3);
    Key(Qt::Key_B, Qt::ControlModifier);
    EXPECT_EQ(Text(), "<B>one</B> two");
    Key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Text(), "one two");
    test::Press(*form, "RedoItem");
    EXPECT_EQ(Text(), "<B>one</B> two");
    test::Press(*form, "UndoItem");
    EXPECT_EQ(Text(), "one two");
    EXPECT_FALSE(Find<QAction>(*form, "UndoItem")->isEnabled()) << "the text it came up with is no step";
}

TEST_F(TxEdFormTest, symbol_isInsertedAtTheCaretWithoutSemicolon)
{
    Load("ab");
    Select(1, 1);
    PickSymbol(0);
    EXPECT_EQ(Text(), "a&LTb");
    Key(Qt::Key_Semicolon);
    EXPECT_EQ(Text(), "a&LT;b") << "the caret is behind it";
    PickSymbol(1);
    PickSymbol(2);
    EXPECT_EQ(Text(), "a&LT;&GT&AMPb");
}

TEST_F(TxEdFormTest, symbol_goesInFrontOfTheSelectionWhichStays)
{
    Load("one two");
    Select(4, 7);
    PickSymbol(2);
    EXPECT_EQ(Text(), "one &AMPtwo");
    EXPECT_EQ(Selected(), "two");
}

TEST_F(TxEdFormTest, insertButton_insertsTheChosenSymbolAgain)
{
    Load("");
    test::Press(*form, "InsertButton");
    EXPECT_EQ(Boxes(), Strings{"exclamation|Lodestar Advisor|First pick a symbol from the list."});
    EXPECT_EQ(Text(), "");
    PickSymbol(1);
    test::Press(*form, "InsertButton");
    EXPECT_EQ(Text(), "&GT&GT");
}

TEST_F(TxEdFormTest, symbolList_keysOpenItAndTheWheelDoesNotChoose)
{
    Load("");
    Symbols().setFocus();
    Key(Qt::Key_Down);
    EXPECT_TRUE(Symbols().view()->isVisible());
    QTest::keyClick(Symbols().view(), Qt::Key_Down);
    QTest::keyClick(Symbols().view(), Qt::Key_Return);
    EXPECT_TRUE(test::WaitFor([this] { return !Text().empty(); }));
    const std::string once = Text();
    EXPECT_EQ(once.front(), '&');
    Symbols().setFocus();
    Key(Qt::Key_Return);
    EXPECT_EQ(Text(), once + once);
    EXPECT_TRUE(form->isVisible()) << "Enter in the list is not Done";
    QWheelEvent wheel(QPointF(5, 5), Symbols().mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, -120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&Symbols(), &wheel);
    EXPECT_EQ(Text(), once + once);
}

TEST_F(TxEdFormTest, find_selectsTheNextPlaceAndStartsAgainBehindTheLast)
{
    Load("one\r\nTwo two\r\nthree");
    world.messages.inputs = {"two"};
    Key(Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(Selected(), "Two");
    Key(Qt::Key_F3);
    EXPECT_EQ(Selected(), "two");
    EXPECT_EQ(Caret(), 11);
    test::Press(*form, "FindNextItem");
    EXPECT_EQ(Caret(), 7);
    EXPECT_EQ(Boxes(), Strings{"input|Find|Find what:|"});
}

TEST_F(TxEdFormTest, openedAgain_remembersNothingOfTheLastTime)
{
    Load("one two");
    const QSize design = form->size();
    world.messages.inputs = {"two", std::nullopt};
    Key(Qt::Key_F, Qt::ControlModifier);
    PickSymbol(0);
    form->resize(design + QSize(100, 100));
    test::Press(*form, "CancelButton");
    Load("one two");
    EXPECT_EQ(form->size(), design);
    EXPECT_EQ(Symbols().currentIndex(), -1);
    EXPECT_EQ(Caret(), 0);
    EXPECT_EQ(Selected(), "");
    EXPECT_FALSE(Find<QAction>(*form, "UndoItem")->isEnabled());
    EXPECT_FALSE(Find<QAction>(*form, "RedoItem")->isEnabled());
    test::Press(*form, "FindNextItem");
    EXPECT_EQ(Boxes(), (Strings{"input|Find|Find what:|", "input|Find|Find what:|"}));
    EXPECT_EQ(Text(), "one two");
}

TEST_F(TxEdFormTest, findNothing_saysSoAndRemembersTheText)
{
    Load("one");
    world.messages.inputs = {"<B>", std::nullopt, ""};
    test::Press(*form, "FindNextItem");
    test::Press(*form, "FindItem");
    test::Press(*form, "FindItem");
    EXPECT_EQ(Boxes(),
              (Strings{"input|Find|Find what:|", "information|Lodestar Advisor|\"<B>\" was not found.",
                       "input|Find|Find what:|<B>", "input|Find|Find what:|<B>"}));
    EXPECT_EQ(Caret(), 0);
}

TEST_F(TxEdFormTest, pastedCharacterOutsideTheCodePage_staysOpenOnItsLine)
{
    Load("a\r\n");
    QApplication::clipboard()->setText(QStringLiteral("x\r\ny\u2192\rz"));
    Key(Qt::Key_V, Qt::ControlModifier);
    test::Press(*form, "SaveButton");
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(Boxes(), Strings{"warning|Lodestar Advisor|Line 2 holds the character \"\xE2\x86\x92\" "
                               "(U+2192), which a book cannot hold. Please replace it."});
    EXPECT_EQ(Selected(), "y\xE2\x86\x92");
    Key(Qt::Key_Y);
    test::Press(*form, "SaveButton");
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(book.TopicRecs(1).Text, "x\r\ny\r\nza\r\n");
}

TEST_F(TxEdFormTest, specialLineDeclined_staysOpenOnItsLine)
{
    Load("a\r\nb\r\n[B]");
    world.messages.replies = {Reply::Cancel};
    test::Press(*form, "SaveButton");
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(Boxes().size(), 1U);
    EXPECT_EQ(Selected(), "[B]");
    EXPECT_FALSE(book.BookChanged);
}

TEST_F(TxEdFormTest, softLineBreak_becomesALineOfItsOwn)
{
    Load("");
    Key(Qt::Key_A);
    Key(Qt::Key_Return, Qt::ShiftModifier);
    Key(Qt::Key_B);
    test::Press(*form, "SaveButton");
    EXPECT_EQ(book.TopicRecs(1).Text, "a\r\nb");
}

TEST_F(TxEdFormTest, resize_boxKeepsItsDistancesAndTheButtonsTheirs)
{
    Load("a");
    const auto distances = [this] {
        Strings found;
        const auto add = [&](const char* name, int distance) {
            found.push_back(name + std::to_string(distance));
        };
        const QPoint corner = Box().mapTo(form.get(), QPoint(Box().width(), Box().height()));
        add("box right ", form->width() - corner.x());
        add("box bottom ", form->height() - corner.y());
        for (const char* name : {"Label2", "H1Button", "H2Button", "BButton", "IButton", "UButton",
                                 "SymCombo", "InsertButton", "SaveButton", "CancelButton"}) {
            const QPoint at = Find<QWidget>(*form, name)->mapTo(form.get(), QPoint());
            add(name, form->height() - at.y());
            add(name, at.x());
        }
        return found;
    };
    const Strings before = distances();
    const QSize box = Box().size();
    const QSize design = form->size();
    form->resize(design + QSize(120, 80));
    QTest::qWait(20);
    EXPECT_EQ(Box().size(), box + QSize(120, 80));
    EXPECT_EQ(distances(), before);
    form->resize(design - QSize(100, 60));
    QTest::qWait(20);
    EXPECT_EQ(Box().size(), box - QSize(100, 60));
    EXPECT_EQ(distances(), before);
}

TEST_F(TxEdFormTest, tabKeyInTheBox_isText)
{
    Load("");
    Key(Qt::Key_Tab);
    EXPECT_EQ(Text(), "\t");
}

struct EdTextItemTest : MainFormFixture
{
};

TEST_F(EdTextItemTest, editThroughTheMainWindow_showsTheNewText)
{
    Start(WriteThree());
    test::ModalScript script;
    script.Do([](QWidget& editor) {
        test::Type(editor, "MainTxBox", QStringLiteral("new"));
        test::Press(editor, "SaveButton");
    });
    test::Press(form, "EdTextItem");
    EXPECT_EQ(PaneText(), "new");
    EXPECT_TRUE(global.book.BookChanged);
    EXPECT_EQ(script.Seen(), Strings{"form|TxEdForm|Topic Text Edit"});
    global.book.BookChanged = false;
}

} // namespace
} // namespace ls
