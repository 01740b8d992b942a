// Dialogues worked out by hand, played through the real advisor window.

#include "advisor/AdvForm.h"

#include "book/BookLoader.h"
#include "gui/Controls.h"
#include "gui/ModalScript.h"
#include "reader/window/Global.h"
#include "render/text/ShowTopic.h"
#include "support/Cases.h"
#include "support/Json.h"
#include "support/TestSeams.h"

#include <QComboBox>
#include <QPlainTextEdit>
#include <QPushButton>

namespace ls {
namespace {

using test::Find;
using test::Json;

// The events that the window shows, a line for each; the boxes are compared apart.
class Player
{
public:
    explicit Player(const std::vector<Json>& events) : m_events(events) {}

    // Goes through the events of one run while the window is open, answers, and closes it.
    void Play(QWidget& window)
    {
        for (; m_next < m_events.size() && !m_events[m_next].Has("run"); ++m_next) {
            Compare(window, m_events[m_next]);
        }
        window.close();
    }

    void NextRun() { ++m_next; }

private:
    static std::string Text(const QWidget& window)
    {
        return Find<QPlainTextEdit>(window, "MessageBox")->toPlainText().toStdString();
    }

    static std::string WithNewlines(std::string text)
    {
        std::erase(text, '\r');
        return text;
    }

    static void CompareQuestion(const QWidget& window, const Json& event)
    {
        EXPECT_EQ(Text(window), WithNewlines(event["text"].String()));
        const auto* list = Find<QComboBox>(window, "AnswerCombo");
        std::vector<std::string> choices;
        for (int i = 1; i < list->count(); ++i) {
            choices.push_back(list->itemText(i).toStdString());
        }
        EXPECT_EQ(choices, event["choices"].Strings());
    }

    static void Compare(const QWidget& window, const Json& event)
    {
        if (event.Has("question")) {
            CompareQuestion(window, event);
        } else if (event.Has("answer")) {
            auto* list = Find<QComboBox>(window, "AnswerCombo");
            list->setCurrentText(QString::fromStdString(event["answer"].String()));
            EXPECT_EQ(list->currentText().toStdString(), event["answer"].String());
            test::Press(window, "NextButton");
        } else if (event.Has("advice") || event.Has("text")) {
            EXPECT_EQ(Text(window), WithNewlines(event["text"].String()));
        } else if (event.Has("button")) {
            EXPECT_EQ(Find<QPushButton>(window, "NextButton")->text().remove(u'&').toStdString(),
                      event["button"].String());
        }
    }

    const std::vector<Json>& m_events;
    std::size_t m_next = 0;
};

struct AdvFormCases : testing::TestWithParam<int>
{
    test::TestSeams world;
    Global global;

    void OpenCase(const std::string& stem)
    {
        world.files["/case.IDA"] = test::ReadWholeFile(stem + ".IDA");
        global.book.BookPath = "/case.IDA";
        ASSERT_TRUE(OpenBook(global.book, world.Get()));
        ASSERT_TRUE(ScanBook(global.book, world.Get()));
    }

    void ShowTopicOf(const std::string& title)
    {
        ShownTopic shown;
        global.book.CurrentTopicName = title;
        global.book.CurrentTopicNo = 0;
        ASSERT_EQ(ShowTopic(global.book, world.Get(), global.book.CurrentTopicName,
                            global.book.CurrentTopicNo, 80, shown),
                  ShowResult::Shown);
        global.book.LogicPos = shown.logicPos;
    }
};

TEST_P(AdvFormCases, dialogue_throughTheWindow_showsItsEvents)
{
    const std::string stem = test::CasePath("cases/advisor", "case-" + std::to_string(GetParam()));
    const Json data = Json::ParseFile(stem + ".json");
    OpenCase(stem);
    for (const Json& event : data["events"].Items()) {
        if (event.Has("box") && event["reply"].String() != "OK") {
            world.messages.replies.push_back(event["reply"].String() == "Yes" ? Reply::Yes : Reply::No);
        }
    }
    Player player(data["events"].Items());
    for (const Json& run : data["runs"].Items()) {
        ShowTopicOf(run["topic"].String());
        player.NextRun();
        test::ModalScript script;
        script.Do([&player](QWidget& window) { player.Play(window); });
        AdvForm(nullptr, global.book, global.advisor, world.Get()).Run();
    }
    std::vector<std::string> expected;
    for (const Json& event : data["events"].Items()) {
        if (event.Has("box")) {
            expected.push_back(event["box"].String());
        }
    }
    std::vector<std::string> boxes;
    for (const std::string& box : world.messages.Take()) {
        const std::string text = box.substr(box.find('|', box.find('|') + 1) + 1);
        boxes.push_back(text.substr(0, text.rfind("|YesNo")));
    }
    EXPECT_EQ(boxes, expected);
}

INSTANTIATE_TEST_SUITE_P(Some, AdvFormCases,
                         testing::Values(770000, 770003, 770009, 770014, 770021, 770035, 770053, 770068),
                         testing::PrintToStringParamName());

} // namespace
} // namespace ls
