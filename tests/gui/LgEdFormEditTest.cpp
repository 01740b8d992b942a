// What an author does in the logic editor's window.

#include "check/CheckBook.h"
#include "gui/LgEdFormFixture.h"
#include "gui/ModalScript.h"

#include <QAbstractItemView>
#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QListWidget>

#include <algorithm>

namespace ls {
namespace {

using test::Press;

const std::string InputPrefix = "input|Lodestar Advisor|";
const std::string Refused = "exclamation|Lodestar Advisor|";

using LgEdFormLists = LgEdFormFixture;

TEST_F(LgEdFormLists, pickVariable_showsItsQuestionAndFirstChoice)
{
    Load();
    EXPECT_EQ(Picked("VarCombo"), "RISK");
    EXPECT_EQ(Question(), "");
    EXPECT_EQ(Picked("AnswerCombo"), "HIGH");
    EXPECT_EQ(Advice(), "Take care.");
    Pick("VarCombo", "AGE");
    EXPECT_EQ(Question(), "How old are you?");
    EXPECT_EQ(Entries("AnswerCombo"), (Strings{"YOUNG", "OLD"}));
    EXPECT_EQ(Picked("AnswerCombo"), "YOUNG");
    EXPECT_EQ(Advice(), "");
    Pick("VarCombo", "NOTE");
    EXPECT_EQ(Entries("AnswerCombo"), Strings());
    EXPECT_EQ(Advice(), "");
    EXPECT_EQ(Boxes(), Strings());
}

TEST_F(LgEdFormLists, load_choosesNothing)
{
    LoadUntouched();
    EXPECT_EQ(Entries("VarCombo"), (Strings{"RISK", "AGE", "NOTE"}));
    EXPECT_EQ(Picked("VarCombo"), "");
    EXPECT_EQ(Entries("AnswerCombo"), Strings());
    EXPECT_FALSE(Box("VQuestionBox").isEnabled());
    EXPECT_FALSE(Box("VCAnswerBox").isEnabled());
    Press(*form, "VarDelButton");
    Press(*form, "DelAnsButton");
    Press(*form, "AddAnsButton");
    EXPECT_EQ(Boxes(), (Strings{Refused + "To delete a variable, first you must pick it from the list.",
                                Refused + "Before deleting a choice, choose a variable that has some.",
                                Refused + "Before adding a choice, first select a variable."}));
    EXPECT_EQ(Done(), Block());
}

TEST_F(LgEdFormLists, pickChoice_showsItsAdvice)
{
    Load();
    Pick("AnswerCombo", "LOW");
    EXPECT_EQ(Advice(), "Do not worry.");
    Pick("AnswerCombo", "HIGH");
    EXPECT_EQ(Advice(), "Take care.");
}

TEST_F(LgEdFormLists, blockWithoutVariables_leavesTheListsEmpty)
{
    Load({});
    EXPECT_EQ(Logic(), "");
    EXPECT_EQ(Entries("VarCombo"), Strings());
    EXPECT_EQ(Entries("AnswerCombo"), Strings());
    EXPECT_FALSE(Box("VQuestionBox").isEnabled()) << "what is typed there would belong to nothing";
    EXPECT_FALSE(Box("VCAnswerBox").isEnabled());
}

TEST_F(LgEdFormLists, addVariable_isTrimmedAndShown)
{
    Load();
    Answer({"  Mood "});
    Press(*form, "VarAddButton");
    EXPECT_EQ(Entries("VarCombo"), (Strings{"RISK", "AGE", "NOTE", "Mood"}));
    EXPECT_EQ(Picked("VarCombo"), "Mood");
    EXPECT_EQ(Question(), "");
    EXPECT_EQ(Entries("AnswerCombo"), Strings());
    EXPECT_EQ(Advice(), "");
    EXPECT_EQ(Boxes(), Strings{InputPrefix + "Type the name for the variable to be added.|"});
    Type("VQuestionBox", "How do you feel?");
    EXPECT_NE(Done().find("<Q ID=Mood>How do you feel?</Q>\r\n"), std::string::npos);
}

TEST_F(LgEdFormLists, addVariableOfAListedName_isRefusedInAnyCase)
{
    Load();
    Answer({" age"});
    Press(*form, "VarAddButton");
    EXPECT_EQ(Boxes(), (Strings{InputPrefix + "Type the name for the variable to be added.|",
                                Refused + "There is already a variable with this name."}));
    EXPECT_EQ(Entries("VarCombo").size(), 3U);
    EXPECT_EQ(Picked("VarCombo"), "RISK");
}

TEST_F(LgEdFormLists, addCancelledOrLeftEmpty_changesNothing)
{
    Load();
    Answer({std::nullopt, "", "   ", std::nullopt, ""});
    for (const char* button :
         {"VarAddButton", "VarAddButton", "VarAddButton", "AddAnsButton", "AddAnsButton"}) {
        Press(*form, button);
    }
    EXPECT_EQ(Boxes().size(), 5U);
    EXPECT_EQ(Entries("VarCombo"), (Strings{"RISK", "AGE", "NOTE"}));
    EXPECT_EQ(Entries("AnswerCombo"), (Strings{"HIGH", "LOW"}));
    EXPECT_EQ(Advice(), "Take care.");
}

TEST_F(LgEdFormLists, deleteVariable_isNotWrittenBack)
{
    Load();
    Pick("VarCombo", "AGE");
    Press(*form, "VarDelButton");
    EXPECT_EQ(Entries("VarCombo"), (Strings{"RISK", "NOTE"}));
    EXPECT_NE(Picked("VarCombo"), "") << "the selection moves on";
    const std::string block = Done();
    EXPECT_EQ(block.find("ID=AGE"), std::string::npos) << block;
    EXPECT_NE(block.find("<Q ID=RISK></Q>"), std::string::npos) << block;
}

TEST_F(LgEdFormLists, deleteAllVariables_thenRemindsToPickOne)
{
    Load();
    for (int i = 0; i < 3; ++i) {
        Press(*form, "VarDelButton");
    }
    EXPECT_EQ(Entries("VarCombo"), Strings());
    EXPECT_EQ(Boxes(), Strings());
    Press(*form, "VarDelButton");
    EXPECT_EQ(Boxes(), Strings{Refused + "To delete a variable, first you must pick it from the list."});
}

TEST_F(LgEdFormLists, addChoice_isTrimmedAndShown)
{
    Load();
    Answer({" MIDDLE  "});
    Press(*form, "AddAnsButton");
    EXPECT_EQ(Entries("AnswerCombo"), (Strings{"HIGH", "LOW", "MIDDLE"}));
    EXPECT_EQ(Picked("AnswerCombo"), "MIDDLE");
    EXPECT_EQ(Advice(), "");
    EXPECT_EQ(Boxes(), Strings{InputPrefix + "Type the choice to be added.|"});
    Type("VCAnswerBox", "So so.");
    Pick("VarCombo", "AGE");
    Pick("VarCombo", "RISK");
    EXPECT_EQ(Entries("AnswerCombo"), (Strings{"HIGH", "LOW", "MIDDLE"}));
    EXPECT_NE(Done().find("<AV ID=RISK(MIDDLE)>So so.</AV>\r\n"), std::string::npos);
}

TEST_F(LgEdFormLists, addChoiceOfAListedName_isRefusedInAnyCase)
{
    Load();
    Answer({"low "});
    Press(*form, "AddAnsButton");
    EXPECT_EQ(Boxes(), (Strings{InputPrefix + "Type the choice to be added.|",
                                Refused + "There is already a choice with this name."}));
    EXPECT_EQ(Entries("AnswerCombo").size(), 2U);
    Pick("VarCombo", "AGE");
    Answer({"low"});
    Press(*form, "AddAnsButton");
    EXPECT_EQ(Entries("AnswerCombo"), (Strings{"YOUNG", "OLD", "low"})) << "another variable's choices";
    Boxes();
}

TEST_F(LgEdFormLists, addChoiceWithoutVariable_asksToSelectOne)
{
    Load({});
    Press(*form, "AddAnsButton");
    EXPECT_EQ(Boxes(), Strings{Refused + "Before adding a choice, first select a variable."});
}

TEST_F(LgEdFormLists, deleteChoice_isNotWrittenBack)
{
    Load();
    Press(*form, "DelAnsButton");
    EXPECT_EQ(Entries("AnswerCombo"), Strings{"LOW"});
    Pick("VarCombo", "AGE");
    Pick("VarCombo", "RISK");
    EXPECT_EQ(Entries("AnswerCombo"), Strings{"LOW"});
    const std::string block = Done();
    EXPECT_EQ(block.find("Take care."), std::string::npos) << block;
    EXPECT_NE(block.find("<AV ID=RISK(LOW)>Do not worry.</AV>"), std::string::npos) << block;
}

TEST_F(LgEdFormLists, deleteChoiceWithoutAny_asksForAVariableThatHasSome)
{
    Load();
    Pick("VarCombo", "NOTE");
    Press(*form, "DelAnsButton");
    EXPECT_EQ(Boxes(), Strings{Refused + "Before deleting a choice, choose a variable that has some."});
}

using LgEdFormTexts = LgEdFormFixture;

// The list's entry changes while the focus stays in the box, as by the wheel: no lost focus comes first.
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

std::string SwitchName(const testing::TestParamInfo<SwitchCase>& info)
{
    return info.param.name;
}

INSTANTIATE_TEST_SUITE_P(Commands, LgEdFormStores, testing::ValuesIn(SwitchCases), SwitchName);

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

TEST_F(LgEdFormTexts, questionOf59Characters_staysOnTheTagsLineAnd60Not)
{
    Load();
    Pick("VarCombo", "AGE");
    const std::string question59(59, 'q');
    Type("VQuestionBox", question59.c_str());
    EXPECT_NE(Done().find("<Q ID=AGE>" + question59 + "</Q>\r\n\r\n"), std::string::npos);
    Load();
    Pick("VarCombo", "AGE");
    const std::string question60(60, 'q');
    Type("VQuestionBox", question60.c_str());
    EXPECT_NE(Done().find("<Q ID=AGE>\r\n" + question60 + "\r\n</Q>\r\n\r\n"), std::string::npos);
}

struct InsertCase
{
    const char* name;
    Qt::Key key;
    const char* button;
    const char* item;
    const char* list; ///< Enter in it does the same
    const char* inserted;
    const char* reminder; ///< without a choice
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
            << "the caret is behind it";
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
        Key(GetParam().key); // also F4, which in other programs opens the list
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
    Press(*form, "SelectAllItem"); // of the box that had the focus last
    Key(GetParam().key);
    EXPECT_EQ(Logic(), GetParam().inserted);
    Key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Logic(), Before);
}

TEST_P(LgEdFormInsert, nothingChosen_reminds)
{
    Load({});
    Key(GetParam().key);
    Press(*form, GetParam().button);
    Press(*form, GetParam().item);
    EXPECT_EQ(Boxes(), (Strings(3, Refused + GetParam().reminder)));
    EXPECT_EQ(Logic(), "");
}

const InsertCase InsertCases[] = {
    {"keyword", Qt::Key_F2, "KeywordInsertButton", "KeywordItem", "KeywordCombo", "TARGET",
     "To insert a keyword into the text box, first pick a keyword from the list."},
    {"variable", Qt::Key_F3, "InsertButton", "InsVarItem", "VarCombo", "AGE",
     "To insert a variable name into the text box, first pick a variable from the list."},
    {"choice", Qt::Key_F4, "InsAdvButton", "InsAdvItem", "AnswerCombo",
     "AGE(OLD)=", "To insert a choice, you must first select a variable and achoice from the pick lists."},
};

std::string InsertName(const testing::TestParamInfo<InsertCase>& info)
{
    return info.param.name;
}

INSTANTIATE_TEST_SUITE_P(Insert, LgEdFormInsert, testing::ValuesIn(InsertCases), InsertName);

TEST_F(LgEdFormTexts, choiceOfAVariableWithoutChoices_isNotInserted)
{
    Load();
    Pick("VarCombo", "NOTE");
    Key(Qt::Key_F4);
    EXPECT_EQ(Boxes(), Strings{Refused + "To insert a choice, you must first select a variable and achoice "
                                         "from the pick lists."});
}

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

using LgEdFormClose = LgEdFormFixture;

TEST_F(LgEdFormClose, done_storesTheBlockTellsAndCloses)
{
    Load("");
    Type("LogicTextbox", "TARGET X\nX(1)=Y(2)");
    Answer({"Y", "2"});
    Press(*form, "VarAddButton");
    Type("VQuestionBox", "Why?");
    Press(*form, "AddAnsButton");
    Boxes();
    EXPECT_EQ(Done(),
              test::CrLf({"<IXML>", "<LOGIC>", "TARGET X", "X(1)=Y(2)", "</LOGIC>", "<DEFINITIONS>", "",
                          "<Q ID=Y>Why?</Q>", "", "<AV ID=Y(2)></AV>", "", "</DEFINITIONS>", "</IXML>"}));
    EXPECT_EQ(form->result(), QDialog::Accepted);
    EXPECT_TRUE(book.BookChanged);
    EXPECT_EQ(book.TopicRecs(1).Text, "a\r\n");
}

TEST_F(LgEdFormClose, doneUntouched_givesTheSameBlock)
{
    Load();
    EXPECT_EQ(Done(), Block());
}

TEST_F(LgEdFormClose, emptyLogicText_refusesSpecificationAndDone)
{
    Load();
    Type("LogicTextbox", "");
    Press(*form, "ShowSpecItem");
    Press(*form, "SaveButton");
    EXPECT_EQ(Boxes(), (Strings(2, Refused + "There is no logic information to save.")));
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(book.TopicRecs(1).Logic, Block());
    EXPECT_FALSE(book.BookChanged);
}

TEST_F(LgEdFormClose, cancel_changesNothingAndAsksNothing)
{
    Load();
    Type("LogicTextbox", "x");
    Press(*form, "CancelButton");
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(form->result(), QDialog::Rejected);
    EXPECT_EQ(book.TopicRecs(1).Logic, Block());
    EXPECT_FALSE(book.BookChanged);
    EXPECT_EQ(Boxes(), Strings());
}

TEST_F(LgEdFormClose, escapeUntouched_closesWithoutAsking)
{
    Load();
    Pick("VarCombo", "AGE");
    Pick("AnswerCombo", "OLD");
    Key(Qt::Key_Escape);
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(Boxes(), Strings());
}

struct ChangeCase
{
    const char* name;
    void (*change)(LgEdFormFixture& editor);
};

struct LgEdFormAsks : LgEdFormFixture, testing::WithParamInterface<ChangeCase>
{
};

TEST_P(LgEdFormAsks, escapeAndCloseButton_askWhenSomethingWasChanged)
{
    Load();
    GetParam().change(*this);
    Boxes();
    world.messages.replies = {Reply::Cancel, Reply::Ok};
    Key(Qt::Key_Escape);
    EXPECT_TRUE(form->isVisible());
    form->close();
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(form->result(), QDialog::Rejected);
    const std::string question = "question|Lodestar Advisor|Close without keeping your changes?|OKCancel";
    EXPECT_EQ(Boxes(), (Strings{question, question}));
    EXPECT_EQ(book.TopicRecs(1).Logic, Block());
}

const ChangeCase ChangeCases[] = {
    {"logic", [](LgEdFormFixture& editor) { editor.Type("LogicTextbox", "x"); }},
    {"question", [](LgEdFormFixture& editor) { editor.Type("VQuestionBox", "x"); }},
    {"advice", [](LgEdFormFixture& editor) { editor.Type("VCAnswerBox", "x"); }},
    {"newVariable",
     [](LgEdFormFixture& editor) {
         editor.Answer({"NEW"});
         Press(*editor.form, "VarAddButton");
     }},
    {"deletedVariable", [](LgEdFormFixture& editor) { Press(*editor.form, "VarDelButton"); }},
    {"newChoice",
     [](LgEdFormFixture& editor) {
         editor.Answer({"NEW"});
         Press(*editor.form, "AddAnsButton");
     }},
    {"deletedChoice", [](LgEdFormFixture& editor) { Press(*editor.form, "DelAnsButton"); }},
};

std::string ChangeName(const testing::TestParamInfo<ChangeCase>& info)
{
    return info.param.name;
}

INSTANTIATE_TEST_SUITE_P(Changes, LgEdFormAsks, testing::ValuesIn(ChangeCases), ChangeName);

TEST_F(LgEdFormClose, endedInABox_closesTheWindow)
{
    Load();
    EndProgram(world.end, "test");
    Key(Qt::Key_F2);
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(form->result(), QDialog::Rejected);
}

TEST_F(LgEdFormClose, characterOutsideTheCodePage_opensItsPlace)
{
    Load();
    Pick("VarCombo", "AGE");
    QGuiApplication::clipboard()->setText(QStringLiteral("one\ntwo \u2192"));
    Box("VQuestionBox").setFocus();
    Press(*form, "SelectAllItem");
    Key(Qt::Key_V, Qt::ControlModifier);
    Pick("VarCombo", "NOTE");
    Press(*form, "SaveButton");
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(Boxes(), Strings{"warning|Lodestar Advisor|Line 2 of the question for \"AGE\" holds the "
                               "character \"\xE2\x86\x92\" (U+2192), which a book cannot hold. Please "
                               "replace it."});
    EXPECT_EQ(Picked("VarCombo"), "AGE");
    EXPECT_EQ(form->focusWidget(), &Box("VQuestionBox"));
    EXPECT_EQ(Box("VQuestionBox").textCursor().selectedText(), QStringLiteral("two \u2192"));
    EXPECT_FALSE(book.BookChanged);
}

TEST_F(LgEdFormClose, specification_showsTheBlockAsItWouldBeStored)
{
    Load();
    Type("VQuestionBox", "How much?");
    test::ModalScript script;
    std::string shown;
    Strings findings;
    script.Do([&](QWidget& window) {
        const auto* list = test::Find<QListWidget>(window, "FindingsList");
        for (int i = 0; i < list->count(); ++i) {
            findings.push_back(list->item(i)->text().toStdString());
        }
        test::TakePicture(window, "TempForm");
        shown = test::Find<QPlainTextEdit>(window, "Text1")->toPlainText().toStdString();
        Press(window, "CloseButton");
    });
    Press(*form, "ShowSpecItem");
    EXPECT_EQ(script.Seen(), Strings{"form|TempForm|Temp results"});
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(book.TopicRecs(1).Logic, Block()) << "nothing is stored";
    std::string block = Done();
    Strings wanted;
    for (const Finding& finding : CheckLogicText(book, world.Get(), 1, block)) {
        wanted.push_back("Line " + std::to_string(finding.line) + ", " + SeverityWord(finding.severity) +
                         ": " + finding.text);
    }
    EXPECT_EQ(findings, wanted);
    const auto inLine12 = [](const std::string& finding) { return finding.rfind("Line 12, ", 0) == 0; };
    EXPECT_EQ(std::count_if(findings.begin(), findings.end(), inLine12), 1) << "nothing concludes RISK(LOW)";
    std::erase(block, '\r');
    EXPECT_EQ(shown, block);
}

TEST_F(LgEdFormClose, commentBetweenTheEntries_isNamedBeforeItIsDropped)
{
    std::string block = Block();
    block.insert(block.find("<Q ID=AGE>"), "* old and young\r\n");
    Load(block);
    world.messages.replies = {Reply::Cancel, Reply::Ok};
    Press(*form, "SaveButton");
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(book.TopicRecs(1).Logic, block);
    EXPECT_FALSE(book.BookChanged);
    Press(*form, "SaveButton");
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(book.TopicRecs(1).Logic, Block());
    const std::string question =
        "question|Lodestar Advisor|Not everything in this topic's logic can be kept as it was read:\n\nLine "
        "14 of the block: The comment \"* old and young\" would be dropped.\n\nGo on all the same?|OKCancel";
    EXPECT_EQ(Boxes(),
              (Strings{question, question,
                       "information|Lodestar Advisor|The changes will not take effect until you save "
                       "the file."}));
}

TEST_F(LgEdFormClose, bareEntry_isWrittenBackBehindTheVariables)
{
    std::string block = Block();
    const std::string bare = "<AV ID=GO>Go out.</AV>\r\n\r\n";
    Load(std::string(block).insert(block.find("<Q ID=AGE>"), bare));
    block.insert(block.find("</DEFINITIONS>"), bare);
    EXPECT_EQ(Done(), block);
}

using LgEdFormSize = LgEdFormFixture;

TEST_F(LgEdFormSize, thousandsOfLinesAndVariables_areTakenWhole)
{
    std::string logic;
    std::string definitions;
    for (int i = 1; i <= 5000; ++i) {
        logic += "R(" + std::to_string(i) + ")=V" + std::to_string(i % 1000) + "(1)\r\n";
    }
    for (int i = 0; i < 1000; ++i) {
        const std::string name = "V" + std::to_string(i);
        definitions +=
            "<Q ID=" + name + ">Question " + name + "?</Q>\r\n\r\n<AV ID=" + name + "(1)></AV>\r\n\r\n";
    }
    const std::string block = "<IXML>\r\n<LOGIC>\r\n" + logic + "</LOGIC>\r\n<DEFINITIONS>\r\n\r\n" +
                              definitions + "</DEFINITIONS>\r\n</IXML>\r\n";
    Load(block);
    EXPECT_EQ(List("VarCombo").count(), 1000);
    List("VarCombo").setCurrentIndex(999);
    EXPECT_EQ(Question(), "Question V999?");
    List("VarCombo").showPopup();
    QTest::keyClick(List("VarCombo").view(), Qt::Key_Escape);
    test::ModalScript script;
    script.Do([&](QWidget& window) {
        const auto* text = test::Find<QPlainTextEdit>(window, "Text1");
        EXPECT_EQ(text->blockCount(), static_cast<int>(std::count(block.begin(), block.end(), '\n')) + 1);
        Press(window, "CloseButton");
    });
    Press(*form, "ShowSpecItem");
    EXPECT_EQ(Done(), block);
}

} // namespace
} // namespace ls
