#include "advisor/AdvForm.h"

#include "gui/MainFormFixture.h"
#include "support/Json.h"

#include <QComboBox>
#include <QFontMetrics>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>

namespace ls {
namespace {

using test::Find;

const char* const NoDefinition =
    "warning|Lodestar Advisor|I can't find the variable definition for <<[Weather]>>.";
const char* const Reuse =
    "question|Lodestar Advisor|You have already answered some questions.  In case your answers are "
    "relevant to this topic, do you wish me to re-use those answers?|YesNo";

struct AdvFormTest : MainFormFixture
{
    // A book whose topic "Weather" has these logic lines and definitions.
    void StartWith(std::initializer_list<const char*> block)
    {
        Start(Write("Advisor.IDA",
                    test::CrLf({"LODESTAR BOOK V5.3", "[Weather]", "text", "<IXML>", "<LOGIC>"}) +
                        test::CrLf(block)));
    }

    void StartUmbrella()
    {
        StartWith({"AV(GO)=SKY(CLEAR)", "AV(STAY)=SKY(GREY)MOOD(BAD)", "AV(WET)=SKY(GREY)MOOD(GOOD)",
                   "MOOD(GOOD)=SLEPT(YES)", "MOOD(BAD)=SLEPT(NO)", "<DEFINITIONS>",
                   "<Q ID=SKY>How is the sky?", "Look <B>up</B>.</Q>", "<Q ID=MOOD>How is your mood?</Q>",
                   "<Q ID=SLEPT>Did you sleep well?</Q>", "<AV ID=GO>Go out.</AV>", "<AV ID=STAY>Stay.</AV>",
                   "<AV ID=WET>Take an umbrella.</AV>", "</DEFINITIONS>", "</IXML>"});
    }

    static QString Text(const QWidget& window)
    {
        return Find<QPlainTextEdit>(window, "MessageBox")->toPlainText();
    }
    static QString Caption(const QWidget& window) { return Find<QPushButton>(window, "NextButton")->text(); }

    static Strings Choices(const QWidget& window)
    {
        Strings choices;
        const auto* list = Find<QComboBox>(window, "AnswerCombo");
        for (int i = 0; i < list->count(); ++i) {
            choices.push_back(list->itemText(i).toStdString());
        }
        return choices;
    }

    static void Answer(const QWidget& window, int choice)
    {
        Find<QComboBox>(window, "AnswerCombo")->setCurrentIndex(choice);
        test::Press(window, "NextButton");
    }
};

TEST_F(AdvFormTest, question_showsCaptionsTextAndChoices)
{
    StartUmbrella();
    test::ModalScript script;
    script.Do([](QWidget& window) {
        EXPECT_EQ(Find<QLabel>(window, "IntroLabel")->text().remove(u'&'),
                  QStringLiteral("Questions and answers..."));
        EXPECT_EQ(Find<QLabel>(window, "AnswerLabel")->text().remove(u'&'), QStringLiteral("Your Answer:"));
        EXPECT_EQ(Find<QLabel>(window, "WarningLabel")->text(), QString());
        EXPECT_EQ(Text(window), QStringLiteral("How is the sky?\nLook <B>up</B>."));
        EXPECT_EQ(Choices(window), (Strings{"", "CLEAR", "GREY"}));
        EXPECT_EQ(Find<QComboBox>(window, "AnswerCombo")->currentIndex(), 0);
        EXPECT_EQ(Caption(window), QStringLiteral("Next"));
        EXPECT_EQ(window.focusWidget(), Find<QComboBox>(window, "AnswerCombo"));
        test::TakePicture(window, "AdvFormQuestion");
        window.close();
    });
    test::Press(form, "AdvisorButton");
    EXPECT_EQ(script.Seen(), Strings{"form|AdvForm|Lodestar Advisor - Questions and Answers"});
}

TEST_F(AdvFormTest, next_onTheEmptyItem_remindsAndAsksAgain)
{
    StartUmbrella();
    test::ModalScript script;
    script.Do([](QWidget& window) {
        test::Press(window, "NextButton");
        EXPECT_TRUE(window.isVisible());
        EXPECT_EQ(Text(window), QStringLiteral("How is the sky?\nLook <B>up</B>."));
        window.close();
    });
    script.Answer(Reply::Ok);
    test::Press(form, "AdvisorButton");
    EXPECT_EQ(script.Seen().at(1), "none|Lodestar Advisor|Please select an answer before pressing NEXT");
}

TEST_F(AdvFormTest, defaultGoal_messageComesFirstAndThenTheAdviceBehindTheQuestion)
{
    StartUmbrella();
    test::ModalScript script;
    script.Do([](QWidget& window) {
        Answer(window, 1);
        EXPECT_EQ(Text(window), QStringLiteral("Go out."));
        EXPECT_FALSE(Find<QComboBox>(window, "AnswerCombo")->isVisible());
        EXPECT_FALSE(Find<QLabel>(window, "AnswerLabel")->isVisible());
        EXPECT_EQ(Caption(window), QStringLiteral("Close"));
        EXPECT_EQ(window.focusWidget(), Find<QPushButton>(window, "NextButton"));
        test::TakePicture(window, "AdvFormAdvice");
        test::Press(window, "NextButton");
        EXPECT_FALSE(window.isVisible());
    });
    script.Answer(Reply::Ok);
    test::Press(form, "AdvisorButton");
    EXPECT_EQ(script.Seen().at(1), NoDefinition);
}

TEST_F(AdvFormTest, unsure_isOfferedForADerivedVariableAndLeadsToItsQuestion)
{
    StartUmbrella();
    test::ModalScript script;
    script.Do([](QWidget& window) {
        Answer(window, 2);
        EXPECT_EQ(Text(window), QStringLiteral("How is your mood?"));
        EXPECT_EQ(Choices(window), (Strings{"", "? - unsure", "BAD", "GOOD"}));
        Answer(window, 1);
        EXPECT_EQ(Text(window), QStringLiteral("Did you sleep well?"));
        Answer(window, 1);
        EXPECT_EQ(Text(window), QStringLiteral("Take an umbrella."));
        window.close();
    });
    script.Answer(Reply::Ok);
    test::Press(form, "AdvisorButton");
}

TEST_F(AdvFormTest, keyboardAlone_answersAndCloses)
{
    StartUmbrella();
    test::ModalScript script;
    script.Do([](QWidget& window) {
        EXPECT_TRUE(test::WaitFor([&window] { return window.isActiveWindow(); }));
        QTest::keyClick(window.windowHandle(), Qt::Key_C);
        EXPECT_EQ(Find<QComboBox>(window, "AnswerCombo")->currentText(), QStringLiteral("CLEAR"));
        QTest::keyClick(window.windowHandle(), Qt::Key_Return);
        EXPECT_EQ(Text(window), QStringLiteral("Go out."));
        QTest::keyClick(window.windowHandle(), Qt::Key_Return);
        EXPECT_FALSE(window.isVisible());
    });
    script.Answer(Reply::Ok);
    test::Press(form, "AdvisorButton");
}

TEST_F(AdvFormTest, answerList_opensWithTheKeyboard)
{
    StartUmbrella();
    test::ModalScript script;
    script.Do([](QWidget& window) {
        EXPECT_TRUE(test::WaitFor([&window] { return window.isActiveWindow(); }));
        QTest::keyClick(window.windowHandle(), Qt::Key_Down, Qt::AltModifier);
        EXPECT_NE(QApplication::activePopupWidget(), nullptr);
        if (QApplication::activePopupWidget() != nullptr) {
            QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
        }
        EXPECT_TRUE(window.isVisible());
        QTest::keyClick(window.windowHandle(), Qt::Key_Escape);
        EXPECT_FALSE(window.isVisible()) << "Escape closes";
    });
    test::Press(form, "AdvisorButton");
}

TEST_F(AdvFormTest, secondRun_offersTheAnswersAgainAndOpensOnTheAdvice)
{
    StartUmbrella();
    test::ModalScript script;
    script.Do([](QWidget& window) {
        Answer(window, 1);
        test::Press(window, "NextButton");
    });
    script.Answer(Reply::Ok);
    test::Press(form, "AdvisorButton");
    script.Answer(Reply::Yes); // re-use
    script.Answer(Reply::Ok);  // the default goal's message
    script.Do([](QWidget& window) {
        EXPECT_EQ(Caption(window), QStringLiteral("Close"));
        EXPECT_FALSE(Find<QComboBox>(window, "AnswerCombo")->isVisible());
        window.close();
    });
    test::Press(form, "AdvisorButton");
    EXPECT_EQ(script.Seen().at(2), Reuse);
    EXPECT_EQ(script.Seen().at(3), NoDefinition);
}

TEST_F(AdvFormTest, faultyBlock_saysSoInTheTextAndCanOnlyBeClosed)
{
    StartWith({"NONSENSE", "<DEFINITIONS>"});
    test::ModalScript script;
    script.Answer(Reply::Ok);
    script.Do([](QWidget& window) {
        EXPECT_EQ(Text(window),
                  QStringLiteral("Failure loading logic section for topic <<[Weather]>>; I can't proceed."));
        EXPECT_EQ(Caption(window), QStringLiteral("Close"));
        EXPECT_FALSE(Find<QComboBox>(window, "AnswerCombo")->isEnabled());
        test::Press(window, "NextButton");
        EXPECT_FALSE(window.isVisible());
    });
    test::Press(form, "AdvisorButton");
    EXPECT_EQ(script.Seen().at(0),
              "critical|Lodestar Advisor|Invalid command in <LOGIC> section for the current topic");
}

TEST_F(AdvFormTest, circularDefinition_warnsAndEndsTheProgramWithoutTheWindow)
{
    StartWith({"AV(GO)=AV(STAY)", "<DEFINITIONS>", "</DEFINITIONS>"});
    global.book.BookChanged = true; // nothing is asked even so
    test::ModalScript script;
    script.Answer(Reply::Ok);
    test::Press(form, "AdvisorButton");
    EXPECT_EQ(script.Seen(), Strings{"critical|Lodestar Advisor|Warning--circular definition"});
    EXPECT_EQ(global.end.Reason(), "circular definition");
    EXPECT_FALSE(form.isVisible());
}

TEST_F(AdvFormTest, faultDuringTheDialogue_endsTheProgramAndClosesBothWindows)
{
    StartWith({"AV(GO)=A(1)", "AV(NO)=A(2)B(1)", "AV(NO)=A(2)B(2)", "B(1)=AV(GO)", "B(2)=AV(NO)",
               "<DEFINITIONS>", "<Q ID=A>A?</Q>", "<Q ID=B></Q>", "</DEFINITIONS>"});
    test::ModalScript script;
    script.Do([](QWidget& window) { Answer(window, 2); });
    script.Answer(Reply::Ok);
    test::Press(form, "AdvisorButton");
    EXPECT_EQ(script.Seen().at(1), "critical|Lodestar Advisor|Warning--circular definition");
    EXPECT_TRUE(global.end.Ended());
    EXPECT_FALSE(form.isVisible());
}

TEST_F(AdvFormTest, question15Lines_showsWhole_longerOnesScroll)
{
    std::string lines = "1";
    for (int i = 2; i <= 15; ++i) {
        lines += "\r\n" + std::to_string(i);
    }
    const std::string block = "AV(GO)=A(1)\r\nAV(NO)=A(2)\r\n<DEFINITIONS>\r\n<Q ID=A>" + lines;
    const std::string head = test::CrLf({"LODESTAR BOOK V5.3", "[Weather]", "text", "<IXML>", "<LOGIC>"});
    Start(Write("Fifteen.IDA", head + block + "</Q>\r\n"));
    test::ModalScript script;
    script.Do([](QWidget& window) {
        EXPECT_EQ(Find<QPlainTextEdit>(window, "MessageBox")->verticalScrollBar()->maximum(), 0);
        window.close();
    });
    test::Press(form, "AdvisorButton");
    std::string longer = lines;
    for (int i = 16; i <= 60; ++i) {
        longer += "\r\n" + std::to_string(i);
    }
    Open(script, Write("Sixty.IDA", head + "AV(GO)=A(1)\r\nAV(NO)=A(2)\r\n<DEFINITIONS>\r\n<Q ID=A>" +
                                        longer + "</Q>\r\n"));
    script.Do([](QWidget& window) {
        EXPECT_GT(Find<QPlainTextEdit>(window, "MessageBox")->verticalScrollBar()->maximum(), 0);
        window.close();
    });
    test::Press(form, "AdvisorButton");
}

TEST_F(AdvFormTest, resize_givesTheTextTheExtraSpace)
{
    StartUmbrella();
    test::ModalScript script;
    script.Do([](QWidget& window) {
        const QSize text = Find<QPlainTextEdit>(window, "MessageBox")->size();
        const int combo = Find<QComboBox>(window, "AnswerCombo")->height();
        window.resize(window.size() + QSize(100, 80));
        QApplication::processEvents();
        EXPECT_EQ(Find<QPlainTextEdit>(window, "MessageBox")->size(), text + QSize(100, 80));
        EXPECT_EQ(Find<QComboBox>(window, "AnswerCombo")->height(), combo);
        window.close();
    });
    test::Press(form, "AdvisorButton");
}

TEST_F(AdvFormTest, lettersOfTheCodePage_areShownAndComeBackUnchanged)
{
    StartWith({"AV(GO)=A(\xE9t\xE9)", "AV(NO)=A(hiver)", "<DEFINITIONS>", "<Q ID=A>Saison \x80?</Q>",
               "<AV ID=GO>\xC9t\xE9.</AV>"});
    test::ModalScript script;
    script.Do([](QWidget& window) {
        EXPECT_EQ(Text(window), QStringLiteral("Saison \u20AC?"));
        EXPECT_EQ(Choices(window).at(1), "\xC3\x89T\xC3\x89");
        Answer(window, 1);
        EXPECT_EQ(Text(window), QStringLiteral("\u00C9t\u00E9."));
        window.close();
    });
    script.Answer(Reply::Ok);
    test::Press(form, "AdvisorButton");
}

TEST_F(AdvFormTest, bookTruncatedWhileItAsks_endsInAMessageNotInACrash)
{
    StartUmbrella();
    test::ModalScript script;
    script.Do([this](QWidget& window) {
        QFile::resize(QString::fromStdString(Path("Advisor.IDA")), 30);
        Answer(window, 2);
        EXPECT_EQ(Caption(window), QStringLiteral("Close"));
        window.close();
    });
    test::Press(form, "AdvisorButton");
    EXPECT_FALSE(global.end.Ended());
}

TEST_F(AdvFormTest, adviceBook_plantAdvisorThroughTheWindow_endsInAdvice)
{
    QFile::copy(QString::fromUtf8(LS_SAMPLES "/Advice.IDA"), QString::fromStdString(Path("Advice.IDA")));
    Start(Path("Advice.IDA"), "A Sick Houseplant");
    test::ModalScript script;
    script.Do([](QWidget& window) {
        for (int i = 0; i < 20 && Caption(window) == QStringLiteral("Next"); ++i) {
            Answer(window, 1);
        }
        EXPECT_EQ(Caption(window), QStringLiteral("Close"));
        EXPECT_FALSE(Find<QComboBox>(window, "AnswerCombo")->isVisible());
        EXPECT_GT(Text(window).size(), 40);
        test::TakePicture(window, "AdvFormPlant");
        window.close();
    });
    test::Press(form, "AdvisorButton");
}

} // namespace
} // namespace ls
