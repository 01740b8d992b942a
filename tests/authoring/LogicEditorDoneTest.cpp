// What the logic editor shows as its block, asks about and stores.

#include "LogicEditorFixture.h"
#include "base/CodePage.h"
#include "support/RowName.h"

namespace ls {
namespace {

using test::CrLf;
using Place = test::RecordingLogicView::Place;

using LogicEditorDone = LogicEditorFixture;

TEST_F(LogicEditorDone, specification_showsWhatWouldBeWritten)
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

TEST_F(LogicEditorDone, emptyLogicText_refusesSpecificationAndDone)
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

TEST_F(LogicEditorDone, done_storesTheBlockAndMarksTheBookChanged)
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

TEST_F(LogicEditorDone, runningText_isWhatDoneWouldStore)
{
    LoadThree();
    view[LogicBox::Logic] = "AGE(OLD) = RISK(HIGH)\nTARGET RISK";
    const std::string running = editor.RunningText();
    EXPECT_FALSE(book.BookChanged);
    EXPECT_TRUE(editor.SaveButton_Click());
    Boxes();
    EXPECT_EQ(running, FromBook(Logic()));
}

TEST_F(LogicEditorDone, runningText_whatDoneRefuses_isThereWithoutABox)
{
    LoadThree();
    view[LogicBox::Logic] = "* \xE2\x86\x92";
    EXPECT_NE(editor.RunningText().find("* \xE2\x86\x92\r\n"), std::string::npos);
    view[LogicBox::Logic] = "";
    EXPECT_NE(editor.RunningText().find("<Q ID=AGE>How old?</Q>"), std::string::npos);
    EXPECT_EQ(Boxes(), Strings());
}

TEST_F(LogicEditorDone, doneUnchanged_writesTheSameBlock)
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

TEST_F(LogicEditorDone, lineFeedOfTheBook_staysUnlessItsTextIsChanged)
{
    Load("<IXML>\r\n<LOGIC>\r\n* a\nb\r\n<DEFINITIONS>\r\n<Q ID=A>one\ntwo</Q>\r\n");
    editor.VarCombo_Click(0);
    view[LogicBox::Logic] = "* a\nb\n"; // a box returns LF line ends
    view[LogicBox::Question] = "one\ntwo";
    EXPECT_FALSE(editor.Changed());
    EXPECT_TRUE(editor.SaveButton_Click());
    Boxes();
    EXPECT_EQ(Logic(), "<IXML>\r\n<LOGIC>\r\n* a\nb\r\n</LOGIC>\r\n<DEFINITIONS>\r\n\r\n"
                       "<Q ID=A>one\ntwo</Q>\r\n\r\n</DEFINITIONS>\r\n</IXML>\r\n");
}

TEST_F(LogicEditorDone, typedLineEnds_areStoredAsCrLf)
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
    int variable; ///< the variable selected afterwards
    int choice;
};

struct UnmappedRows : LogicEditorDone, testing::WithParamInterface<UnmappedRow>
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
                         test::RowName());

constexpr const char* LostQuestion =
    "question|Lodestar Advisor|Not everything in this topic's logic can be kept as it was read:\n\nLine 5 of "
    "the block: The comment \"* old\" would be dropped.\n\nGo on all the same?|OKCancel";

TEST_F(LogicEditorDone, lostParts_doneAsksFirst)
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

TEST_F(LogicEditorDone, specification_asksNothing)
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

TEST_F(LogicEditorDone, linesThatBreakTheBlock_doneAsksAndGoesThere)
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

TEST_F(LogicEditorDone, bareEntries_areWrittenAfterAllVariables)
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

TEST_F(LogicEditorDone, block_isWhatWouldBeWritten_withoutAnyMessage)
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

TEST_F(LogicEditorDone, afterTheProgramEnded_nothingIsStored)
{
    LoadThree();
    const std::string before = Logic();
    Load(before + "x\r\n");
    EndProgram(world.end, "test");
    EXPECT_FALSE(editor.SaveButton_Click());
    EXPECT_EQ(Logic(), before + "x\r\n");
}

} // namespace
} // namespace ls
