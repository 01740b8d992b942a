// Done, the button that shows the block, and every way to close the logic editor's window.

#include "check/CheckBook.h"
#include "gui/LgEdFormFixture.h"
#include "gui/ModalScript.h"
#include "support/RowName.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QListWidget>

#include <algorithm>

namespace ls {
namespace {

using test::Press;

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
};

INSTANTIATE_TEST_SUITE_P(Changes, LgEdFormAsks, testing::ValuesIn(ChangeCases), test::RowName());

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

using LgEdFormSize = LgEdFormFixture;

} // namespace
} // namespace ls
