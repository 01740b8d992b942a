// Writing an advisor through the real windows, on real files.

#include "gui/MainFormFixture.h"

#include <QPlainTextEdit>

namespace ls {
namespace {

using test::Find;
using test::ModalScript;
using test::Press;
using test::Type;

constexpr const char* TheEditor = "form|LgEdForm|Topic Logic Edit";
constexpr const char* NotYet =
    "information|Lodestar Advisor|The changes will not take effect until you save the file.";
constexpr const char* AskVariable = "input|Lodestar Advisor|Type the name for the variable to be added.|";
constexpr const char* AskChoice = "input|Lodestar Advisor|Type the choice to be added.|";
constexpr const char* TheFileForm = "form|FileForm|Lodestar Advisor Save";
constexpr const char* Saved = "information|Lodestar Advisor|File saved";
constexpr const char* TheAdvisor = "form|AdvForm|Lodestar Advisor - Questions and Answers";

struct AdviceEdItemFormTest : MainFormFixture
{
    ModalScript script;

    // Opens the sample book of advisors, locked for editing, and shows the topic.
    void OpenSample(const char* topic)
    {
        QFile sample(QStringLiteral(LS_SAMPLES "/Advice.IDA"));
        ASSERT_TRUE(sample.open(QIODevice::ReadOnly));
        const std::string path = Write("Advice.IDA", sample.readAll().toStdString());
        Start(WriteThree());
        script.Do([path](QWidget& chooser) {
            Find<QAbstractButton>(chooser, "ExclusiveOption")->click();
            ChooseFile(chooser, path);
        });
        Press(form, "OpenItem");
        GoTo(topic);
    }

    void GoTo(const char* topic)
    {
        const auto& list = Get<QComboBox>("TopicList");
        const int index = list.findText(QString::fromLatin1(topic), Qt::MatchEndsWith);
        ASSERT_GE(index, 0) << topic;
        Select(index);
        Press(form, "GoToButton");
    }

    // Types after the last character.
    static void TypeBehind(QWidget& editor, const char* box, const char* text)
    {
        auto* edit = Find<QPlainTextEdit>(editor, box);
        edit->setFocus();
        QTest::keyClick(edit, Qt::Key_End, Qt::ControlModifier);
        test::TypeKeys(*edit, QString::fromLatin1(text));
    }

    static void Pick(QWidget& window, const char* list, const char* entry)
    {
        auto* combo = Find<QComboBox>(window, list);
        const int index = combo->findText(QString::fromLatin1(entry));
        ASSERT_GE(index, 0) << entry;
        combo->setCurrentIndex(index);
    }

    static std::string Text(const QWidget& window, const char* box)
    {
        return Find<QPlainTextEdit>(window, box)->toPlainText().toStdString();
    }

    static void Answer(QWidget& advisor, const char* question, const char* answer)
    {
        EXPECT_EQ(Text(advisor, "MessageBox").find(question), 0U) << Text(advisor, "MessageBox");
        Pick(advisor, "AnswerCombo", answer);
        Press(advisor, "NextButton");
    }

    // Saves the book under the name that the form proposes.
    void Save()
    {
        script.Do([](QWidget& chooser) { Press(chooser, "OKButton"); }).Answer(Reply::Ok);
        Press(form, "SaveItem");
    }
};

TEST_F(AdviceEdItemFormTest, newRuleVariableQuestionChoiceAndAdvice_runAfterDoneAndSave)
{
    OpenSample("A Sick Houseplant");
    script.Do([](QWidget& editor) {
        TypeBehind(editor, "LogicTextbox",
                   "\nCURE(REST) = SIGN(MUSHROOMS) SEASON(WINTER)\nCURE(LIFT) = SIGN(MUSHROOMS) ");
        Press(editor, "VarAddButton");
        Type(editor, "VQuestionBox", QStringLiteral("Which season is it?"));
        Press(editor, "AddAnsButton");
        Press(editor, "InsVarItem"); // inserts at the caret, which has not moved
        QTest::keyClicks(editor.focusWidget(), QStringLiteral("(AUTUMN)"));
        Pick(editor, "VarCombo", "CURE");
        Press(editor, "AddAnsButton");
        Type(editor, "VCAnswerBox", QStringLiteral("Lift the plant out and renew the soil."));
        test::TakePicture(editor, "LgEdForm-written");
        Press(editor, "SaveButton");
    });
    script.Enter("SEASON").Enter("AUTUMN").Enter("LIFT").Answer(Reply::Ok);
    Press(form, "AdviceEdItem");
    Save();
    EXPECT_EQ(global.book.BookPath, Path("Advice (001).IDA"));
    GoTo("A Sick Houseplant");
    script.Do([](QWidget& advisor) {
        Answer(advisor, "What do you see on the plant?", "MUSHROOMS");
        Answer(advisor, "Which season is it?", "AUTUMN");
        EXPECT_EQ(Text(advisor, "MessageBox"), "Lift the plant out and renew the soil.");
        Press(advisor, "NextButton");
    });
    Press(form, "AdvisorButton");
    EXPECT_EQ(script.Seen(), (Strings{"form|FileForm|Lodestar Advisor Open", TheEditor, AskVariable,
                                      AskChoice, AskChoice, NotYet, TheFileForm, Saved, TheAdvisor}));
    EXPECT_FALSE(global.book.BookChanged);
}

} // namespace
} // namespace ls
