#include "render/text/ShowTopicFixture.h"
#include "support/RowName.h"

namespace ls {
namespace {

// What is shown

TEST_F(ShowTopicTest, show_noTopics_nothingAndTheOldTopicStays)
{
    ASSERT_EQ(ShowBody("x\r\n"), Strings{"x"});
    book.TopicCount = 0;
    EXPECT_EQ(Show("A", 1), ShowResult::Nothing);
    EXPECT_EQ(name, "A");
    EXPECT_EQ(shown.name, "[A]");
    EXPECT_EQ(Lines(), Strings{"x"});
}

TEST_F(ShowTopicTest, show_emptyName_nothing)
{
    ASSERT_EQ(ShowBody("x\r\n"), Strings{"x"});
    EXPECT_EQ(Show("", 1), ShowResult::Nothing);
    EXPECT_EQ(Lines(), Strings{"x"});
}

TEST_F(ShowTopicTest, show_nameWithoutBrackets_comesBackWithThem)
{
    ASSERT_TRUE(Scan(Header + "[A]\r\nx\r\n"));
    for (const char* given : {"A", "[A]", "[A", "A]"}) {
        EXPECT_EQ(Show(given, 1), ShowResult::Shown) << given;
        EXPECT_EQ(name, "[A]") << given;
        EXPECT_EQ(shown.name, "[A]") << given;
    }
}

TEST_F(ShowTopicTest, show_byNameOnly_findsTheNumber)
{
    ASSERT_TRUE(Scan(Header + "[A]\r\nx\r\n[B]\r\ny\r\n"));
    EXPECT_EQ(Show("B"), ShowResult::Shown);
    EXPECT_EQ(number, 2);
    EXPECT_EQ(Lines(), Strings{"y"});
}

TEST_F(ShowTopicTest, show_unknownName_clearsWithOneMessage)
{
    ASSERT_TRUE(Scan(Header + "[A]\r\nx\r\n"));
    EXPECT_EQ(Show("Nowhere"), ShowResult::Cleared);
    EXPECT_EQ(name, "");
    EXPECT_EQ(world.messages.Take(), Strings{"warning|Lodestar Advisor|Topic [Nowhere] was not found."});
}

TEST_F(ShowTopicTest, show_fileChangedUnderneath_clears)
{
    ASSERT_TRUE(Scan(Header + "[A]\r\nx\r\n"));
    world.files["/work/Book.IDA"] = Header + "[Z]\r\nx\r\n";
    EXPECT_EQ(Show("A", 1), ShowResult::Cleared);
    EXPECT_EQ(world.messages.Take(), Strings{"warning|Lodestar Advisor|Error looking up topic: [A]"});
}

TEST_F(ShowTopicTest, show_newTopicOfABookWithoutFile_isShownFromMemory)
{
    book.TopicCount = 1;
    book.TopicNames(1) = "[New]";
    book.TopicRecs(1).Text = "Insert text here.";
    EXPECT_EQ(Show("New", 1), ShowResult::Shown);
    EXPECT_EQ(Lines(), Strings{"Insert text here."});
    EXPECT_FALSE(shown.advisorButton);
}

// Bodies

struct BodyRow
{
    const char* name;
    std::string body;
    Strings lines;
};

class BodyTable : public ShowTopicTest, public testing::WithParamInterface<BodyRow>
{
};

TEST_P(BodyTable, show_body_givesLines)
{
    EXPECT_EQ(ShowBody(GetParam().body), GetParam().lines);
    EXPECT_EQ(world.messages.Take(), Strings{});
}

INSTANTIATE_TEST_SUITE_P(
    Bodies, BodyTable,
    testing::Values(BodyRow{"empty", "", {}}, BodyRow{"emptyBeforeTheNextTopic", "[B]\r\nx\r\n", {}},
                    BodyRow{"oneBlankLine", "\r\n", {""}}, BodyRow{"blanksOnly", "   \r\nx\r\n", {"", "x"}},
                    BodyRow{"lastLineWithoutEnd", "a\r\nb", {"a", "b"}},
                    BodyRow{"trailingBlanksAreCut", "a  \r\n b \r\n", {"a", " b"}},
                    BodyRow{"lineEndOfCrOnly", "a\rb\r\n", {"a", "b"}},
                    BodyRow{"nextTopicEnds", "a\r\n[B]\r\nb\r\n", {"a"}},
                    BodyRow{"bracketMeantAsTextEnds", "a\r\n[see below\r\nb\r\n", {"a"}},
                    BodyRow{"bracketBehindABlankIsText", "a\r\n [x]\r\n", {"a", " [x]"}},
                    BodyRow{"tab", "\tabc\r\n", {"     abc"}},
                    BodyRow{"tagsStay", "<B>x</B> &AMP;\r\n", {"<B>x</B> &AMP;"}},
                    BodyRow{"hangingIndent",
                            "1. one two three four five six seven eight nine\r\n",
                            {"1. one two three four five six seven", "   eight nine"}},
                    BodyRow{"hangingIndentBehindTag",
                            "<H1>- one two three four five six seven nine eight</H1>\r\n",
                            {"<H1>- one two three four five six seven nine", "  eight</H1>"}},
                    BodyRow{"textWithoutList",
                            "one two three four five six seven eight nine ten\r\n",
                            {"one two three four five six seven eight", "nine ten"}},
                    BodyRow{"accentsAreOneColumn",
                            std::string(39, '\xE9') + "\xE4 x\r\n",
                            {std::string(39, '\xE9') + "\xE4", "x"}}),
    test::RowName());

TEST_F(ShowTopicTest, show_again_startsAnew)
{
    ASSERT_TRUE(
        Scan(Header + "[A]\r\na\r\nb\r\n<XREF TOPIC=B>n</XREF>\r\n<IXML>\r\n<LOGIC>\r\n[C]\r\nc\r\n"));
    EXPECT_EQ(Show("A", 1), ShowResult::Shown);
    EXPECT_TRUE(shown.xrefButton);
    EXPECT_TRUE(shown.advisorButton);
    EXPECT_EQ(Show("C", 2), ShowResult::Shown);
    EXPECT_EQ(Lines(), Strings{"c"});
    EXPECT_EQ(shown.name, "[C]");
    EXPECT_FALSE(shown.xrefButton);
    EXPECT_FALSE(shown.advisorButton);
    EXPECT_EQ(shown.logicPos, 0);
}

TEST_F(ShowTopicTest, show_widthBelowTheLargestIndent_isRaised)
{
    // The width is 11 and the indent 10, so one column is left. The break inside a word ignores the indent.
    EXPECT_EQ(ShowBody("12345678. one two\r\n", 1), (Strings{"12345678.", "          one two"}));
}

TEST_F(ShowTopicTest, show_otherWidth_wrapsAgain)
{
    ShowBody("one two three four five\r\n", 13);
    EXPECT_EQ(Lines(), (Strings{"one two three", "four five"}));
    EXPECT_EQ(Show("A", 1, 18), ShowResult::Shown);
    EXPECT_EQ(Lines(), (Strings{"one two three four", "five"}));
}

// Cross references

TEST_F(ShowTopicTest, show_xrefLine_hidesTheRestAndShowsTheButton)
{
    EXPECT_EQ(ShowBody("a\r\n<XREF TOPIC=B>note</XREF>\r\nordinary text\r\n"), Strings{"a"});
    EXPECT_TRUE(shown.xrefButton);
}

TEST_F(ShowTopicTest, show_xrefInAnyCase_isRecognised)
{
    EXPECT_EQ(ShowBody("a\r\n<xRef whatever\r\nb\r\n"), Strings{"a"});
    EXPECT_TRUE(shown.xrefButton);
}

TEST_F(ShowTopicTest, show_xrefNotAtTheFirstCharacter_isText)
{
    EXPECT_EQ(ShowBody(" <XREF x>\r\n"), Strings{" <XREF x>"});
    EXPECT_FALSE(shown.xrefButton);
}

TEST_F(ShowTopicTest, show_referredTo_showsTheButton)
{
    ASSERT_TRUE(Scan(Header + "[A]\r\n<XREF TOPIC=\"B\">n</XREF>\r\n[B]\r\nb\r\n[b]\r\nc\r\n[B ]\r\n"));
    EXPECT_EQ(Show("B", 2), ShowResult::Shown);
    EXPECT_TRUE(shown.xrefButton);
    EXPECT_EQ(Show("b", 3), ShowResult::Shown);
    EXPECT_FALSE(shown.xrefButton) << "letter case counts";
}

TEST_F(ShowTopicTest, show_referredToFromTheSecondReference_showsTheButton)
{
    ASSERT_TRUE(Scan(Header + "[A]\r\n<XREF TOPIC=X>n</XREF>\r\n<XREF TOPIC=B>n</XREF>\r\n[B]\r\nb\r\n"));
    EXPECT_EQ(Show("B", 2), ShowResult::Shown);
    EXPECT_TRUE(shown.xrefButton);
}

TEST_F(ShowTopicTest, show_referencesBeyondTheCount_doNotCount)
{
    ASSERT_TRUE(Scan(Header + "[A]\r\na\r\n"));
    book.Xrefs(1).ToTopic = "A";
    EXPECT_EQ(Show("A", 1), ShowResult::Shown);
    EXPECT_FALSE(shown.xrefButton);
}

// Logic

struct LogicRow
{
    const char* name;
    const char* line;
    bool recognised;
};

class LogicTable : public ShowTopicTest, public testing::WithParamInterface<LogicRow>
{
};

TEST_P(LogicTable, show_line_endsTheBodyWhenItIsTheTag)
{
    const std::string line = GetParam().line;
    ShowBody("a\r\n" + line + "\r\n<LOGIC>\r\n");
    EXPECT_EQ(shown.advisorButton, GetParam().recognised);
    EXPECT_EQ(shown.logicPos, GetParam().recognised ? PosBehind(line + "\r\n") : 0);
    EXPECT_EQ(Lines(), GetParam().recognised ? Strings{"a"} : (Strings{"a", line, "<LOGIC>"}));
}

INSTANTIATE_TEST_SUITE_P(
    Lines, LogicTable,
    testing::Values(LogicRow{"asWritten", "<IXML>", true}, LogicRow{"lowerCase", "<ixml>", true},
                    LogicRow{"mixedCase", "<iXmL>", true}, LogicRow{"blanksAround", "   <IXML>  ", true},
                    LogicRow{"textBehind", "<IXML> x", false}, LogicRow{"textBefore", "x <IXML>", false},
                    LogicRow{"tabBefore", "<IXML\t>", false}),
    test::RowName());

TEST_F(ShowTopicTest, show_logicBehindReferences_isFound)
{
    EXPECT_EQ(ShowBody("a\r\n<XREF TOPIC=B>n</XREF>\r\n<IXML>\r\n<LOGIC>\r\n"), Strings{"a"});
    EXPECT_TRUE(shown.advisorButton);
    EXPECT_EQ(shown.logicPos, PosBehind("<IXML>\r\n"));
}

TEST_F(ShowTopicTest, show_logicOfTheNextTopic_isNotThisOnes)
{
    ShowBody("a\r\n[B]\r\n<IXML>\r\n<LOGIC>\r\n");
    EXPECT_FALSE(shown.advisorButton);
}

} // namespace
} // namespace ls
