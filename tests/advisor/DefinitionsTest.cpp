#include "AdvisorWorld.h"
#include "support/RowName.h"

namespace ls {
namespace {

using Texts = std::vector<std::string>;
using test::AdvisorReader;
using test::AdvisorWorld;
using test::Rules;

struct TextRow
{
    const char* name;
    const char* lines; ///< the definitions; "|" means a line end
    const char* text;  ///< of <Q ID=AGE>; "|" as above
};

std::string Lines(std::string text)
{
    for (std::size_t at = 0; (at = text.find('|', at)) != std::string::npos; at += 2) {
        text.replace(at, 1, "\r\n");
    }
    return text;
}

class TaggedText : public testing::TestWithParam<TextRow>
{
};

TEST_P(TaggedText, definitions_giveText)
{
    AdvisorWorld world;
    world.Open("[A]\r\n<IXML>\r\n<LOGIC>\r\n<DEFINITIONS>\r\n" + Lines(GetParam().lines));
    world.Show("A");
    AdvisorReader reader(world);
    ASSERT_TRUE(reader.Load());
    reader.cursor.Seek(world.tables.DefinitionsPos);
    EXPECT_EQ(reader.definitions.ReadTaggedText("<Q ID=AGE>"), Lines(GetParam().text));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, TaggedText,
    testing::Values(
        TextRow{"oneLine", "<Q ID=AGE>How old?</Q>", "How old?"},
        TextRow{"trimmed", "  <Q ID=AGE>  How old?  </Q>  ", "How old?"},
        TextRow{"ownLines", "<Q ID=AGE>|How old?|</Q>", "How old?"},
        TextRow{"joined", "<Q ID=AGE>How|  old  |are you?</Q>|", "How|old|are you?"},
        TextRow{"emptyLineInside", "<Q ID=AGE>||How||  |old?|</Q>", "How|||old?"},
        TextRow{"emptyLineBeforeEnd", "<Q ID=AGE>How||</Q>", "How|"},
        TextRow{"closingIndented", "<Q ID=AGE>How|  </Q>", "How"},
        TextRow{"tagInAnyCase", "<q Id=aGe>How?</Q>", "How?"},
        TextRow{"tagInsideLine", "see <Q ID=AGE>How?</Q>", "How?"},
        TextRow{"lowerCaseDoesNotClose", "<Q ID=AGE>How?</q>|more</Q>", "How?</q>|more"},
        TextRow{"otherClosingTag", "<Q ID=AGE>How?</AV>|more</Q>", "How?</AV>|more"},
        TextRow{"closedOnSameLineWithRest", "<Q ID=AGE>How?</Q> rest </Q>", "How?"},
        TextRow{"comment", "* <Q ID=AGE>no</Q>|<Q ID=AGE>yes</Q>", "yes"},
        TextRow{"indentedComment", "  *<Q ID=AGE>no</Q>|<Q ID=AGE>yes</Q>", "yes"},
        TextRow{"starInsideEntry", "<Q ID=AGE>a|* b|</Q>", "a|* b"},
        TextRow{"otherEntriesPassed", "<Q ID=AG>no</Q>|<Q ID=AGES>no</Q>|<Q ID=AGE>yes</Q>", "yes"},
        TextRow{"endOfFile", "<Q ID=AGE>How|old", "How|old"},
        TextRow{"missing", "<Q ID=OLD>How</Q>|</DEFINITIONS>|<Q ID=AGE>late</Q>", ""},
        TextRow{"closingTagOnlyWholeLine", "x </DEFINITIONS>|<Q ID=AGE>yes</Q>", "yes"},
        TextRow{"closingTagInsideEntry", "<Q ID=AGE>a|</DEFINITIONS>|b</Q>", "a|</DEFINITIONS>|b"},
        TextRow{"nextTopicEndsSearch", "[B]|<Q ID=AGE>no</Q>", ""},
        TextRow{"nextTopicEndsEntry", "<Q ID=AGE>a|[B]|b</Q>", "a"},
        TextRow{"emptyEntry", "<Q ID=AGE></Q>", ""}, TextRow{"emptyLinesOnly", "<Q ID=AGE>|||</Q>", ""},
        TextRow{"tabsAreText", "<Q ID=AGE>\tHow\t</Q>", "\tHow\t"},
        TextRow{"accentsStay", "<Q ID=AGE>\xE9t\xE9</Q>", "\xE9t\xE9"}, TextRow{"nothing", "", ""}),
    test::RowName());

std::string TextOf(const std::string& entry)
{
    AdvisorWorld world;
    world.Open("[A]\r\n<IXML>\r\n<LOGIC>\r\n<DEFINITIONS>\r\n" + entry);
    world.Show("A");
    AdvisorReader reader(world);
    reader.cursor.Seek(world.book.LogicPos);
    return reader.definitions.ReadTaggedText("<AV ID=GO>");
}

TEST(TaggedTextLimit, textOf32000_isKept)
{
    const std::string line(15999, 'x');
    EXPECT_EQ(TextOf("<AV ID=GO>" + line + "\r\n" + line + "</AV>"), line + "\r\n" + line);
}

TEST(TaggedTextLimit, longerText_isCutAtLastWholeLineThatFits)
{
    const std::string line(15999, 'x');
    EXPECT_EQ(TextOf("<AV ID=GO>" + line + "\r\n" + line + "\r\nz\r\n</AV>"), line + "\r\n" + line + "???");
    EXPECT_EQ(TextOf("<AV ID=GO>" + std::string(32001, 'x') + "</AV>"), "???");
    EXPECT_EQ(TextOf("<AV ID=GO>" + std::string(32000, 'x') + "</AV>"), std::string(32000, 'x'));
}

TEST(TaggedTextLimit, blanksOfALine_countThoughTheyAreTrimmed)
{
    const std::string line(31998, 'x');
    EXPECT_EQ(TextOf("<AV ID=GO>" + line + "  </AV>"), line);
    EXPECT_EQ(TextOf("<AV ID=GO>" + line + "   </AV>"), "???");
    EXPECT_EQ(TextOf("<AV ID=GO>" + line + "\r\n   </AV>"), line + "???");
    EXPECT_EQ(TextOf("<AV ID=GO>" + line + "</AV>" + std::string(9, 'y')), line);
}

class DefinitionsTest : public testing::Test
{
protected:
    void SetUp() override
    {
        world.Open(
            "[A]\r\n<IXML>\r\n<LOGIC>\r\nDEFINE FAR@B\r\nAV(1)=FAR(X)NEAR(Y)\r\n<DEFINITIONS>\r\n"
            "<Q ID=NEAR>near?</Q>\r\n</DEFINITIONS>\r\n"
            "[B]\r\ntext\r\n<IXML>\r\n<LOGIC>\r\nFAR(X)=DEEP(Z)\r\n</LOGIC>\r\n about <definitions>\r\n"
            "<Q ID=FAR>far?</Q>\r\n<Q ID=DEEP>deep?</Q>\r\n</DEFINITIONS>\r\n[C]\r\nno logic\r\n");
        world.Show("A");
        reader = std::make_unique<AdvisorReader>(world);
        ASSERT_TRUE(reader->Load());
    }

    Count16 Goto(const std::string& var) { return reader->definitions.GotoTopicForVar(var, advice); }

    std::string LineAtCursor()
    {
        std::string line;
        return reader->cursor.ReadLine(line).Ok() ? line : "(none)";
    }

    AdvisorWorld world;
    std::unique_ptr<AdvisorReader> reader;
    std::string advice;
};

TEST_F(DefinitionsTest, variableOfFirstTopic_seeksItsDefinitions)
{
    EXPECT_EQ(Goto("NEAR"), 1);
    EXPECT_EQ(LineAtCursor(), "<Q ID=NEAR>near?</Q>");
    EXPECT_EQ(world.tables.LogicTopicCount, 1);
}

TEST_F(DefinitionsTest, variableOfOtherTopic_loadsItOnceAndSeeksItsDefinitions)
{
    EXPECT_EQ(Goto("FAR"), 2);
    EXPECT_EQ(LineAtCursor(), "<Q ID=FAR>far?</Q>");
    EXPECT_EQ(Rules(world.tables), (Texts{"AV(1)=FAR(X)NEAR(Y)", "FAR(X)=DEEP(Z)"}));
    EXPECT_EQ(Goto("DEEP"), 2);
    EXPECT_EQ(LineAtCursor(), "<Q ID=FAR>far?</Q>");
    EXPECT_EQ(world.tables.RuleCount, 2);
}

TEST_F(DefinitionsTest, unknownVariable_givesBoxAndKeepsPosition)
{
    reader->cursor.Seek(7);
    EXPECT_EQ(Goto("\xC9T\xC9"), 0);
    EXPECT_EQ(reader->cursor.Position(), 7);
    EXPECT_EQ(world.seams.messages.Take(),
              (Texts{"exclamation|Lodestar Advisor|I can't find the variable definition for "
                     "<<\xC3\x89T\xC3\x89>>."}));
}

TEST_F(DefinitionsTest, variableOfTopicZero_isUnknown)
{
    ASSERT_TRUE(Append(world.tables.VarTopics, world.tables.VarTopicCount, VarTopic{"ZERO", 0}, 20));
    EXPECT_EQ(Goto("ZERO"), 0);
    EXPECT_EQ(world.seams.messages.Take(),
              (Texts{"exclamation|Lodestar Advisor|I can't find the variable definition for <<ZERO>>."}));
}

TEST_F(DefinitionsTest, topicWithoutLogic_givesItsBoxEachTime)
{
    ASSERT_TRUE(Append(world.tables.VarTopics, world.tables.VarTopicCount, VarTopic{"BARE", 3}, 20));
    EXPECT_EQ(Goto("BARE"), 3);
    EXPECT_EQ(Goto("BARE"), 3);
    const std::string box = "critical|Lodestar Advisor|Logic section missing for current topic";
    EXPECT_EQ(world.seams.messages.Take(), (Texts{box, box}));
}

TEST_F(DefinitionsTest, failedLoad_isTriedAgainAndStandsTwice)
{
    std::string& file = world.seams.files[world.path];
    file.replace(file.find("</LOGIC>"), 8, "BADWORD!");
    Goto("FAR");
    Goto("FAR");
    const std::string box =
        "critical|Lodestar Advisor|Invalid command in <LOGIC> section for the current topic";
    EXPECT_EQ(world.seams.messages.Take(), (Texts{box, box}));
    EXPECT_EQ(Rules(world.tables), (Texts{"AV(1)=FAR(X)NEAR(Y)", "FAR(X)=DEEP(Z)", "FAR(X)=DEEP(Z)"}));
    EXPECT_EQ(world.tables.LogicTopicCount, 1);
}

TEST_F(DefinitionsTest, scanForDefinitions_stopsAtEndTags)
{
    const std::string original = world.seams.files[world.path];
    for (const char* stop : {" </ixml>", "x</Definitions>", "[", "[stop"}) {
        std::string& file = world.seams.files[world.path];
        file = original;
        Goto("FAR");
        const std::size_t at = file.find(" about <definitions>");
        file.replace(at, 20, std::string(stop) + "\r\n" + "0123456789abcdefghij");
        Goto("FAR");
        EXPECT_EQ(LineAtCursor(), "0123456789abcdefghij") << stop;
    }
}

TEST_F(DefinitionsTest, topicWithoutPlaceInFile_givesErrors)
{
    world.book.TopicPos(2) = 0;
    EXPECT_EQ(Goto("FAR"), 2);
    EXPECT_EQ(
        world.seams.messages.Take(),
        (Texts{"critical|Lodestar Advisor|Error accessing idea file due to error: 5",
               "critical|Lodestar Advisor|Lodestar Advisor: 5Error accessing idea file <</case.IDA>> due to "
               "error"}));
}

TEST_F(DefinitionsTest, reusedAnswersOfLoadedTopic_giveAdvice)
{
    AdvisorTables& tables = world.tables;
    ASSERT_TRUE(Append(tables.Answers, tables.AnswerCount, Answer{"NEAR", "Y", 1, false}, 20));
    ASSERT_TRUE(Append(tables.Answers, tables.AnswerCount, Answer{"FAR", "X", 2, false}, 20));
    EXPECT_EQ(Goto("FAR"), 2);
    EXPECT_EQ(advice, "1");
    EXPECT_EQ(LineAtCursor(), "<Q ID=FAR>far?</Q>");
}

} // namespace
} // namespace ls
