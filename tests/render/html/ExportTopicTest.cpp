// What an export makes of a topic, line by line.

#include "render/html/ExportFixture.h"

namespace ls {
namespace {

using test::CrLf;

using ExportTopicTest = ExportFixture;

TEST_F(ExportTopicTest, topic_isAWholeDocument)
{
    ASSERT_TRUE(Scan(BookHeaderLine + "[The Weir]\r\n<H1>The Weir</H1>\r\n\r\nMind the <B>step</B>.\r\n"));
    EXPECT_TRUE(Export("[The Weir]", 1));
    EXPECT_EQ(file.text,
              CrLf({"<HTML>", "<HEAD>", "<TITLE>The Weir</TITLE>", "</HEAD>", "<BODY>", "<H1>The Weir</H1>",
                    "", "<P>Mind the <B>step</B>.</P>", "</BODY>", "</HTML>"}));
    EXPECT_EQ(file.finished, 1);
    EXPECT_EQ(world.messages.Take(), Strings{ExportComplete});
}

TEST_F(ExportTopicTest, title_isTheNameWithoutItsBrackets)
{
    struct Case
    {
        const char* name;
        const char* header;
        const char* title;
    };
    for (const Case& c :
         {Case{"[A]", "[A]", "A"}, Case{"A", "[A]", "A"}, Case{"[A [old]]", "[A [old]]", "A [old]"},
          Case{"<A> & \"B\"", "[<A> & \"B\"]", "<A> & \"B\""},
          // A name that begins with a bracket loses its last character, whatever it is.
          Case{"[AB", "[AB]", "A"}, Case{"AB]", "[AB]", "AB]"}, Case{"[A", "[A]", "[A"}}) {
        SCOPED_TRACE(c.name);
        ASSERT_TRUE(Scan(BookHeaderLine + c.header + "\r\n"));
        file.text.clear();
        EXPECT_TRUE(Export(c.name));
        EXPECT_EQ(file.text,
                  CrLf({"<HTML>", "<HEAD>", ("<TITLE>" + std::string(c.title) + "</TITLE>").c_str(),
                        "</HEAD>", "<BODY>", "</BODY>", "</HTML>"}));
        world.messages.Take();
    }
}

TEST_F(ExportTopicTest, lettersWithAccents_keepTheirBytes)
{
    EXPECT_EQ(BodyOf({"Caf\xE9 \x81\x80"}), "<P>Caf\xE9 \x81\x80</P>\r\n");
}

TEST_F(ExportTopicTest, entitiesAndTags_passThrough)
{
    EXPECT_EQ(BodyOf({"1 &LT; 2 &AMP; <I>so</I> <u>on</u> <A HREF=\"x\">&what;</A>"}),
              "<P>1 &LT; 2 &AMP; <I>so</I> <u>on</u> <A HREF=\"x\">&what;</A></P>\r\n");
}

TEST_F(ExportTopicTest, trailingBlanks_areCut)
{
    EXPECT_EQ(BodyOf({"text   ", "   "}), "<P>text</P>\r\n\r\n");
}

TEST_F(ExportTopicTest, longParagraph_isClosedAfterItsLastSegment)
{
    const std::string words = "0123456789 0123456789 0123456789 0123456789 0123456789 0123456789 0123 ";
    ASSERT_EQ(words.size(), 71U);
    EXPECT_EQ(BodyOf({(words + words + "end").c_str()}),
              "<P>" + words.substr(0, 70) + "\r\n" + words.substr(0, 70) + "\r\nend</P>\r\n");
}

TEST_F(ExportTopicTest, lineOf70Characters_isNotBroken)
{
    const std::string line = std::string(34, 'a') + " " + std::string(35, 'b');
    EXPECT_EQ(BodyOf({line.c_str()}), "<P>" + line + "</P>\r\n");
    EXPECT_EQ(BodyOf({(line + "b").c_str()}),
              "<P>" + std::string(34, 'a') + "\r\n" + std::string(36, 'b') + "</P>\r\n");
}

TEST_F(ExportTopicTest, leadingTab_isFiveSpaces)
{
    EXPECT_EQ(BodyOf({"\tin"}), "<P>     in</P>\r\n");
}

// The TAB at the end becomes five spaces and a segment of its own.
TEST_F(ExportTopicTest, remainderOfATab_isASegmentOfSpaces)
{
    const std::string row(70, 'x');
    EXPECT_EQ(BodyOf({(row + "\t").c_str()}), "<P>" + row + "\r\n     </P>\r\n");
}

TEST_F(ExportTopicTest, blankLine_isEmptyAndKeepsAListOpen)
{
    EXPECT_EQ(BodyOf({"- one", "", "- two", "text"}),
              CrLf({"<UL>", "<LI>one</LI>", "", "<LI>two</LI>", "</UL>", "<P>text</P>"}));
}

TEST_F(ExportTopicTest, itemsInARow_shareOneListThatAParagraphCloses)
{
    EXPECT_EQ(BodyOf({"1. one", "2. two", "After."}),
              CrLf({"<OL>", "<LI>one</LI>", "<LI>two</LI>", "</OL>", "<P>After.</P>"}));
}

TEST_F(ExportTopicTest, listAfterAnother_isOpenedAndClosedAsItsOwnKind)
{
    EXPECT_EQ(BodyOf({"- one", "Between.", "Still between.", "1. two", "After.", "At last."}),
              CrLf({"<UL>", "<LI>one</LI>", "</UL>", "<P>Between.</P>", "<P>Still between.</P>", "<OL>",
                    "<LI>two</LI>", "</OL>", "<P>After.</P>", "<P>At last.</P>"}));
}

TEST_F(ExportTopicTest, headingClosesAList)
{
    EXPECT_EQ(BodyOf({"a) one", "<H2>Next</H2>", "Text."}),
              CrLf({"<OL TYPE=a>", "<LI>one</LI>", "</OL>", "<H2>Next</H2>", "<P>Text.</P>"}));
}

TEST_F(ExportTopicTest, listKind_followsTheFirstCharacterOfTheFirstItem)
{
    struct Case
    {
        const char* line;
        const char* open;
        const char* item;
    };
    for (const Case& c : {
             Case{"- x", "<UL>", "x"},
             Case{" - x", "<UL>", "x"},
             Case{"1. x", "<OL>", "x"},
             Case{"12. x", "<OL>", "x"},
             Case{"9) x", "<OL>", "x"},
             Case{"A) x", "<OL TYPE=A>", "x"},
             Case{"Z1. x", "<OL TYPE=A>", "x"},
             Case{"a) x", "<OL TYPE=a>", "x"},
             Case{"\xC9) x", "<OL TYPE=a>", "x"},
             Case{"*) x", "<OL TYPE=a>", "x"},
         }) {
        SCOPED_TRACE(c.line);
        EXPECT_EQ(BodyOf({c.line}), std::string(c.open) + "\r\n<LI>" + c.item + "</LI>\r\n");
    }
}

TEST_F(ExportTopicTest, anotherKindOfItem_staysInTheListThatIsOpen)
{
    EXPECT_EQ(BodyOf({"- dash", "1. one", "a) letter", "end"}),
              CrLf({"<UL>", "<LI>dash</LI>", "<LI>one</LI>", "<LI>letter</LI>", "</UL>", "<P>end</P>"}));
}

TEST_F(ExportTopicTest, longItem_isPlainInTheMiddleAndClosedAtTheEnd)
{
    const std::string words = "0123456789 0123456789 0123456789 0123456789 0123456789 0123456789 0123 ";
    EXPECT_EQ(BodyOf({("- " + words + words + "end").c_str()}),
              "<UL>\r\n<LI>0123456789 0123456789 0123456789 0123456789 0123456789 0123456789\r\n"
              "0123 0123456789 0123456789 0123456789 0123456789 0123456789 0123456789\r\n"
              "0123 end</LI>\r\n");
}

TEST_F(ExportTopicTest, itemBehindATag_losesTheTagsFirstCharacters)
{
    // Intended: the item loses as many characters of the tag as its marker has, and keeps the marker.
    EXPECT_EQ(BodyOf({"<B>1. First</B> item"}), "<OL TYPE=a>\r\n<LI>1. First</B> item</LI>\r\n");
    EXPECT_EQ(BodyOf({"<B>- x</B>"}), "<OL TYPE=a>\r\n<LI>>- x</B></LI>\r\n");
}

TEST_F(ExportTopicTest, markerWithALongWordBehind_isAnEmptyItemFirst)
{
    const std::string word(80, 'w');
    EXPECT_EQ(BodyOf({("- " + word).c_str()}),
              "<UL>\r\n<LI>\r\n" + std::string(70, 'w') + "\r\n" + std::string(10, 'w') + "</LI>\r\n");
}

TEST_F(ExportTopicTest, topicEndingInsideAList_leavesItOpen)
{
    EXPECT_EQ(BodyOf({"- one"}), CrLf({"<UL>", "<LI>one</LI>"}));
}

TEST_F(ExportTopicTest, headings_ofFourLevelsInAnyCase_standAsTheyAre)
{
    EXPECT_EQ(BodyOf({"<H1>a</H1>", "<h2>b</h2>", "<H3>c", "<H4>d</H4>"}),
              CrLf({"<H1>a</H1>", "<h2>b</h2>", "<H3>c", "<H4>d</H4>"}));
    EXPECT_EQ(BodyOf({"<H5>a</H5>", "<H0>b", "<H1 >c", "<H1"}),
              CrLf({"<P><H5>a</H5></P>", "<P><H0>b</P>", "<P><H1 >c</P>", "<P><H1</P>"}));
}

TEST_F(ExportTopicTest, headingOfMoreThan70VisibleCharacters_isCutAtItsLastBlank)
{
    const std::string visible =
        std::string(40, 'a') + " " + std::string(25, 'b') + " " + std::string(20, 'c');
    EXPECT_EQ(BodyOf({("<H1>" + visible + "</H1>").c_str(), "next"}),
              "<H1>" + visible.substr(0, 66) + "\r\n<P>next</P>\r\n");
}

TEST_F(ExportTopicTest, headingOf70VisibleCharacters_isWhole)
{
    const std::string line = "<H1>" + std::string(34, 'a') + " " + std::string(35, 'b') + "</H1>";
    EXPECT_EQ(BodyOf({line.c_str()}), line + "\r\n");
}

TEST_F(ExportTopicTest, headingThatBeginsAContinuation_endsTheLine)
{
    const std::string word(60, 'a');
    EXPECT_EQ(BodyOf({(word + " <H2>bbbbbbbbbbbbb</H2> " + word + " lost").c_str(), "next"}),
              "<P>" + word + "\r\n<H2>bbbbbbbbbbbbb</H2>\r\n<P>next</P>\r\n");
}

TEST_F(ExportTopicTest, crossReference_endsTheTopic)
{
    EXPECT_EQ(BodyOf({"shown", "<XREF TOPIC=\"B\">note</XREF>", "not shown"}), "<P>shown</P>\r\n");
    EXPECT_EQ(BodyOf({"shown", "<xrefs are listed here", "not shown"}), "<P>shown</P>\r\n");
    EXPECT_EQ(BodyOf({"see <XREF TOPIC=\"B\">", "shown"}),
              "<P>see <XREF TOPIC=\"B\"></P>\r\n<P>shown</P>\r\n");
}

TEST_F(ExportTopicTest, logicBlock_endsTheTopic)
{
    EXPECT_EQ(BodyOf({"shown", "  <ixml>  ", "<LOGIC>"}), "<P>shown</P>\r\n");
    EXPECT_EQ(BodyOf({"<IXML> here", "shown"}), "<P><IXML> here</P>\r\n<P>shown</P>\r\n");
}

TEST_F(ExportTopicTest, bracketLine_endsTheTopicAlsoWhereItIsNoHeader)
{
    EXPECT_EQ(BodyOf({"shown", "[]", "not shown"}), "<P>shown</P>\r\n");
    EXPECT_EQ(BodyOf({"shown", "[B]", "of B"}), "<P>shown</P>\r\n");
    EXPECT_EQ(BodyOf({" [not first]"}), "<P> [not first]</P>\r\n");
}

TEST_F(ExportTopicTest, lineThatIsAllInOneTagWithoutEnd_isNotBroken)
{
    const std::string line = "< " + std::string(200, 'a');
    EXPECT_EQ(BodyOf({line.c_str()}), "<P>" + line + "</P>\r\n");
}

TEST_F(ExportTopicTest, wordOfAMillionCharacters_isBrokenHard)
{
    ASSERT_TRUE(Scan(BookHeaderLine + "[A]\r\n" + std::string(1'000'000, 'w') + "\r\n"));
    EXPECT_TRUE(Export("A"));
    const std::string row = std::string(70, 'w') + "\r\n";
    EXPECT_NE(file.text.find("<P>" + row + row), std::string::npos);
    EXPECT_EQ(file.text.size(), 1'000'000U + 2 * 14'286U + 69U + 7U);
    world.messages.Take();
}

} // namespace
} // namespace ls
