// Adding and deleting variables and choices in the logic editor.

#include "LogicEditorFixture.h"

namespace ls {
namespace {

using test::CrLf;

using LogicEditorLists = LogicEditorFixture;

TEST_F(LogicEditorLists, varAdd_clearsTheBoxesAndShowsIt)
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

TEST_F(LogicEditorLists, varAdd_sameNameInAnyCase_isRefused)
{
    LoadThree();
    editor.VarCombo_Click(1);
    AddVariable(" age ");
    EXPECT_EQ(Boxes(), (Strings{VariablePrompt, Refusal("There is already a variable with this name.")}));
    EXPECT_EQ(view.variables.size(), 3U);
    EXPECT_EQ(view.variable, 1);
    EXPECT_FALSE(editor.Changed());
}

TEST_F(LogicEditorLists, varAdd_lettersWithAccents_compareInAnyCase)
{
    LoadEmpty();
    AddVariable("\xC3\xA9t\xC3\xA9");
    AddVariable("\xC3\x89T\xC3\x89");
    EXPECT_EQ(Boxes(), (Strings{VariablePrompt, VariablePrompt,
                                Refusal("There is already a variable with this name.")}));
}

TEST_F(LogicEditorLists, varAdd_cancelledOrBlank_addsNothing)
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

TEST_F(LogicEditorLists, varAdd_characterOutsideTheCodePage_isNamed)
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

TEST_F(LogicEditorLists, varDel_nonePicked_isRefused)
{
    LoadThree();
    editor.VarDelButton_Click();
    EXPECT_EQ(Boxes(), Strings{Refusal("To delete a variable, first you must pick it from the list.")});
    EXPECT_EQ(view.variables.size(), 3U);
}

TEST_F(LogicEditorLists, addAns_withoutVariable_isRefused)
{
    LoadThree();
    editor.AddAnsButton_Click();
    EXPECT_EQ(Boxes(), Strings{Refusal("Before adding a choice, first select a variable.")});
}

TEST_F(LogicEditorLists, addAns_clearsTheAdviceAndShowsIt)
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

TEST_F(LogicEditorLists, addAns_sameChoiceInAnyCase_isRefused)
{
    LoadThree();
    editor.VarCombo_Click(0);
    AddChoice("young");
    EXPECT_EQ(Boxes(), (Strings{ChoicePrompt, Refusal("There is already a choice with this name.")}));
    EXPECT_EQ(view.choices.size(), 2U);
    EXPECT_EQ(view.choice, 0);
    EXPECT_FALSE(editor.Changed());
}

TEST_F(LogicEditorLists, addAns_characterOutsideTheCodePage_isNamed)
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

TEST_F(LogicEditorLists, addAns_cancelledOrBlank_addsNothing)
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

TEST_F(LogicEditorLists, delAns_withoutChoices_isRefused)
{
    LoadThree();
    const std::string box = Refusal("Before deleting a choice, choose a variable that has some.");
    editor.DelAnsButton_Click();
    EXPECT_EQ(Boxes(), Strings{box});
    editor.VarCombo_Click(2);
    editor.DelAnsButton_Click();
    EXPECT_EQ(Boxes(), Strings{box});
}

TEST_F(LogicEditorLists, delAns_nonePicked_isRefused)
{
    LoadThree();
    editor.VarCombo_Click(0);
    editor.AnswerCombo_Click(-1);
    editor.DelAnsButton_Click();
    EXPECT_EQ(Boxes(), Strings{Refusal("To delete a choice, first you must pick it from the list.")});
    EXPECT_EQ(view.choices.size(), 2U);
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

TEST_F(LogicEditorLists, asManyVariablesAsThereCanBe_areEditedAtOnce)
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

TEST_F(LogicEditorLists, moreVariablesThanThereCanBe_doesNotOpen)
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

TEST_F(LogicEditorLists, choicesOfAllVariables_countTogether)
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

TEST_F(LogicEditorLists, moreChoicesThanThereCanBe_doesNotOpen)
{
    book.TopicRecs(1).Logic = BlockWithChoices(32768);
    EXPECT_FALSE(editor.Form_Load());
    EXPECT_EQ(Boxes(), Strings{"critical|Lodestar Advisor|Overflow"});
}

} // namespace
} // namespace ls
