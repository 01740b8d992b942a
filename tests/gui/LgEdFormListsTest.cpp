// Picking, adding and deleting variables and choices in the logic editor's window.

#include "gui/LgEdFormFixture.h"

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

} // namespace
} // namespace ls
