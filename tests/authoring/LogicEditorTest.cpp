#include "authoring/LogicEditor.h"

#include "RecordingLogicView.h"
#include "base/CodePage.h"
#include "book/Book.h"
#include "support/TestSeams.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

using Strings = std::vector<std::string>;
using test::CrLf;
using Place = test::RecordingLogicView::Place;

constexpr const char* NotUntilSaved =
    "information|Lodestar Advisor|The changes will not take effect until you save the file.";
constexpr const char* VariablePrompt = "input|Lodestar Advisor|Type the name for the variable to be added.|";
constexpr const char* ChoicePrompt = "input|Lodestar Advisor|Type the choice to be added.|";

struct LogicEditorTest : testing::Test
{
    test::TestSeams world;
    Book book;
    test::RecordingLogicView view;
    LogicEditor editor{book, world.Get(), view};

    LogicEditorTest()
    {
        EXPECT_TRUE(book.TopicCount.Add());
        book.TopicNames(1) = "[A]";
        book.CurrentTopicNo = 1;
        book.CurrentTopicName = "[A]";
        book.TopicRecs(1).Text = "text\r\n";
    }

    void Load(const std::string& logic)
    {
        book.TopicRecs(1).Logic = logic;
        EXPECT_TRUE(editor.Form_Load());
    }

    // Variables AGE (with choices OLD and YOUNG), RISK (with HIGH) and PLACE (with none).
    void LoadThree()
    {
        Load(CrLf({"<IXML>", "<LOGIC>", "TARGET RISK", "</LOGIC>", "<DEFINITIONS>", "<Q ID=AGE>How old?</Q>",
                   "<AV ID=AGE(OLD)>Rest.</AV>", "<AV ID=AGE(YOUNG)>Run.</AV>", "<Q ID=RISK></Q>",
                   "<AV ID=RISK(HIGH)>Stop.</AV>", "<Q ID=PLACE>Where?</Q>", "</DEFINITIONS>", "</IXML>"}));
    }

    void LoadEmpty() { Load(""); }

    void AddVariable(const std::string& name)
    {
        world.messages.inputs = {name};
        editor.VarAddButton_Click();
    }

    void AddChoice(const std::string& name)
    {
        world.messages.inputs = {name};
        editor.AddAnsButton_Click();
    }

    Strings Boxes() { return world.messages.Take(); }
    [[nodiscard]] const std::string& Logic() const { return book.TopicRecs(1).Logic; }
};

std::string Refusal(const char* text)
{
    return std::string("exclamation|Lodestar Advisor|") + text;
}

TEST_F(LogicEditorTest, keywords_areTheThree)
{
    EXPECT_EQ(Strings(LogicKeywords.begin(), LogicKeywords.end()), (Strings{"ASSUME", "TARGET", "DEFINE"}));
}

TEST_F(LogicEditorTest, load_fillsTheTextAndTheVariablesAndSelectsNone)
{
    LoadThree();
    EXPECT_EQ(view[LogicBox::Logic], "TARGET RISK\r\n");
    EXPECT_EQ(view.variables, (Strings{"AGE", "RISK", "PLACE"}));
    EXPECT_EQ(view.variable, -1);
    EXPECT_EQ(view.choices, Strings());
    EXPECT_EQ(view[LogicBox::Question], "");
    EXPECT_EQ(view[LogicBox::Advice], "");
    EXPECT_FALSE(view.Takes(LogicBox::Question));
    EXPECT_FALSE(view.Takes(LogicBox::Advice));
    EXPECT_FALSE(editor.Changed());
    EXPECT_EQ(Boxes(), Strings());
}

TEST_F(LogicEditorTest, load_topicWithoutLogic_isEmpty)
{
    LoadEmpty();
    EXPECT_EQ(view[LogicBox::Logic], "");
    EXPECT_EQ(view.variables, Strings());
    EXPECT_FALSE(editor.Changed());
}

TEST_F(LogicEditorTest, load_showsBookTextAsUtf8)
{
    Load(CrLf({"<IXML>", "<LOGIC>", "* caf\xE9", "<DEFINITIONS>", "<Q ID=\xC9T\xC9>\x80?</Q>",
               "<AV ID=\xE9t\xE9(\xFC)>\xDF</AV>"}));
    EXPECT_EQ(view[LogicBox::Logic], "* caf\xC3\xA9\r\n");
    EXPECT_EQ(view.variables, Strings{"\xC3\x89T\xC3\x89"});
    editor.VarCombo_Click(0);
    EXPECT_EQ(view[LogicBox::Question], "\xE2\x82\xAC?");
    EXPECT_EQ(view.choices, Strings{"\xC3\xBC"});
    EXPECT_EQ(view[LogicBox::Advice], "\xC3\x9F");
}

TEST_F(LogicEditorTest, varCombo_showsQuestionAndChoicesAndSelectsTheFirst)
{
    LoadThree();
    editor.VarCombo_Click(0);
    EXPECT_EQ(view.variable, 0);
    EXPECT_EQ(view[LogicBox::Question], "How old?");
    EXPECT_EQ(view.choices, (Strings{"OLD", "YOUNG"}));
    EXPECT_EQ(view.choice, 0);
    EXPECT_EQ(view[LogicBox::Advice], "Rest.");
    EXPECT_TRUE(view.Takes(LogicBox::Question));
    EXPECT_TRUE(view.Takes(LogicBox::Advice));
}

TEST_F(LogicEditorTest, varCombo_withoutChoices_emptiesAndBarsTheAdvice)
{
    LoadThree();
    editor.VarCombo_Click(0);
    editor.VarCombo_Click(2);
    EXPECT_EQ(view[LogicBox::Question], "Where?");
    EXPECT_EQ(view.choices, Strings());
    EXPECT_EQ(view.choice, -1);
    EXPECT_EQ(view[LogicBox::Advice], "");
    EXPECT_FALSE(view.Takes(LogicBox::Advice));
}

TEST_F(LogicEditorTest, answerCombo_showsTheAdvice)
{
    LoadThree();
    editor.VarCombo_Click(0);
    editor.AnswerCombo_Click(1);
    EXPECT_EQ(view.choice, 1);
    EXPECT_EQ(view[LogicBox::Advice], "Run.");
}

TEST_F(LogicEditorTest, lostFocus_storesTheTexts)
{
    LoadThree();
    editor.VarCombo_Click(0);
    view[LogicBox::Question] = "New?";
    editor.VQuestionBox_LostFocus();
    view[LogicBox::Question] = "forgotten by the window";
    view[LogicBox::Advice] = "new";
    editor.VCAnswerBox_LostFocus();
    view[LogicBox::Question] = "New?";
    editor.VarCombo_Click(1);
    editor.VarCombo_Click(0);
    EXPECT_EQ(view[LogicBox::Question], "New?");
    EXPECT_EQ(view[LogicBox::Advice], "new");
    EXPECT_TRUE(editor.Changed());
}

TEST_F(LogicEditorTest, anythingThatSwitches_storesTheTextsFirst)
{
    LoadThree();
    editor.VarCombo_Click(0);
    view[LogicBox::Question] = "Q0";
    view[LogicBox::Advice] = "A0";
    editor.AnswerCombo_Click(1);
    view[LogicBox::Advice] = "A1";
    editor.VarCombo_Click(1);
    view[LogicBox::Question] = "Q1";
    AddVariable("NEW");
    view[LogicBox::Question] = "Q3";
    editor.VarCombo_Click(2);
    view[LogicBox::Question] = "Q2";
    AddChoice("c");
    view[LogicBox::Advice] = "A2";
    EXPECT_TRUE(editor.SaveButton_Click());
    Boxes();
    EXPECT_EQ(Logic(), CrLf({"<IXML>",
                             "<LOGIC>",
                             "TARGET RISK",
                             "</LOGIC>",
                             "<DEFINITIONS>",
                             "",
                             "<Q ID=AGE>Q0</Q>",
                             "",
                             "<AV ID=AGE(OLD)>A0</AV>",
                             "",
                             "<AV ID=AGE(YOUNG)>A1</AV>",
                             "",
                             "<Q ID=RISK>Q1</Q>",
                             "",
                             "<AV ID=RISK(HIGH)>Stop.</AV>",
                             "",
                             "<Q ID=PLACE>Q2</Q>",
                             "",
                             "<AV ID=PLACE(c)>A2</AV>",
                             "",
                             "<Q ID=NEW>Q3</Q>",
                             "",
                             "</DEFINITIONS>",
                             "</IXML>"}));
}

TEST_F(LogicEditorTest, deletionOfAnother_keepsWhatWasTyped)
{
    LoadThree();
    editor.VarCombo_Click(0);
    view[LogicBox::Question] = "Q0";
    editor.AnswerCombo_Click(1);
    editor.DelAnsButton_Click();
    EXPECT_EQ(view[LogicBox::Question], "Q0");
    view[LogicBox::Advice] = "A0";
    editor.VarCombo_Click(1);
    editor.VarDelButton_Click();
    editor.VarCombo_Click(0);
    EXPECT_EQ(view[LogicBox::Question], "Q0");
    EXPECT_EQ(view[LogicBox::Advice], "A0");
}

TEST_F(LogicEditorTest, addAns_characterOutsideTheCodePage_isNamed)
{
    LoadThree();
    editor.VarCombo_Click(0);
    AddChoice("\xE2\x86\x92");
    EXPECT_EQ(
        Boxes(),
        (Strings{ChoicePrompt,
                 "warning|Lodestar Advisor|The name holds the character \"\xE2\x86\x92\" (U+2192), which "
                 "a book cannot hold. Please replace it."}));
    EXPECT_EQ(view.choices, (Strings{"OLD", "YOUNG"}));
}

TEST_F(LogicEditorTest, sameEntryChosenAgain_keepsTheChoice)
{
    LoadThree();
    editor.VarCombo_Click(0);
    editor.AnswerCombo_Click(1);
    editor.VarCombo_Click(0);
    EXPECT_EQ(view.choice, 1);
}

TEST_F(LogicEditorTest, varAdd_clearsTheBoxesAndShowsIt)
{
    LoadThree();
    editor.VarCombo_Click(0);
    AddVariable("  Colour ");
    EXPECT_EQ(Boxes(), Strings{VariablePrompt});
    EXPECT_EQ(view.variables, (Strings{"AGE", "RISK", "PLACE", "Colour"}));
    EXPECT_EQ(view.variable, 3);
    EXPECT_EQ(view[LogicBox::Question], "");
    EXPECT_EQ(view.choices, Strings());
    EXPECT_EQ(view[LogicBox::Advice], "");
    EXPECT_TRUE(editor.Changed());
}

TEST_F(LogicEditorTest, varAdd_sameNameInAnyCase_isRefused)
{
    LoadThree();
    editor.VarCombo_Click(1);
    AddVariable(" age ");
    EXPECT_EQ(Boxes(), (Strings{VariablePrompt, Refusal("There is already a variable with this name.")}));
    EXPECT_EQ(view.variables.size(), 3U);
    EXPECT_EQ(view.variable, 1);
    EXPECT_FALSE(editor.Changed());
}

TEST_F(LogicEditorTest, varAdd_lettersWithAccents_compareInAnyCase)
{
    LoadEmpty();
    AddVariable("\xC3\xA9t\xC3\xA9");
    AddVariable("\xC3\x89T\xC3\x89");
    EXPECT_EQ(Boxes(), (Strings{VariablePrompt, VariablePrompt,
                                Refusal("There is already a variable with this name.")}));
}

TEST_F(LogicEditorTest, varAdd_cancelledOrBlank_addsNothing)
{
    LoadThree();
    world.messages.inputs = {std::nullopt, "", "   "};
    for (int i = 0; i < 3; ++i) {
        editor.VarAddButton_Click();
    }
    EXPECT_EQ(Boxes(), (Strings{VariablePrompt, VariablePrompt, VariablePrompt}));
    EXPECT_EQ(view.variables.size(), 3U);
    EXPECT_FALSE(editor.Changed());
}

TEST_F(LogicEditorTest, varAdd_characterOutsideTheCodePage_isNamed)
{
    LoadEmpty();
    AddVariable("\xE2\x86\x92");
    EXPECT_EQ(
        Boxes(),
        (Strings{VariablePrompt,
                 "warning|Lodestar Advisor|The name holds the character \"\xE2\x86\x92\" (U+2192), which "
                 "a book cannot hold. Please replace it."}));
    EXPECT_EQ(view.variables, Strings());
}

TEST_F(LogicEditorTest, varAdd_nameOfADeletedOne_startsEmpty)
{
    LoadThree();
    editor.VarCombo_Click(0);
    editor.VarDelButton_Click();
    AddVariable("AGE");
    EXPECT_EQ(view.variables, (Strings{"RISK", "PLACE", "AGE"}));
    EXPECT_EQ(view[LogicBox::Question], "");
    EXPECT_EQ(view.choices, Strings());
}

TEST_F(LogicEditorTest, varDel_nonePicked_isRefused)
{
    LoadThree();
    editor.VarDelButton_Click();
    EXPECT_EQ(Boxes(), Strings{Refusal("To delete a variable, first you must pick it from the list.")});
    EXPECT_EQ(view.variables.size(), 3U);
}

TEST_F(LogicEditorTest, varDel_movesTheSelectionToTheNextOrTheLast)
{
    LoadThree();
    editor.VarCombo_Click(0);
    editor.VarDelButton_Click();
    EXPECT_EQ(view.variables, (Strings{"RISK", "PLACE"}));
    EXPECT_EQ(view.variable, 0);
    EXPECT_EQ(view[LogicBox::Question], "");
    EXPECT_EQ(view.choices, Strings{"HIGH"}) << "those of the variable that is selected now";
    EXPECT_EQ(view.choice, 0);
    EXPECT_EQ(view[LogicBox::Advice], "Stop.");
    editor.VarCombo_Click(1);
    editor.VarDelButton_Click();
    EXPECT_EQ(view.variable, 0);
    editor.VarDelButton_Click();
    EXPECT_EQ(view.variables, Strings());
    EXPECT_EQ(view.variable, -1);
    EXPECT_EQ(view[LogicBox::Question], "");
    EXPECT_EQ(view[LogicBox::Advice], "");
    EXPECT_FALSE(view.Takes(LogicBox::Question));
    EXPECT_EQ(Boxes(), Strings());
}

TEST_F(LogicEditorTest, varDel_takesItsChoicesOutOfWhatIsWritten)
{
    LoadThree();
    editor.VarCombo_Click(0);
    editor.VarDelButton_Click();
    EXPECT_TRUE(editor.SaveButton_Click());
    Boxes();
    EXPECT_EQ(Logic(), CrLf({"<IXML>", "<LOGIC>", "TARGET RISK", "</LOGIC>", "<DEFINITIONS>", "",
                             "<Q ID=RISK></Q>", "", "<AV ID=RISK(HIGH)>Stop.</AV>", "",
                             "<Q ID=PLACE>Where?</Q>", "", "</DEFINITIONS>", "</IXML>"}));
}

TEST_F(LogicEditorTest, addAns_withoutVariable_isRefused)
{
    LoadThree();
    editor.AddAnsButton_Click();
    EXPECT_EQ(Boxes(), Strings{Refusal("Before adding a choice, first select a variable.")});
}

TEST_F(LogicEditorTest, addAns_clearsTheAdviceAndShowsIt)
{
    LoadThree();
    editor.VarCombo_Click(0);
    AddChoice(" Middle ");
    EXPECT_EQ(Boxes(), Strings{ChoicePrompt});
    EXPECT_EQ(view.choices, (Strings{"OLD", "YOUNG", "Middle"}));
    EXPECT_EQ(view.choice, 2);
    EXPECT_EQ(view[LogicBox::Advice], "");
    EXPECT_EQ(view[LogicBox::Question], "How old?");
    EXPECT_TRUE(editor.Changed());
}

TEST_F(LogicEditorTest, addAns_sameChoiceInAnyCase_isRefused)
{
    LoadThree();
    editor.VarCombo_Click(0);
    AddChoice("young");
    EXPECT_EQ(Boxes(), (Strings{ChoicePrompt, Refusal("There is already a choice with this name.")}));
    EXPECT_EQ(view.choices.size(), 2U);
    EXPECT_EQ(view.choice, 0);
    EXPECT_FALSE(editor.Changed());
}

TEST_F(LogicEditorTest, addAns_sameChoiceOfAnotherVariable_isTaken)
{
    LoadThree();
    editor.VarCombo_Click(1);
    AddChoice("OLD");
    EXPECT_EQ(view.choices, (Strings{"HIGH", "OLD"}));
}

TEST_F(LogicEditorTest, addAns_cancelledOrBlank_addsNothing)
{
    LoadThree();
    editor.VarCombo_Click(0);
    world.messages.inputs = {std::nullopt, "  "};
    editor.AddAnsButton_Click();
    editor.AddAnsButton_Click();
    EXPECT_EQ(Boxes(), (Strings{ChoicePrompt, ChoicePrompt}));
    EXPECT_EQ(view.choices.size(), 2U);
    EXPECT_FALSE(editor.Changed());
}

TEST_F(LogicEditorTest, delAns_withoutChoices_isRefused)
{
    LoadThree();
    const std::string box = Refusal("Before deleting a choice, choose a variable that has some.");
    editor.DelAnsButton_Click();
    EXPECT_EQ(Boxes(), Strings{box});
    editor.VarCombo_Click(2);
    editor.DelAnsButton_Click();
    EXPECT_EQ(Boxes(), Strings{box});
}

TEST_F(LogicEditorTest, delAns_nonePicked_isRefused)
{
    LoadThree();
    editor.VarCombo_Click(0);
    editor.AnswerCombo_Click(-1);
    editor.DelAnsButton_Click();
    EXPECT_EQ(Boxes(), Strings{Refusal("To delete a choice, first you must pick it from the list.")});
    EXPECT_EQ(view.choices.size(), 2U);
}

TEST_F(LogicEditorTest, delAns_takesItOutOfWhatIsWrittenAndMovesTheSelection)
{
    LoadThree();
    editor.VarCombo_Click(0);
    editor.DelAnsButton_Click();
    EXPECT_EQ(view.choices, Strings{"YOUNG"});
    EXPECT_EQ(view.choice, 0);
    EXPECT_EQ(view[LogicBox::Advice], "Run.") << "an emptied box would be stored as its advice";
    editor.DelAnsButton_Click();
    EXPECT_EQ(view.choices, Strings());
    EXPECT_EQ(view.choice, -1);
    EXPECT_EQ(view[LogicBox::Advice], "");
    EXPECT_TRUE(editor.SaveButton_Click());
    EXPECT_EQ(Logic(),
              CrLf({"<IXML>", "<LOGIC>", "TARGET RISK", "</LOGIC>", "<DEFINITIONS>", "",
                    "<Q ID=AGE>How old?</Q>", "", "<Q ID=RISK></Q>", "", "<AV ID=RISK(HIGH)>Stop.</AV>", "",
                    "<Q ID=PLACE>Where?</Q>", "", "</DEFINITIONS>", "</IXML>"}));
    EXPECT_EQ(Boxes(), Strings{NotUntilSaved});
}

TEST_F(LogicEditorTest, delAns_choiceMayBeAddedAgain)
{
    LoadThree();
    editor.VarCombo_Click(0);
    editor.DelAnsButton_Click();
    AddChoice("OLD");
    EXPECT_EQ(view.choices, (Strings{"YOUNG", "OLD"}));
    EXPECT_EQ(view[LogicBox::Advice], "");
}

TEST_F(LogicEditorTest, insertKeyword_orItsRefusal)
{
    LoadEmpty();
    editor.KeywordInsertButton_Click("");
    EXPECT_EQ(Boxes(),
              Strings{Refusal("To insert a keyword into the text box, first pick a keyword from the list.")});
    editor.KeywordInsertButton_Click("DEFINE");
    EXPECT_EQ(view[LogicBox::Logic], "DEFINE");
}

TEST_F(LogicEditorTest, insertVariable_orItsRefusal)
{
    LoadThree();
    editor.InsertButton_Click();
    EXPECT_EQ(Boxes(),
              Strings{Refusal(
                  "To insert a variable name into the text box, first pick a variable from the list.")});
    editor.VarCombo_Click(2);
    editor.InsertButton_Click();
    EXPECT_EQ(view[LogicBox::Logic], "TARGET RISK\r\nPLACE");
}

TEST_F(LogicEditorTest, insertChoice_orItsRefusal)
{
    LoadThree();
    const std::string box =
        Refusal("To insert a choice, you must first select a variable and achoice from the pick lists.");
    editor.InsAdvButton_Click();
    editor.VarCombo_Click(2);
    editor.InsAdvButton_Click();
    EXPECT_EQ(Boxes(), (Strings{box, box}));
    editor.VarCombo_Click(0);
    editor.AnswerCombo_Click(1);
    editor.InsAdvButton_Click();
    EXPECT_EQ(view[LogicBox::Logic], "TARGET RISK\r\nAGE(YOUNG)=");
}

TEST_F(LogicEditorTest, specification_showsWhatWouldBeWritten)
{
    LoadThree();
    const std::string before = Logic();
    editor.VarCombo_Click(1);
    view[LogicBox::Question] = "\xE2\x82\xAC?";
    editor.ShowSpecItem_Click();
    EXPECT_EQ(Boxes(), Strings());
    EXPECT_FALSE(book.BookChanged);
    EXPECT_EQ(Logic(), before);
    EXPECT_TRUE(editor.SaveButton_Click());
    Boxes();
    EXPECT_NE(Logic().find("<Q ID=RISK>\x80?</Q>\r\n"), std::string::npos);
    EXPECT_EQ(view.specifications, Strings{FromBook(Logic())});
}

TEST_F(LogicEditorTest, emptyLogicText_refusesSpecificationAndDone)
{
    LoadThree();
    view[LogicBox::Logic] = "";
    const std::string before = Logic();
    const std::string box = Refusal("There is no logic information to save.");
    editor.ShowSpecItem_Click();
    EXPECT_FALSE(editor.SaveButton_Click());
    EXPECT_EQ(Boxes(), (Strings{box, box}));
    EXPECT_EQ(view.specifications, Strings());
    EXPECT_EQ(Logic(), before);
    EXPECT_FALSE(book.BookChanged);
}

TEST_F(LogicEditorTest, done_storesTheBlockAndMarksTheBookChanged)
{
    LoadEmpty();
    view[LogicBox::Logic] = "AV(GO) = A(B)\n";
    EXPECT_TRUE(editor.SaveButton_Click());
    EXPECT_EQ(Boxes(), Strings{NotUntilSaved});
    EXPECT_EQ(Logic(), CrLf({"<IXML>", "<LOGIC>", "AV(GO) = A(B)", "</LOGIC>", "<DEFINITIONS>", "",
                             "</DEFINITIONS>", "</IXML>"}));
    EXPECT_EQ(book.TopicRecs(1).Text, "text\r\n");
    EXPECT_TRUE(book.BookChanged);
}

TEST_F(LogicEditorTest, doneUnchanged_writesTheSameBlock)
{
    LoadThree();
    EXPECT_TRUE(editor.SaveButton_Click());
    const std::string once = Logic();
    LogicEditor again(book, world.Get(), view);
    EXPECT_TRUE(again.Form_Load());
    EXPECT_TRUE(again.SaveButton_Click());
    EXPECT_EQ(Logic(), once);
    EXPECT_EQ(Boxes(), (Strings{NotUntilSaved, NotUntilSaved}));
}

TEST_F(LogicEditorTest, lineFeedOfTheBook_staysUnlessItsTextIsChanged)
{
    Load("<IXML>\r\n<LOGIC>\r\n* a\nb\r\n<DEFINITIONS>\r\n<Q ID=A>one\ntwo</Q>\r\n");
    editor.VarCombo_Click(0);
    view[LogicBox::Logic] = "* a\nb\n"; // as a box gives it
    view[LogicBox::Question] = "one\ntwo";
    EXPECT_FALSE(editor.Changed());
    EXPECT_TRUE(editor.SaveButton_Click());
    Boxes();
    EXPECT_EQ(Logic(), "<IXML>\r\n<LOGIC>\r\n* a\nb\r\n</LOGIC>\r\n<DEFINITIONS>\r\n\r\n"
                       "<Q ID=A>one\ntwo</Q>\r\n\r\n</DEFINITIONS>\r\n</IXML>\r\n");
}

TEST_F(LogicEditorTest, typedLineEnds_areStoredAsCrLf)
{
    LoadThree();
    editor.VarCombo_Click(0);
    view[LogicBox::Logic] = "a\rb\nc\r\n";
    view[LogicBox::Question] = "one\ntwo";
    EXPECT_TRUE(editor.SaveButton_Click());
    Boxes();
    EXPECT_EQ(Logic(), CrLf({"<IXML>",
                             "<LOGIC>",
                             "a",
                             "b",
                             "c",
                             "</LOGIC>",
                             "<DEFINITIONS>",
                             "",
                             "<Q ID=AGE>",
                             "one",
                             "two",
                             "</Q>",
                             "",
                             "<AV ID=AGE(OLD)>Rest.</AV>",
                             "",
                             "<AV ID=AGE(YOUNG)>Run.</AV>",
                             "",
                             "<Q ID=RISK></Q>",
                             "",
                             "<AV ID=RISK(HIGH)>Stop.</AV>",
                             "",
                             "<Q ID=PLACE>Where?</Q>",
                             "",
                             "</DEFINITIONS>",
                             "</IXML>"}));
}

struct UnmappedRow
{
    const char* name;
    LogicBox box;
    const char* text;
    const char* where;
    int line;
    int variable; ///< selected afterwards
    int choice;
};

struct UnmappedRows : LogicEditorTest, testing::WithParamInterface<UnmappedRow>
{
};

TEST_P(UnmappedRows, characterOutsideTheCodePage_isNamedAndGoneTo)
{
    LoadThree();
    editor.VarCombo_Click(0);
    editor.AnswerCombo_Click(1);
    view[GetParam().box] = GetParam().text;
    editor.VarCombo_Click(1);
    EXPECT_FALSE(editor.SaveButton_Click());
    editor.ShowSpecItem_Click();
    const std::string box = std::string("warning|Lodestar Advisor|") + GetParam().where +
                            " holds the character \"\xE2\x86\x92\" (U+2192), which a book cannot hold. "
                            "Please replace it.";
    EXPECT_EQ(Boxes(), (Strings{box, box}));
    const Place place = {GetParam().box, GetParam().line};
    EXPECT_EQ(view.wentTo, (std::vector<Place>{place, place}));
    EXPECT_EQ(view.variable, GetParam().variable);
    EXPECT_EQ(view.choice, GetParam().choice);
    EXPECT_EQ(view[GetParam().box], GetParam().text);
    EXPECT_FALSE(book.BookChanged);
    EXPECT_EQ(view.specifications, Strings());
}

INSTANTIATE_TEST_SUITE_P(Boxes, UnmappedRows,
                         testing::Values(UnmappedRow{"logic", LogicBox::Logic, "a\r\nb \xE2\x86\x92",
                                                     "Line 2 of the logic text", 2, 1, 0},
                                         UnmappedRow{"question", LogicBox::Question, "\xE2\x86\x92",
                                                     "Line 1 of the question for \"AGE\"", 1, 0, 0},
                                         UnmappedRow{"advice", LogicBox::Advice, "\r\n\r\n\xE2\x86\x92",
                                                     "Line 3 of the advice for \"AGE(YOUNG)\"", 3, 0, 1}),
                         [](const auto& row) { return std::string(row.param.name); });

constexpr const char* LostQuestion =
    "question|Lodestar Advisor|Not everything in this topic's logic can be kept as it was read:\n\nLine 5 of "
    "the block: The comment \"* old\" would be dropped.\n\nGo on all the same?|OKCancel";

TEST_F(LogicEditorTest, lostParts_doneAsksFirst)
{
    const std::string block = CrLf({"<IXML>", "<LOGIC>", "x", "<DEFINITIONS>", "* old", "<Q ID=A>a</Q>"});
    Load(block);
    world.messages.replies = {Reply::Cancel};
    EXPECT_FALSE(editor.SaveButton_Click());
    EXPECT_EQ(Boxes(), Strings{LostQuestion});
    EXPECT_EQ(Logic(), block);
    EXPECT_FALSE(book.BookChanged);
    world.messages.replies = {Reply::Ok};
    EXPECT_TRUE(editor.SaveButton_Click());
    EXPECT_EQ(Boxes(), (Strings{LostQuestion, NotUntilSaved}));
    EXPECT_TRUE(book.BookChanged);
}

TEST_F(LogicEditorTest, specification_asksNothing)
{
    Load(CrLf({"<IXML>", "<LOGIC>", "x", "<DEFINITIONS>", "* old"}));
    view[LogicBox::Logic] = "[B]";
    editor.ShowSpecItem_Click();
    EXPECT_EQ(view.specifications.size(), 1U);
    EXPECT_EQ(Boxes(), Strings());
}

constexpr const char* FaultQuestion =
    "question|Lodestar Advisor|Not everything here would be read back as it stands:\n\nThe advice for "
    "\"AGE(YOUNG)\", line 2: \"</AV>\" would end it.\n\nKeep the logic as it is?|OKCancel";

TEST_F(LogicEditorTest, linesThatBreakTheBlock_doneAsksAndGoesThere)
{
    LoadThree();
    editor.VarCombo_Click(0);
    editor.AnswerCombo_Click(1);
    view[LogicBox::Advice] = "a\n</AV>";
    editor.VarCombo_Click(2);
    world.messages.replies = {Reply::Cancel};
    EXPECT_FALSE(editor.SaveButton_Click());
    EXPECT_EQ(Boxes(), Strings{FaultQuestion});
    EXPECT_EQ(view.variable, 0);
    EXPECT_EQ(view.choice, 1);
    EXPECT_EQ(view.wentTo, (std::vector<Place>{{LogicBox::Advice, 2}}));
    EXPECT_FALSE(book.BookChanged);
    world.messages.replies = {Reply::Ok};
    EXPECT_TRUE(editor.SaveButton_Click());
    EXPECT_EQ(Boxes(), (Strings{FaultQuestion, NotUntilSaved}));
    EXPECT_NE(Logic().find("a\r\n</AV>\r\n</AV>"), std::string::npos);
}

TEST_F(LogicEditorTest, bareEntries_areWrittenAfterAllVariables)
{
    Load(CrLf({"<IXML>", "<LOGIC>", "x", "<DEFINITIONS>", "<AV ID=GO>", "  Go.", "</AV>", "<Q ID=A>a</Q>",
               "<av id=STAY>Stay.</AV>"}));
    EXPECT_EQ(view.variables, Strings{"A"});
    EXPECT_TRUE(editor.SaveButton_Click());
    EXPECT_EQ(Boxes(), Strings{NotUntilSaved});
    EXPECT_EQ(Logic(), CrLf({"<IXML>", "<LOGIC>", "x", "</LOGIC>", "<DEFINITIONS>", "", "<Q ID=A>a</Q>", "",
                             "<AV ID=GO>", "  Go.", "</AV>", "", "<av id=STAY>Stay.</AV>", "",
                             "</DEFINITIONS>", "</IXML>"}));
}

TEST_F(LogicEditorTest, block_isWhatWouldBeWritten_withoutAnyMessage)
{
    LoadThree();
    editor.VarCombo_Click(0);
    view[LogicBox::Question] = "New?";
    const std::optional<LogicBlock> block = editor.Block();
    ASSERT_TRUE(block.has_value());
    EXPECT_EQ(block->variables.at(0).question, "New?");
    EXPECT_EQ(block->choices.size(), 3U);
    view[LogicBox::Question] = "\xE2\x86\x92";
    EXPECT_EQ(editor.Block(), std::nullopt);
    EXPECT_EQ(Boxes(), Strings());
}

TEST_F(LogicEditorTest, changed_tellsOfAnyEdit)
{
    LoadThree();
    view[LogicBox::Logic] += "x";
    EXPECT_TRUE(editor.Changed());
    EXPECT_TRUE(editor.Form_Load());
    EXPECT_FALSE(editor.Changed());
    editor.VarCombo_Click(0);
    editor.DelAnsButton_Click();
    EXPECT_TRUE(editor.Changed());
}

TEST_F(LogicEditorTest, afterTheProgramEnded_nothingIsStored)
{
    LoadThree();
    const std::string before = Logic();
    Load(before + "x\r\n");
    EndProgram(world.end, "test");
    EXPECT_FALSE(editor.SaveButton_Click());
    EXPECT_EQ(Logic(), before + "x\r\n");
}

// A block with that many variables, "V1" and so on, each with a question.
std::string BlockWith(int variables)
{
    std::string block = "<IXML>\r\n<LOGIC>\r\nx\r\n<DEFINITIONS>\r\n";
    for (int i = 1; i <= variables; ++i) {
        block += "<Q ID=V" + std::to_string(i) + ">q</Q>\r\n";
    }
    return block;
}

TEST_F(LogicEditorTest, asManyVariablesAsThereCanBe_areEditedAtOnce)
{
    Load(BlockWith(32766));
    AddVariable("LAST");
    EXPECT_EQ(view.variables.size(), 32767U);
    AddVariable("ONE MORE");
    EXPECT_EQ(view.variables.size(), 32767U);
    AddVariable("v17");
    editor.VarCombo_Click(5);
    editor.VarDelButton_Click();
    EXPECT_TRUE(editor.SaveButton_Click());
    EXPECT_EQ(Boxes(),
              (Strings{VariablePrompt, VariablePrompt, "critical|Lodestar Advisor|Overflow", VariablePrompt,
                       Refusal("There is already a variable with this name."), NotUntilSaved}));
    EXPECT_EQ(ParseLogicBlock(Logic()).variables.size(), 32766U);
}

TEST_F(LogicEditorTest, moreVariablesThanThereCanBe_doesNotOpen)
{
    book.TopicRecs(1).Logic = BlockWith(32768);
    EXPECT_FALSE(editor.Form_Load());
    EXPECT_EQ(Boxes(), Strings{"critical|Lodestar Advisor|Overflow"});
}

// A block with one variable of that many choices, "1" and so on.
std::string BlockWithChoices(int choices)
{
    std::string block = "<IXML>\r\n<LOGIC>\r\nx\r\n<DEFINITIONS>\r\n<Q ID=A>a?</Q>\r\n<Q ID=B>b?</Q>\r\n";
    for (int i = 1; i <= choices; ++i) {
        block += "<AV ID=A(" + std::to_string(i) + ")></AV>\r\n";
    }
    return block;
}

TEST_F(LogicEditorTest, choicesOfAllVariables_countTogether)
{
    Load(BlockWithChoices(32766));
    editor.VarCombo_Click(1);
    AddChoice("last");
    EXPECT_EQ(view.choices, Strings{"last"});
    AddChoice("one more");
    AddChoice("Last");
    EXPECT_EQ(view.choices, Strings{"last"});
    editor.DelAnsButton_Click();
    AddChoice("one more");
    EXPECT_EQ(view.choices, Strings{"one more"});
    EXPECT_EQ(Boxes(),
              (Strings{ChoicePrompt, ChoicePrompt, "critical|Lodestar Advisor|Overflow", ChoicePrompt,
                       Refusal("There is already a choice with this name."), ChoicePrompt}));
}

TEST_F(LogicEditorTest, moreChoicesThanThereCanBe_doesNotOpen)
{
    book.TopicRecs(1).Logic = BlockWithChoices(32768);
    EXPECT_FALSE(editor.Form_Load());
    EXPECT_EQ(Boxes(), Strings{"critical|Lodestar Advisor|Overflow"});
}

} // namespace
} // namespace ls
