#pragma once

#include "RecordingLogicView.h"
#include "authoring/LogicEditor.h"
#include "book/Book.h"
#include "support/TestSeams.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ls {

using Strings = std::vector<std::string>;

inline constexpr const char* NotUntilSaved =
    "information|Lodestar Advisor|The changes will not take effect until you save the file.";
inline constexpr const char* VariablePrompt =
    "input|Lodestar Advisor|Type the name for the variable to be added.|";
inline constexpr const char* ChoicePrompt = "input|Lodestar Advisor|Type the choice to be added.|";

/// The rules of the logic editor on a book in memory, without a window.
struct LogicEditorFixture : testing::Test
{
    test::TestSeams world;
    Book book;
    test::RecordingLogicView view;
    LogicEditor editor{book, world.Get(), view};

    LogicEditorFixture()
    {
        EXPECT_TRUE(book.TopicCount.Add());
        book.TopicNames(1) = "[A]";
        book.CurrentTopicNo = 1;
        book.CurrentTopicName = "[A]";
        book.TopicRecs(1).Text = "text\r\n";
    }

    void Load(const std::string& logic)
    {
        book.TopicRecs(1).Logic = logic;
        EXPECT_TRUE(editor.Form_Load());
    }

    /// Variables AGE (with choices OLD and YOUNG), RISK (with HIGH) and PLACE (with none).
    void LoadThree()
    {
        Load(test::CrLf({"<IXML>", "<LOGIC>", "TARGET RISK", "</LOGIC>", "<DEFINITIONS>",
                         "<Q ID=AGE>How old?</Q>", "<AV ID=AGE(OLD)>Rest.</AV>",
                         "<AV ID=AGE(YOUNG)>Run.</AV>", "<Q ID=RISK></Q>", "<AV ID=RISK(HIGH)>Stop.</AV>",
                         "<Q ID=PLACE>Where?</Q>", "</DEFINITIONS>", "</IXML>"}));
    }

    void LoadEmpty() { Load(""); }

    void AddVariable(const std::string& name)
    {
        world.messages.inputs = {name};
        editor.VarAddButton_Click();
    }

    void AddChoice(const std::string& name)
    {
        world.messages.inputs = {name};
        editor.AddAnsButton_Click();
    }

    Strings Boxes() { return world.messages.Take(); }
    [[nodiscard]] const std::string& Logic() const { return book.TopicRecs(1).Logic; }
};

inline std::string Refusal(const char* text)
{
    return std::string("exclamation|Lodestar Advisor|") + text;
}

} // namespace ls
