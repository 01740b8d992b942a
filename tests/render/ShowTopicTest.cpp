#include "render/ShowTopic.h"

#include "base/LineCursor.h"
#include "book/BookFixture.h"

namespace ls {
namespace {

const std::string Header = "LODESTAR BOOK V5.3\r\n";

struct ShowTopicTest : BookFixture
{
    ShownTopic shown;
    std::string name;
    Count16 number;

    ShowResult Show(const std::string& topicName, int topicNumber = 0, int width = 40)
    {
        name = topicName;
        number = topicNumber;
        return ShowTopic(book, world.Get(), name, number, width, shown);
    }

    // Shows topic 1, "[A]", of a book with this body.
    Strings ShowBody(const std::string& body, int width = 40)
    {
        EXPECT_TRUE(Scan(Header + "[A]\r\n" + body));
        EXPECT_EQ(Show("A", 1, width), ShowResult::Shown);
        return Lines();
    }

    [[nodiscard]] Strings Lines() const
    {
        Strings lines;
        for (int i = 1; i <= shown.lines.Count; ++i) {
            lines.push_back(shown.lines(i));
        }
        return lines;
    }

    // Opens bytes that are no book and agrees to view them.
    void OpenPlain(const std::string& bytes)
    {
        world.messages.replies = {Reply::Ok};
        ASSERT_TRUE(Open(bytes));
        world.messages.Take();
        ASSERT_EQ(book.TopicCount, 0);
    }

    [[nodiscard]] FilePos PosBehind(const std::string& text)
    {
        return static_cast<FilePos>(world.files["/work/Book.IDA"].find(text) + text.size() + 1);
    }
};

// What is shown at all

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

TEST_F(ShowTopicTest, show_unknownNameOfABookWithoutFile_wasNotFound)
{
    book.TopicCount = 1;
    book.TopicNames(1) = "[New]";
    book.TopicRecs(1).Text = "x";
    EXPECT_EQ(Show("Other"), ShowResult::Cleared);
    EXPECT_EQ(world.messages.Take(), Strings{"warning|Lodestar Advisor|Topic [Other] was not found."});
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
    [](const auto& row) { return row.param.name; });

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
    // An indent of 10 in a width of 11: one column is left, and the hard break counts no indent.
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
    EXPECT_FALSE(shown.xrefButton) << "names are compared with case";
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
    [](const auto& row) { return row.param.name; });

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

// Text in memory

TEST_F(ShowTopicTest, show_editedText_isShownInsteadOfTheFile)
{
    ASSERT_TRUE(Scan(Header + "[A]\r\nold\r\n"));
    book.TopicRecs(1).Text = "new\r\n\r\nlines  \r\n";
    EXPECT_EQ(Show("A", 1), ShowResult::Shown);
    EXPECT_EQ(Lines(), (Strings{"new", "", "lines"}));
}

TEST_F(ShowTopicTest, show_editedToABlankLine_showsOne)
{
    ASSERT_TRUE(Scan(Header + "[A]\r\nold\r\n"));
    book.TopicRecs(1).Text = "\r\n";
    EXPECT_EQ(Show("A", 1), ShowResult::Shown);
    EXPECT_EQ(Lines(), (Strings{""}));
}

TEST_F(ShowTopicTest, show_editedText_obeysTheRulesOfABody)
{
    ASSERT_TRUE(Scan(Header + "[A]\r\nold\r\n"));
    book.TopicRecs(1).Text = "a\r\n<XREF TOPIC=B>n</XREF>\r\nb\r\n";
    EXPECT_EQ(Show("A", 1), ShowResult::Shown);
    EXPECT_EQ(Lines(), Strings{"a"});
    EXPECT_TRUE(shown.xrefButton);
    book.TopicRecs(1).Text = "a\r\n[B]\r\nb\r\n";
    EXPECT_EQ(Show("A", 1), ShowResult::Shown);
    EXPECT_EQ(Lines(), Strings{"a"});
}

TEST_F(ShowTopicTest, show_editedTextOfATopicWithLogic_keepsTheSavedLogic)
{
    ASSERT_TRUE(Scan(Header + "[A]\r\nold\r\n<IXML>\r\n<LOGIC>\r\n[B]\r\n"));
    book.TopicRecs(1).Text = "new, and longer\r\n";
    EXPECT_EQ(Show("A", 1), ShowResult::Shown);
    EXPECT_EQ(Lines(), Strings{"new, and longer"});
    EXPECT_TRUE(shown.advisorButton);
    EXPECT_EQ(shown.logicPos, PosBehind("<IXML>\r\n"));
}

TEST_F(ShowTopicTest, show_editedTextBeforeAnotherTopicsLogic_hasNone)
{
    ASSERT_TRUE(Scan(Header + "[A]\r\nold\r\n[B]\r\n<IXML>\r\n<LOGIC>\r\n"));
    book.TopicRecs(1).Text = "new\r\n";
    EXPECT_EQ(Show("A", 1), ShowResult::Shown);
    EXPECT_FALSE(shown.advisorButton);
}

TEST_F(ShowTopicTest, show_editedTextAndFileChangedUnderneath_hasNoLogicAndNoMessage)
{
    ASSERT_TRUE(Scan(Header + "[A]\r\nold\r\n<IXML>\r\n<LOGIC>\r\n"));
    world.files["/work/Book.IDA"] = Header + "[Z]\r\nold\r\n<IXML>\r\n<LOGIC>\r\n";
    book.TopicRecs(1).Text = "new\r\n";
    EXPECT_EQ(Show("A", 1), ShowResult::Shown);
    EXPECT_FALSE(shown.advisorButton);
    EXPECT_EQ(world.messages.Take(), Strings{});
}

TEST_F(ShowTopicTest, show_editedTextAndUnreadableFile_isShownWithoutMessage)
{
    ASSERT_TRUE(Scan(Header + "[A]\r\nold\r\n<IXML>\r\n"));
    book.TopicRecs(1).Text = "new\r\n";
    world.files.fail = [](const std::string&) { return error::DeviceIo; };
    EXPECT_EQ(Show("A", 1), ShowResult::Shown);
    EXPECT_EQ(Lines(), Strings{"new"});
    EXPECT_FALSE(shown.advisorButton);
    EXPECT_EQ(world.messages.Take(), Strings{});
}

TEST_F(ShowTopicTest, show_editedTextWithALogicTag_endsThere)
{
    ASSERT_TRUE(Scan(Header + "[A]\r\nold\r\n"));
    book.TopicRecs(1).Text = "new\r\n<IXML>\r\nrest\r\n";
    EXPECT_EQ(Show("A", 1), ShowResult::Shown);
    EXPECT_EQ(Lines(), Strings{"new"});
    EXPECT_FALSE(shown.advisorButton) << "the advisor reads the file, which holds no block";
}

TEST_F(ShowTopicTest, nextTopicLine_text_givesLineAfterLine)
{
    book.TopicRecs(1).Text = "one\r\n\r\nthree";
    std::size_t position = 1;
    int done = 0;
    EXPECT_EQ(NextTopicLine(book, 1, position, done), "one");
    EXPECT_EQ(position, 6U);
    EXPECT_EQ(NextTopicLine(book, 1, position, done), "");
    EXPECT_EQ(position, 8U);
    EXPECT_EQ(NextTopicLine(book, 1, position, done), "three");
    EXPECT_EQ(done, 0);
    EXPECT_EQ(NextTopicLine(book, 1, position, done), "");
    EXPECT_EQ(done, -1);
}

TEST_F(ShowTopicTest, nextTopicLine_textEndingInALineEnd_hasNoFurtherLine)
{
    book.TopicRecs(1).Text = "one\r\n";
    std::size_t position = 1;
    int done = 0;
    EXPECT_EQ(NextTopicLine(book, 1, position, done), "one");
    EXPECT_EQ(done, 0);
    NextTopicLine(book, 1, position, done);
    EXPECT_EQ(done, -1);
}

TEST_F(ShowTopicTest, nextTopicLine_loneCrOrLf_isText)
{
    book.TopicRecs(1).Text = "a\rb\nc\r\n";
    std::size_t position = 1;
    int done = 0;
    EXPECT_EQ(NextTopicLine(book, 1, position, done), "a\rb\nc");
}

TEST_F(ShowTopicTest, nextTopicLine_uneditedOrUnknownTopic_isDone)
{
    for (const int topic : {0, 1, 32767}) {
        std::size_t position = 1;
        int done = 0;
        EXPECT_EQ(NextTopicLine(book, topic, position, done), "");
        EXPECT_EQ(done, -1) << topic;
    }
}

// Plain text files

TEST_F(ShowTopicTest, show_plainText_isShownWholeFromItsFirstByte)
{
    OpenPlain("first line\r\n[A]\r\n<XREF x\r\n<IXML>\r\n<LOGIC>\r\nlast ");
    EXPECT_EQ(Show(""), ShowResult::Shown);
    EXPECT_EQ(Lines(), (Strings{"first line", "[A]", "<XREF x", "<IXML>", "<LOGIC>", "last"}));
    EXPECT_EQ(shown.name, "");
    EXPECT_FALSE(shown.xrefButton);
    EXPECT_FALSE(shown.advisorButton);
    EXPECT_EQ(shown.logicPos, 0);
}

TEST_F(ShowTopicTest, show_plainText_leavesTheNameAlone)
{
    OpenPlain("x");
    EXPECT_EQ(Show("Whatever"), ShowResult::Shown);
    EXPECT_EQ(name, "Whatever");
}

TEST_F(ShowTopicTest, show_plainText_isWrappedWithIndents)
{
    OpenPlain("- one two three\r\n");
    EXPECT_EQ(Show("", 0, 11), ShowResult::Shown);
    EXPECT_EQ(Lines(), (Strings{"- one two", "  three"}));
}

TEST_F(ShowTopicTest, show_plainTextWithoutFile_nothing)
{
    book.BookVersion = 0;
    EXPECT_EQ(Show(""), ShowResult::Nothing);
}

// Faults and limits

// The file can be read up to about its 100,000th byte.
void FailFurtherOn(test::MemoryFileSystem& files, int errorNumber)
{
    files.fail = [errorNumber](const std::string& operation) {
        const bool reads = operation.starts_with("read ");
        return reads && std::stol(operation.substr(operation.rfind(' '))) > 100000 ? errorNumber : 0;
    };
}

std::string ManyLines(int count, const std::string& line)
{
    std::string text;
    for (int i = 0; i < count; ++i) {
        text += line + "\r\n";
    }
    return text;
}

TEST_F(ShowTopicTest, show_readErrorInTheMiddle_showsWhatWasReadAndSaysSo)
{
    ASSERT_TRUE(Scan(Header + "[A\xE9]\r\n" + ManyLines(40000, "some words of a line") + "<IXML>\r\n"));
    FailFurtherOn(world.files, error::DeviceIo);
    EXPECT_EQ(Show("A\xE9", 1), ShowResult::Shown);
    EXPECT_GT(shown.lines.Count, 4000);
    EXPECT_LT(shown.lines.Count, 20000);
    EXPECT_EQ(shown.lines(shown.lines.Count), "some words of a line");
    EXPECT_EQ(name, "[A\xE9]");
    EXPECT_FALSE(shown.advisorButton);
    EXPECT_EQ(
        world.messages.Take(),
        Strings{"warning|Lodestar Advisor|Failed to fetch topic [A\xC3\xA9] due to error #57: Device I/O "
                "error"});
}

TEST_F(ShowTopicTest, show_readErrorInPlainText_namesTheFile)
{
    OpenPlain(ManyLines(40000, "some words of a line"));
    FailFurtherOn(world.files, error::DeviceIo);
    EXPECT_EQ(Show(""), ShowResult::Shown);
    EXPECT_GT(shown.lines.Count, 4000);
    EXPECT_EQ(
        world.messages.Take(),
        Strings{"warning|Lodestar Advisor|Failed to fetch topic /work/Book.IDA due to error #57: Device "
                "I/O error"});
}

TEST_F(ShowTopicTest, show_32767Lines_areShownWithoutMessage)
{
    ShowBody(ManyLines(32767, "x"));
    EXPECT_EQ(shown.lines.Count, 32767);
    EXPECT_EQ(world.messages.Take(), Strings{});
}

TEST_F(ShowTopicTest, show_moreThan32767Lines_showsTheFirstOnesAndOverflowOnce)
{
    ShowBody(ManyLines(32766, "x") + "y\r\nz\r\nz\r\n");
    EXPECT_EQ(shown.lines.Count, 32767);
    EXPECT_EQ(shown.lines(32767), "y");
    EXPECT_EQ(world.messages.Take(), Strings{"critical|Lodestar Advisor|Overflow"});
}

TEST_F(ShowTopicTest, show_overflowInsideALine_showsItsFirstSegments)
{
    ShowBody(ManyLines(32766, "x") + "1234567890a 1234567890b\r\n", 11);
    EXPECT_EQ(shown.lines.Count, 32767);
    EXPECT_EQ(shown.lines(32767), "1234567890a");
    EXPECT_EQ(world.messages.Take(), Strings{"critical|Lodestar Advisor|Overflow"});
}

TEST_F(ShowTopicTest, show_overflow_stillFindsReferencesAndLogic)
{
    ShowBody(ManyLines(32768, "x") + "<XREF TOPIC=B>n</XREF>\r\n<IXML>\r\n<LOGIC>\r\n");
    EXPECT_TRUE(shown.xrefButton);
    EXPECT_TRUE(shown.advisorButton);
    EXPECT_EQ(shown.logicPos, PosBehind("<IXML>\r\n"));
    EXPECT_EQ(world.messages.Take(), Strings{"critical|Lodestar Advisor|Overflow"});
}

TEST_F(ShowTopicTest, show_overflowOfEditedTextAndPlainText_showsOverflowOnce)
{
    ASSERT_TRUE(Scan(Header + "[A]\r\nold\r\n"));
    book.TopicRecs(1).Text = ManyLines(32768, "x");
    EXPECT_EQ(Show("A", 1), ShowResult::Shown);
    EXPECT_EQ(shown.lines.Count, 32767);
    EXPECT_EQ(world.messages.Take(), Strings{"critical|Lodestar Advisor|Overflow"});
    OpenPlain(ManyLines(32768, "x"));
    EXPECT_EQ(Show(""), ShowResult::Shown);
    EXPECT_EQ(shown.lines.Count, 32767);
    EXPECT_EQ(world.messages.Take(), Strings{"critical|Lodestar Advisor|Overflow"});
}

TEST_F(ShowTopicTest, show_whileAnotherCursorReads_doesNotMoveIt)
{
    ASSERT_TRUE(Scan(Header + "[A]\r\na\r\nb\r\n"));
    LineCursor other(*book.File);
    std::string line;
    ASSERT_TRUE(other.ReadLine(line).Ok());
    const FilePos before = other.Position();
    EXPECT_EQ(Show("A", 1), ShowResult::Shown);
    EXPECT_EQ(other.Position(), before);
    ASSERT_TRUE(other.ReadLine(line).Ok());
    EXPECT_EQ(line, "[A]");
}

TEST_F(ShowTopicTest, show_lineOfAMegabyteWithoutBlanks_isCutAtEveryWidth)
{
    ShowBody(std::string(1000000, 'x') + "\r\nend\r\n", 100);
    ASSERT_EQ(shown.lines.Count, 10001);
    EXPECT_EQ(shown.lines(10000), std::string(100, 'x'));
    EXPECT_EQ(shown.lines(10001), "end");
}

} // namespace
} // namespace ls
