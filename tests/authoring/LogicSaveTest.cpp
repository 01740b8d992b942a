#include "RecordingLogicView.h"
#include "advisor/AdvisorWorld.h"
#include "authoring/LogicEditor.h"
#include "book/SavedBytes.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

using Strings = std::vector<std::string>;
using test::AdvisorWorld;
using test::CrLf;

const std::string Before =
    CrLf({"[Guide]", "Text of it.", "<IXML>", "<LOGIC>", "TARGET RISK", "RISK(HIGH) = AGE(OLD)",
          "RISK(LOW) = AGE(YOUNG)", "</LOGIC>", "<DEFINITIONS>", "<Q ID=AGE>How old?</Q>",
          "<AV ID=RISK(HIGH)>Take care.</AV>", "<AV ID=RISK(LOW)>Enjoy.</AV>", "</DEFINITIONS>", "</IXML>",
          "[Other]", "x"});

/// The editor for the topic "Guide" of an open book.
struct LogicSaveTest : testing::Test
{
    AdvisorWorld world;
    test::RecordingLogicView view;

    void Edit()
    {
        world.Open(Before);
        world.Show("Guide");
        std::string name = world.book.CurrentTopicName;
        LoadTopicRec(world.book, world.seams.Get(), name, world.book.CurrentTopicNo);
    }

    /// What the advisor shows after an answer in a saved book.
    static Strings Ask(const std::string& bytes, const std::string& answer)
    {
        AdvisorWorld reader;
        reader.Open(bytes.substr(bytes.find('[')));
        reader.Show("Guide");
        reader.Advise();
        Strings log = reader.view.Take();
        const Strings advice = reader.Next(answer);
        log.insert(log.end(), advice.begin(), advice.end());
        EXPECT_EQ(reader.seams.messages.Take(), Strings());
        return log;
    }
};

TEST_F(LogicSaveTest, editedLogic_runsAfterTheSave)
{
    Edit();
    LogicEditor editor(world.book, world.seams.Get(), view);
    ASSERT_TRUE(editor.Form_Load());
    view[LogicBox::Logic] += "RISK(NONE) = AGE(CHILD)\n";
    editor.VarCombo_Click(0);
    view[LogicBox::Question] = "How old are you?\nIn years.";
    editor.VarCombo_Click(1);
    world.seams.messages.inputs = {"NONE"};
    editor.AddAnsButton_Click();
    view[LogicBox::Advice] = "Play.";
    ASSERT_TRUE(editor.SaveButton_Click());
    EXPECT_EQ(world.seams.messages.Take().back(),
              "information|Lodestar Advisor|The changes will not take effect until you save the file.");
    EXPECT_EQ(Ask(test::SavedBytes(world.book, world.seams), "CHILD"),
              (Strings{"question AGE [] [OLD] [YOUNG] [CHILD]: How old are you?\r\nIn years.",
                       "advice RISK(NONE): Play.", "button Close"}));
}

TEST_F(LogicSaveTest, uneditedRest_isWrittenAsItWas)
{
    Edit();
    LogicEditor editor(world.book, world.seams.Get(), view);
    ASSERT_TRUE(editor.Form_Load());
    ASSERT_TRUE(editor.SaveButton_Click());
    world.seams.messages.Take();
    EXPECT_EQ(test::SavedBytes(world.book, world.seams), CrLf({"LODESTAR BOOK V5.3",
                                                               "[Guide]",
                                                               "Text of it.",
                                                               "",
                                                               "<IXML>",
                                                               "<LOGIC>",
                                                               "TARGET RISK",
                                                               "RISK(HIGH) = AGE(OLD)",
                                                               "RISK(LOW) = AGE(YOUNG)",
                                                               "</LOGIC>",
                                                               "<DEFINITIONS>",
                                                               "",
                                                               "<Q ID=AGE>How old?</Q>",
                                                               "",
                                                               "<Q ID=RISK></Q>",
                                                               "",
                                                               "<AV ID=RISK(HIGH)>Take care.</AV>",
                                                               "",
                                                               "<AV ID=RISK(LOW)>Enjoy.</AV>",
                                                               "",
                                                               "</DEFINITIONS>",
                                                               "</IXML>",
                                                               "",
                                                               "[Other]",
                                                               "x"}));
}

} // namespace
} // namespace ls
