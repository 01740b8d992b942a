// An author begins a book from nothing, meets what cannot be edited, and moves topics that have an advisor.

#include "gui/AuthorFixture.h"

#include <functional>

namespace ls {
namespace {

using test::Find;
using test::ModalScript;
using test::Press;

struct NewBook : AuthorFixture
{
};

TEST_F(NewBook, beginFromNothing_isSavedAsIdeasAndReadsTheSame)
{
    StartWithoutBook();
    {
        ModalScript script;
        script.Answer(Reply::Ok);
        Press(form, "NewItem");
    }
    Add("First", QStringLiteral("one &LT; two"));
    Add("Second", QStringLiteral("<B>three</B>"));
    EXPECT_EQ(ItemTexts(), (Strings{"1. First", "2. Second"}));
    EXPECT_EQ(ShownText(), Strings{"[three]"});
    Save("Ideas (001).ida");
    EXPECT_EQ(Read(Path("Ideas (001).ida")),
              "LODESTAR BOOK V5.3\r\n[First]\r\none &LT; two\r\n[Second]\r\n<B>three</B>\r\n");
    for (int pass = 0; pass < 2; ++pass) {
        SCOPED_TRACE(pass == 0 ? "in the new file" : "opened again");
        EXPECT_EQ(ItemTexts(), (Strings{"1. First", "2. Second"}));
        EXPECT_EQ(ShownText(), Strings{"one < two"});
        GoTo(1);
        EXPECT_EQ(ShownText(), Strings{"[three]"});
        if (pass == 0) {
            OpenAgain();
        }
    }
}

TEST_F(NewBook, editedAndSavedAgainAndAgain_losesNothing)
{
    StartWithoutBook();
    Add("Only", QStringLiteral("start"));
    Save("Ideas (001).ida");
    EditTopicOnShow();
    Save("Ideas (002).IDA");
    EditTopicOnShow();
    Save("Ideas (003).IDA");
    const std::string line = "<B>" + std::string(TypedLine) + "</B>\r\n";
    EXPECT_EQ(Read(Path("Ideas (003).IDA")),
              "LODESTAR BOOK V5.3\r\n[Only]\r\n" + line + line + "start\r\n\r\n\r\n");
    EXPECT_EQ(Read(Path("Ideas (002).IDA")), "LODESTAR BOOK V5.3\r\n[Only]\r\n" + line + "start\r\n\r\n");
    EXPECT_EQ(Read(Path("Ideas (001).ida")), "LODESTAR BOOK V5.3\r\n[Only]\r\nstart\r\n");
}

struct Author : AuthorFixture
{
};

TEST_F(Author, plainTextSample_refusesEveryEditAndIsNeverChanged)
{
    ModalScript script;
    script.Answer(Reply::Ok);
    Start(Write("Tides.TXT", Read(LS_SAMPLES "/Tides.TXT")));
    const Strings shown = ShownText();
    for (const char* item :
         {"EdTextItem", "EditPropertiesOption", "DelTopicItem", "AddTopicItem", "SaveItem"}) {
        script.Answer(Reply::Ok);
        Press(form, item);
    }
    constexpr const char* Nothing = "warning|Lodestar Advisor|There is nothing to edit.";
    EXPECT_EQ(Strings(script.Seen().begin() + 1, script.Seen().end()),
              (Strings{Nothing, Nothing, Nothing,
                       "warning|Lodestar Advisor|You may not add a topic to a plain text file.",
                       "warning|Lodestar Advisor|I have nothing to save."}));
    EXPECT_EQ(ShownText(), shown);
    EXPECT_FALSE(global.book.BookChanged);
    EXPECT_EQ(Read(Path("Tides.TXT")), Read(LS_SAMPLES "/Tides.TXT"));
}

// Answers are kept with the numbers of topics, which a move gives to others.
TEST_F(Author, topicsMoved_theAdvisorForgetsItsAnswers)
{
    StartWith(Write("Advice.IDA",
                    test::CrLf({"LODESTAR BOOK V5.3", "[Weather]", "text", "<IXML>", "<LOGIC>",
                                "AV(GO)=SKY(CLEAR)", "AV(STAY)=SKY(GREY)", "<DEFINITIONS>",
                                "<Q ID=SKY>How is the sky?</Q>", "<AV ID=GO>Go out.</AV>",
                                "<AV ID=STAY>Stay.</AV>", "</DEFINITIONS>", "</IXML>", "[Other]", "x"})));
    const auto answer = [](QWidget& advisor) {
        EXPECT_EQ(advisor.objectName(), QStringLiteral("AdvForm"));
        EXPECT_EQ(Find<QPlainTextEdit>(advisor, "MessageBox")->toPlainText(),
                  QStringLiteral("How is the sky?"));
        Find<QComboBox>(advisor, "AnswerCombo")->setCurrentIndex(1);
        Press(advisor, "NextButton");
        advisor.close();
    };
    const auto close = [](QWidget& advisor) { advisor.close(); };
    const auto ask = [this](const std::function<void(ModalScript&)>& steps) {
        ModalScript script;
        steps(script);
        Press(form, "AdvisorButton");
        return script.Seen();
    };
    // The box with O.K. is about the goal that has no definition.
    const auto answerAll = [&](ModalScript& script) { script.Do(answer).Answer(Reply::Ok); };
    ask(answerAll);
    const Strings again =
        ask([&](ModalScript& script) { script.Answer(Reply::Yes).Answer(Reply::Ok).Do(close); });
    EXPECT_EQ(again.front(),
              "question|Lodestar Advisor|You have already answered some questions.  In case your answers are "
              "relevant to this topic, do you wish me to re-use those answers?|YesNo");
    MoveToStart(1);
    EXPECT_EQ(ItemTexts(), (Strings{"1. Other", "2. Weather"}));
    EXPECT_EQ(ask(answerAll).size(), 2U) << "asked again, without the question about re-use";
    global.book.BookChanged = false;
}

} // namespace
} // namespace ls
