#include "advisor/AdvForm.h"

#include "book/BookLoader.h"
#include "gui/MainFormFixture.h"
#include "render/text/ShowTopic.h"
#include "support/Json.h"

#include <QComboBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

#include <new>

namespace ls {
namespace {

using test::Find;

const char* const NoDefinition =
    "warning|Lodestar Advisor|I can't find the variable definition for <<[Weather]>>.";

struct AdvFormTest : MainFormFixture
{
    // Opens a book whose topic "Weather" has these logic lines and definitions.
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
    static QString Caption(const QWidget& window)
    {
        return Find<QPushButton>(window, "NextButton")->text().remove(u'&');
    }

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

TEST_F(AdvFormTest, question_showsTextAndChoices)
{
    StartUmbrella();
    test::ModalScript script;
    script.Do([](QWidget& window) {
        EXPECT_EQ(Find<QLabel>(window, "WarningLabel")->text(), QString());
        EXPECT_EQ(Text(window), QStringLiteral("How is the sky?\nLook <B>up</B>."));
        EXPECT_EQ(Choices(window), (Strings{"", "CLEAR", "GREY"}));
        EXPECT_EQ(Find<QComboBox>(window, "AnswerCombo")->currentIndex(), 0);
        EXPECT_EQ(Caption(window), QStringLiteral("Next"));
        EXPECT_EQ(window.focusWidget(), Find<QComboBox>(window, "AnswerCombo"));
        EXPECT_EQ(window.focusWidget()->accessibleDescription(), Text(window)) << "a screen reader reads it";
        test::TakePicture(window, "AdvFormQuestion");
        window.close();
    });
    test::Press(form, "AdvisorButton");
    EXPECT_EQ(script.Seen(), Strings{"form|AdvForm|Lodestar Advisor - Questions and Answers"});
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
        EXPECT_EQ(window.focusWidget()->accessibleDescription(), QStringLiteral("Go out."));
        test::TakePicture(window, "AdvFormAdvice");
        test::Press(window, "NextButton");
        EXPECT_FALSE(window.isVisible());
    });
    script.Answer(Reply::Ok);
    test::Press(form, "AdvisorButton");
    EXPECT_EQ(script.Seen().at(1), NoDefinition);
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
    struct Row
    {
        Qt::Key key;
        Qt::KeyboardModifier with;
    };
    StartUmbrella();
    test::ModalScript script;
    script.Do([](QWidget& window) {
        EXPECT_TRUE(test::WaitFor([&window] { return window.isActiveWindow(); }));
        for (const Row& row : {Row{Qt::Key_Down, Qt::AltModifier}, Row{Qt::Key_F4, Qt::NoModifier},
                               Row{Qt::Key_Space, Qt::NoModifier}}) {
            QTest::keyClick(window.windowHandle(), row.key, row.with);
            QWidget* list = QApplication::activePopupWidget();
            EXPECT_NE(list, nullptr) << row.key;
            if (list != nullptr) {
                QTest::keyClick(list, Qt::Key_Escape);
            }
            EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << row.key;
            EXPECT_TRUE(window.isVisible());
        }
        window.close();
    });
    test::Press(form, "AdvisorButton");
}

TEST_F(AdvFormTest, answerList_choiceTakenInItByKeys_isTheAnswer)
{
    StartUmbrella();
    test::ModalScript script;
    script.Do([](QWidget& window) {
        EXPECT_TRUE(test::WaitFor([&window] { return window.isActiveWindow(); }));
        QTest::keyClick(window.windowHandle(), Qt::Key_Space);
        ASSERT_NE(QApplication::activePopupWidget(), nullptr);
        auto* view = Find<QComboBox>(window, "AnswerCombo")->view();
        QTest::keyClick(view, Qt::Key_Down);
        QTest::keyClick(view, Qt::Key_Down);
        QTest::keyClick(view, Qt::Key_Return);
        EXPECT_EQ(Find<QComboBox>(window, "AnswerCombo")->currentText(), QStringLiteral("GREY"));
        QTest::keyClick(window.windowHandle(), Qt::Key_Return);
        EXPECT_EQ(Text(window), QStringLiteral("How is your mood?"));
        EXPECT_EQ(window.focusWidget(), Find<QComboBox>(window, "AnswerCombo"));
        QTest::keyClick(window.windowHandle(), Qt::Key_Question);
        EXPECT_EQ(Find<QComboBox>(window, "AnswerCombo")->currentText(), QStringLiteral("? - unsure"));
        window.close();
    });
    test::Press(form, "AdvisorButton");
}

TEST_F(AdvFormTest, escape_leavesAtAnyTimeAndKeepsWhatWasAnswered)
{
    StartUmbrella();
    test::ModalScript script;
    script.Do([](QWidget& window) {
        EXPECT_TRUE(test::WaitFor([&window] { return window.isActiveWindow(); }));
        Answer(window, 2);
        Find<QComboBox>(window, "AnswerCombo")->setCurrentIndex(2); // chosen, but not confirmed by Next
        QTest::keyClick(window.windowHandle(), Qt::Key_Escape);
        EXPECT_FALSE(window.isVisible());
    });
    test::Press(form, "AdvisorButton");
    EXPECT_EQ(global.advisor.AnswerCount, 1);
    EXPECT_TRUE(form.isVisible());
    script.Answer(Reply::Yes);
    script.Do([](QWidget& window) {
        EXPECT_EQ(Text(window), QStringLiteral("How is your mood?"));
        window.close();
    });
    test::Press(form, "AdvisorButton");
    script.Answer(Reply::No);
    script.Do([](QWidget& window) {
        EXPECT_EQ(Text(window), QStringLiteral("How is the sky?\nLook <B>up</B>."));
        window.close();
    });
    test::Press(form, "AdvisorButton");
    EXPECT_EQ(global.advisor.AnswerCount, 0);
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

TEST_F(AdvFormTest, longQuestion_isReadAndAnsweredByKeys)
{
    std::string lines = "1";
    for (int i = 2; i <= 60; ++i) {
        lines += "\r\n" + std::to_string(i);
    }
    Start(Write("Sixty.IDA", test::CrLf({"LODESTAR BOOK V5.3", "[Weather]", "text", "<IXML>", "<LOGIC>",
                                         "TARGET A", "A(1)=B(1)", "A(2)=B(2)", "<DEFINITIONS>"}) +
                                 "<Q ID=B>" + lines + "</Q>\r\n<Q ID=A></Q>\r\n<AV ID=A(1)>One.</AV>\r\n"));
    test::ModalScript script;
    script.Do([](QWidget& window) {
        EXPECT_TRUE(test::WaitFor([&window] { return window.isActiveWindow(); }));
        QTest::keyClick(window.windowHandle(), Qt::Key_1);
        auto* text = Find<QPlainTextEdit>(window, "MessageBox");
        QTest::keyClick(window.windowHandle(), Qt::Key_Q, Qt::AltModifier);
        EXPECT_EQ(window.focusWidget(), text);
        EXPECT_EQ(text->verticalScrollBar()->value(), 0);
        QTest::keyClick(window.windowHandle(), Qt::Key_PageDown);
        EXPECT_GT(text->verticalScrollBar()->value(), 0);
        QTest::keyClick(window.windowHandle(), Qt::Key_End, Qt::ControlModifier);
        EXPECT_EQ(text->verticalScrollBar()->value(), text->verticalScrollBar()->maximum());
        QTest::keyClick(window.windowHandle(), Qt::Key_Return);
        EXPECT_EQ(Text(window), QStringLiteral("One."));
        QTest::keyClick(window.windowHandle(), Qt::Key_Return);
        EXPECT_FALSE(window.isVisible());
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

TEST_F(AdvFormTest, adviceBook_stainAskedAgain_opensOnItsAdviceBehindTheBox)
{
    QFile::copy(QString::fromUtf8(LS_SAMPLES "/Advice.IDA"), QString::fromStdString(Path("Advice.IDA")));
    Start(Path("Advice.IDA"), "A Stain on the Cloth");
    test::ModalScript script;
    QString advice;
    script.Do([&advice](QWidget& window) {
        Answer(window, 2); // the first answer after the empty item and "? - unsure"
        Answer(window, 1);
        advice = Text(window);
        test::Press(window, "NextButton");
    });
    script.Answer(Reply::Ok);
    test::Press(form, "AdvisorButton");
    EXPECT_GT(advice.size(), 40);
    script.Answer(Reply::Yes);
    script.Answer(Reply::Ok);
    script.Do([&advice](QWidget& window) {
        EXPECT_EQ(Text(window), advice);
        window.close();
    });
    test::Press(form, "AdvisorButton");
}

// An exception that reaches the window's event loop would end the program without a message.
TEST(AdvFormFaults, memoryRunsOutWhileAnswering_isReportedAndTheWindowStays)
{
    test::TestSeams world;
    const std::string farAway(200'000, 'x'); // so that the other topic is not read yet
    world.files["/far.IDA"] =
        test::CrLf({"LODESTAR BOOK V5.3", "[Near]", "<IXML>", "<LOGIC>", "DEFINE B@Far", "AV(GO)=A(1)B(1)",
                    "AV(STAY)=A(2)B(2)", "AV(WAIT)=A(1)B(2)", "<DEFINITIONS>", "<Q ID=A>A?</Q>",
                    "</DEFINITIONS>", "</IXML>", "[Between]"}) +
        farAway + test::CrLf({"", "[Far]", "<IXML>", "<LOGIC>", "<DEFINITIONS>", "<Q ID=B>B?</Q>"});
    Global global;
    global.book.BookPath = "/far.IDA";
    ASSERT_TRUE(OpenBook(global.book, world.Get()));
    ASSERT_TRUE(ScanBook(global.book, world.Get()));
    ShownTopic shown;
    global.book.CurrentTopicName = "Near";
    global.book.CurrentTopicNo = 0;
    ASSERT_EQ(ShowTopic(global.book, world.Get(), global.book.CurrentTopicName, global.book.CurrentTopicNo,
                        80, shown),
              ShowResult::Shown);
    global.book.LogicPos = shown.logicPos;
    test::ModalScript script;
    script.Do([&world](QWidget& window) {
        EXPECT_EQ(Find<QPlainTextEdit>(window, "MessageBox")->toPlainText(), QStringLiteral("A?"));
        world.files.fail = [](const std::string& operation) -> int {
            if (operation.rfind("read", 0) == 0) {
                throw std::bad_alloc();
            }
            return 0;
        };
        Find<QComboBox>(window, "AnswerCombo")->setCurrentIndex(1);
        test::Press(window, "NextButton");
        EXPECT_TRUE(window.isVisible());
        window.close();
    });
    AdvForm(nullptr, global.book, global.advisor, world.Get()).Run();
    EXPECT_EQ(world.messages.Take(), Strings{"critical|Lodestar Advisor|Out of memory"});
    EXPECT_FALSE(world.end.Ended());
}

} // namespace
} // namespace ls
