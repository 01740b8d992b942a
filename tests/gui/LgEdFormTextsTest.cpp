// Typing and inserting text in the logic editor's boxes.

#include "gui/LgEdFormFixture.h"
#include "support/RowName.h"

#include <QAction>

namespace ls {
namespace {

using test::Press;

using LgEdFormTexts = LgEdFormFixture;

// The wheel can change a list's entry while the focus stays in the box. So no loss of focus comes first.
TEST_F(LgEdFormTexts, listSwitchedUnderTheBox_storesItsTextFirst)
{
    Load();
    Type("VQuestionBox", "How much?");
    Type("VCAnswerBox", "Much care.");
    List("AnswerCombo").setCurrentIndex(1);
    EXPECT_EQ(Advice(), "Do not worry.");
    Type("VCAnswerBox", "No worry.");
    List("VarCombo").setCurrentIndex(1);
    EXPECT_EQ(Question(), "How old are you?");
    Type("VQuestionBox", "Which age?");
    List("VarCombo").setCurrentIndex(0);
    EXPECT_EQ(Question(), "How much?");
    EXPECT_EQ(Advice(), "Much care.");
    Pick("AnswerCombo", "LOW");
    EXPECT_EQ(Advice(), "No worry.");
    Pick("VarCombo", "AGE");
    EXPECT_EQ(Question(), "Which age?");
}

struct SwitchCase
{
    const char* name;
    const char* button;
    std::vector<std::optional<std::string>> inputs;
};

struct LgEdFormStores : LgEdFormFixture, testing::WithParamInterface<SwitchCase>
{
};

TEST_P(LgEdFormStores, command_storesBothBoxesFirst)
{
    Load();
    Pick("VarCombo", "AGE");
    Pick("AnswerCombo", "OLD");
    Type("VCAnswerBox", "Old age.");
    Type("VQuestionBox", "Which age?");
    Answer(GetParam().inputs);
    Press(*form, GetParam().button);
    Boxes();
    const std::string block = Done();
    EXPECT_NE(block.find("<Q ID=AGE>Which age?</Q>\r\n"), std::string::npos) << block;
    EXPECT_NE(block.find("<AV ID=AGE(OLD)>Old age.</AV>\r\n"), std::string::npos) << block;
}

const SwitchCase SwitchCases[] = {
    {"VarAddButton", "VarAddButton", {"NEW"}}, {"AddAnsButton", "AddAnsButton", {"NEW"}},
    {"InsertButton", "InsertButton", {}},      {"InsAdvItem", "InsAdvItem", {}},
    {"SelectAllItem", "SelectAllItem", {}},
};

INSTANTIATE_TEST_SUITE_P(Commands, LgEdFormStores, testing::ValuesIn(SwitchCases), test::RowName());

TEST_F(LgEdFormTexts, doneWhileTheFocusIsInTheBox_storesItsText)
{
    Load();
    Type("VCAnswerBox", "Last words.");
    Box("VCAnswerBox").setFocus();
    Key(Qt::Key_D, Qt::AltModifier);
    EXPECT_TRUE(test::WaitFor([this] { return !form->isVisible(); }));
    EXPECT_EQ(Boxes().size(), 1U);
    EXPECT_NE(book.TopicRecs(1).Logic.find("<AV ID=RISK(HIGH)>Last words.</AV>"), std::string::npos);
}

struct InsertCase
{
    const char* name;
    Qt::Key key;
    const char* button;
    const char* item;
    const char* list; ///< Enter in this list does the same
    const char* inserted;
};

struct LgEdFormInsert : LgEdFormFixture, testing::WithParamInterface<InsertCase>
{
    void LoadAndPick()
    {
        Load();
        Pick("KeywordCombo", "TARGET");
        Pick("VarCombo", "AGE");
        Pick("AnswerCombo", "OLD");
        Caret(0);
    }

    const std::string Before = "TARGET RISK\nRISK(HIGH)=AGE(OLD)\n";
};

TEST_P(LgEdFormInsert, buttonItemKeyAndEnterInTheList_insertAtTheCaret)
{
    LoadAndPick();
    std::string wanted = Before;
    const auto expectOneMore = [&](const char* what) {
        wanted = GetParam().inserted + wanted;
        EXPECT_EQ(Logic(), wanted) << what;
        EXPECT_EQ(form->focusWidget(), &Box("LogicTextbox")) << what;
        EXPECT_EQ(Box("LogicTextbox").textCursor().position(),
                  static_cast<int>(std::string(GetParam().inserted).size()))
            << "the caret is after it";
        Caret(0);
    };
    Press(*form, GetParam().button);
    expectOneMore("button");
    Press(*form, GetParam().item);
    expectOneMore("item");
    Key(GetParam().key);
    expectOneMore("key");
    Box("VQuestionBox").setFocus();
    Key(GetParam().key);
    expectOneMore("key in another box");
    for (const char* list : {"KeywordCombo", "VarCombo", "AnswerCombo"}) {
        List(list).setFocus();
        Key(GetParam().key); // F4 too, although it opens the list in other programs
        expectOneMore(list);
    }
    List(GetParam().list).setFocus();
    Key(Qt::Key_Return);
    expectOneMore("Enter in the list");
    EXPECT_TRUE(form->isVisible()) << "Enter in a list is not Done";
    EXPECT_EQ(Boxes(), Strings());
}

TEST_P(LgEdFormInsert, selection_isReplacedAndOneUndoBringsItBack)
{
    LoadAndPick();
    Press(*form, "SelectAllItem"); // selects in the box that had the focus last
    Key(GetParam().key);
    EXPECT_EQ(Logic(), GetParam().inserted);
    Key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Logic(), Before);
}

const InsertCase InsertCases[] = {
    {"keyword", Qt::Key_F2, "KeywordInsertButton", "KeywordItem", "KeywordCombo", "TARGET"},
    {"variable", Qt::Key_F3, "InsertButton", "InsVarItem", "VarCombo", "AGE"},
    {"choice", Qt::Key_F4, "InsAdvButton", "InsAdvItem", "AnswerCombo", "AGE(OLD)="},
};

INSTANTIATE_TEST_SUITE_P(Insert, LgEdFormInsert, testing::ValuesIn(InsertCases), test::RowName());

TEST_F(LgEdFormTexts, undoRedoSelectAll_actOnTheBoxWithTheFocus)
{
    Load();
    Type("LogicTextbox", "LOGIC");
    Type("VCAnswerBox", "ADVICE");
    Box("VCAnswerBox").setFocus();
    Press(*form, "UndoItem");
    EXPECT_NE(Advice(), "ADVICE");
    EXPECT_EQ(Logic(), "LOGIC");
    Press(*form, "RedoItem");
    EXPECT_EQ(Advice(), "ADVICE");
    Press(*form, "SelectAllItem");
    EXPECT_EQ(Box("VCAnswerBox").textCursor().selectedText(), QStringLiteral("ADVICE"));
    EXPECT_FALSE(Box("LogicTextbox").textCursor().hasSelection());
    Box("VQuestionBox").setFocus();
    EXPECT_FALSE(test::Find<QAction>(*form, "UndoItem")->isEnabled()) << "nothing was done here";
    Box("LogicTextbox").setFocus();
    Key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_NE(Logic(), "LOGIC");
}

TEST_F(LgEdFormTexts, undo_doesNotBringAnotherVariablesQuestionBack)
{
    Load();
    Pick("VarCombo", "AGE");
    Box("VQuestionBox").setFocus();
    Key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Question(), "How old are you?");
    EXPECT_FALSE(test::Find<QAction>(*form, "UndoItem")->isEnabled());
}

TEST_F(LgEdFormTexts, find_looksInTheBoxWithTheFocus)
{
    Load();
    Answer({"risk", "care"});
    Key(Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(Box("LogicTextbox").textCursor().position(), 11);
    Key(Qt::Key_G, Qt::ControlModifier);
    EXPECT_EQ(Box("LogicTextbox").textCursor().position(), 16);
    Box("VCAnswerBox").setFocus();
    Press(*form, "FindItem");
    EXPECT_EQ(Box("VCAnswerBox").textCursor().selectedText(), QStringLiteral("care"));
    EXPECT_EQ(Boxes(), (Strings{"input|Find|Find what:|", "input|Find|Find what:|risk"}));
}

} // namespace
} // namespace ls
