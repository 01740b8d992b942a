#include "book/BookFixture.h"
#include "support/RowName.h"

namespace ls {
namespace {

struct LoadTopicRecTest : BookFixture
{
    // Loads a topic and returns "name number".
    std::string Load(std::string name, int number = 0)
    {
        Count16 no = number;
        LoadTopicRec(book, world.Get(), name, no);
        return name + " " + std::to_string(no);
    }
};

struct TextCase
{
    const char* name;
    const char* body; ///< of the topic "A", after its header line
    const char* text;
    const char* logic;
};

struct TextTable : LoadTopicRecTest, testing::WithParamInterface<TextCase>
{
};

TEST_P(TextTable, load_body_givesTextAndLogic)
{
    ASSERT_TRUE(Scan(std::string("LODESTAR BOOK V5.3\r\n[A]\r\n") + GetParam().body));
    EXPECT_EQ(Load("A"), "[A] 1");
    EXPECT_EQ(book.TopicRecs(1).Text, GetParam().text);
    EXPECT_EQ(book.TopicRecs(1).Logic, GetParam().logic);
    EXPECT_TRUE(world.messages.boxes.empty());
}

const TextCase TextCases[] = {
    {"twoLines", "one\r\ntwo\r\n[B]\r\n", "one\r\ntwo\r\n", ""},
    {"trailingBlanks_areCut", "one  \r\n  \r\n", "one\r\n\r\n", ""},
    {"leadingBlanksAndTabs_stay", " \tone\t\r\n", " \tone\t\r\n", ""},
    {"empty", "", "", ""},
    {"noFinalLineEnd", "one", "one\r\n", ""},
    {"crLineEnds_becomeCrLf", "one\rtwo\r", "one\r\ntwo\r\n", ""},
    {"xrefsStay", "one\r\n<XREF TOPIC=B>n\r\nm</XREF>\r\n", "one\r\n<XREF TOPIC=B>n\r\nm</XREF>\r\n", ""},
    {"logic", "one\r\n<IXML>\r\n<LOGIC>\r\nA(1)=B(2)  \r\n</IXML>\r\n[B]\r\n", "one\r\n",
     "<IXML>\r\n<LOGIC>\r\nA(1)=B(2)\r\n</IXML>\r\n"},
    {"logicInOtherCase", "one\r\n <ixml> \r\n <Logic> \r\nx\r\n", "one\r\n", "<IXML>\r\n<LOGIC>\r\nx\r\n"},
    {"noLogicTag_noLogic", "one\r\n<IXML>\r\nx\r\n<LOGIC>\r\ny\r\n", "one\r\n", ""},
    {"blankLineBeforeLogicTag_noLogic", "one\r\n<IXML>\r\n\r\n<LOGIC>\r\ny\r\n", "one\r\n", ""},
    {"ixmlAtTheEnd", "one\r\n<IXML>\r\n", "one\r\n", ""},
    {"ixmlWithText_isText", "<IXML> x\r\n", "<IXML> x\r\n", ""},
    {"blankBehindAnIndexLine_isKept", "one\r\n<INDEX>  \r\n<INDEX>x  \r\n", "one\r\n<INDEX> \r\n<INDEX>x\r\n",
     ""},
    {"blankBehindAnIndexLineOfLogic_isKept", "<IXML>\r\n<LOGIC>\r\n<INDEX> \r\n", "",
     "<IXML>\r\n<LOGIC>\r\n<INDEX> \r\n"},
    {"eof_ends", "one\r\n[EOF]\r\ntwo\r\n", "one\r\n", ""},
    {"bracketLineThatIsNoHeader_isKept", "one\r\n[]\r\ntwo\r\n[B]\r\n", "one\r\n[]\r\ntwo\r\n", ""},
    {"headerInsideANote_isKept", "<XREF TOPIC=B>n\r\n[C]\r\n</XREF>\r\nx\r\n[B]\r\n",
     "<XREF TOPIC=B>n\r\n[C]\r\n</XREF>\r\nx\r\n", ""},
};

INSTANTIATE_TEST_SUITE_P(Topics, TextTable, testing::ValuesIn(TextCases), test::RowName());

TEST_F(LoadTopicRecTest, load_nameWithOneBracket_getsTheOther)
{
    ASSERT_TRUE(Scan("LODESTAR BOOK V5.3\r\n[A]\r\nx\r\n"));
    EXPECT_EQ(Load("[A"), "[A] 1");
    EXPECT_EQ(Load("A]"), "[A] 1");
}

TEST_F(LoadTopicRecTest, load_movedTopic_endsAtTheNextOneOfTheFile)
{
    ASSERT_TRUE(Scan("LODESTAR BOOK V5.3\r\n[A]\r\nin A\r\n[B]\r\nin B\r\n"));
    std::swap(book.TopicNames(1), book.TopicNames(2));
    std::swap(book.TopicPos(1), book.TopicPos(2));
    EXPECT_EQ(Load("A", 2), "[A] 2");
    EXPECT_EQ(book.TopicRecs(2).Text, "in A\r\n");
    EXPECT_EQ(Load("B", 1), "[B] 1");
    EXPECT_EQ(book.TopicRecs(1).Text, "in B\r\n");
}

TEST_F(LoadTopicRecTest, load_editedTopic_isReplacedByTheFilesText)
{
    ASSERT_TRUE(Scan("LODESTAR BOOK V5.3\r\n[A]\r\nx\r\n"));
    book.TopicRecs(1).Text = "edited";
    book.TopicRecs(1).Logic = "logic";
    EXPECT_EQ(Load("A", 1), "[A] 1");
    EXPECT_EQ(book.TopicRecs(1).Text, "x\r\n");
    EXPECT_EQ(book.TopicRecs(1).Logic, "");
}

TEST_F(LoadTopicRecTest, load_fileCutInsideTheTopic_keepsItUnedited)
{
    ASSERT_TRUE(Scan("LODESTAR BOOK V5.3\r\n[A]\r\none\r\ntwo\r\n[B]\r\n"));
    world.files["/work/Book.IDA"].resize(30);
    EXPECT_EQ(Load("A"), " 0");
    EXPECT_EQ(
        world.messages.Take(),
        (Strings{
            "warning|Lodestar Advisor|Failed to fetch topic [A] due to error #62: Input past end of file"}));
    EXPECT_EQ(book.TopicRecs(1).Text, "");
}

TEST_F(LoadTopicRecTest, load_plainTextFile_readsTheWholeFile)
{
    world.messages.replies = {Reply::Ok};
    ASSERT_TRUE(Open("Plain\r\n[A]  \r\n<IXML>\r\nx"));
    world.messages.Take();
    std::string name;
    Count16 number;
    std::string text;
    EXPECT_TRUE(LoadTopicRec(book, world.Get(), name, number, &text));
    EXPECT_EQ(text, "Plain\r\n[A]\r\n<IXML>\r\nx\r\n");
}

struct FileLogicCase
{
    const char* name;
    const char* body;  ///< of the topic "A", after its header line
    const char* logic; ///< as read from the file; "before" if the load leaves it unchanged
};

struct FileLogicTable : LoadTopicRecTest, testing::WithParamInterface<FileLogicCase>
{
};

TEST_P(FileLogicTable, loadLogicFromFile_givesTheBlockWhateverFollowsItsOpening)
{
    ASSERT_TRUE(Scan(std::string("LODESTAR BOOK V5.3\r\n[A]\r\n") + GetParam().body));
    std::string logic = "before";
    EXPECT_TRUE(LoadLogicFromFile(book, world.Get(), 1, logic));
    EXPECT_EQ(logic, GetParam().logic);
    EXPECT_EQ(book.TopicRecs(1).Logic, "") << "nothing is loaded into memory";
    EXPECT_TRUE(world.messages.boxes.empty());
}

const FileLogicCase FileLogicCases[] = {
    {"noBlock", "one\r\n[B]\r\n<IXML>\r\n", "before"},
    {"taken", "one\r\n<IXML>\r\n<LOGIC>\r\nx\r\n[B]\r\n", "<IXML>\r\n<LOGIC>\r\nx\r\n"},
    {"blankLineBetween", " <ixml> \r\n\r\n<LOGIC>\r\nx  \r\n", "<IXML>\r\n\r\n<LOGIC>\r\nx\r\n"},
    {"otherContent", "<IXML>\r\n<OTHER>\r\n[EOF]\r\nx\r\n", "<IXML>\r\n<OTHER>\r\n"},
    {"openingOnly", "<IXML>\r\n", "<IXML>\r\n"},
};

INSTANTIATE_TEST_SUITE_P(Blocks, FileLogicTable, testing::ValuesIn(FileLogicCases), test::RowName());

TEST_F(LoadTopicRecTest, loadLogicFromFile_changedFile_isTold)
{
    ASSERT_TRUE(Scan("LODESTAR BOOK V5.3\r\n[A]\r\n<IXML>\r\n"));
    book.TopicNames(1) = "[X]";
    std::string logic = "before";
    EXPECT_FALSE(LoadLogicFromFile(book, world.Get(), 1, logic));
    EXPECT_EQ(logic, "before");
    EXPECT_EQ(world.messages.Take(),
              std::vector<std::string>{"warning|Lodestar Advisor|Error looking up topic: [X]"});
}

TEST_F(LoadTopicRecTest, loadLogicFromFile_fileCutInTheBlock_isTold)
{
    ASSERT_TRUE(Scan("LODESTAR BOOK V5.3\r\n[A]\r\n<IXML>\r\n\r\n<LOGIC>\r\nx\r\n"));
    std::string& file = world.files[book.OpenPath];
    file.resize(file.find("<LOGIC>"));
    std::string logic = "before";
    EXPECT_FALSE(LoadLogicFromFile(book, world.Get(), 1, logic));
    EXPECT_EQ(logic, "before");
    EXPECT_EQ(world.messages.Take().size(), 1U);
}

} // namespace
} // namespace ls
