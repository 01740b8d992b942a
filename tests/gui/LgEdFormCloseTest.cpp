// Done, Specification and every way out of the logic editor's window.

#include "check/CheckBook.h"
#include "gui/LgEdFormFixture.h"
#include "gui/ModalScript.h"

#include <QAbstractItemView>
#include <QClipboard>
#include <QGuiApplication>
#include <QListWidget>

#include <algorithm>

namespace ls {
namespace {

using test::Press;

const std::string Refused = "exclamation|Lodestar Advisor|";

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
