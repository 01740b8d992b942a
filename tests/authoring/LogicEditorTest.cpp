// What the logic editor loads, shows, stores and inserts.

#include "LogicEditorFixture.h"

namespace ls {
namespace {

using test::CrLf;

using LogicEditorTest = LogicEditorFixture;

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

} // namespace
} // namespace ls
