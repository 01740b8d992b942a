#include "CheckCases.h"

#include "check/BlockRules.h"
#include "check/BlockStore.h"
#include "check/CheckBook.h"
#include "support/StepProgress.h"
#include "support/TestSeams.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace ls {
namespace {

using Texts = std::vector<std::string>;

constexpr const char* Header = "LODESTAR BOOK V5.3\r\n[One]\r\n";

std::string Number(int i)
{
    return std::to_string(i);
}

// The findings about a block's frame.
Texts FrameFindings(const std::string& logic, const std::string& definitions)
{
    test::CheckedBook world(Header);
    BlockStore store(world.book, BlockSource::Edited);
    const std::unique_ptr<CheckedBlock> block =
        ReadLogicText("<IXML>\r\n<LOGIC>\r\n" + logic + "</LOGIC>\r\n<DEFINITIONS>\r\n" + definitions +
                          "</DEFINITIONS>\r\n</IXML>\r\n",
                      1);
    Findings findings{std::string()};
    CheckBlockFrame(RuleBase(*block, store), findings);
    return test::Lines(findings.TakeSorted());
}

std::string Rules(int count)
{
    std::string text;
    for (int i = 1; i <= count; ++i) {
        text += "G(" + Number(i) + ")=A(" + Number(i) + ")\r\n";
    }
    return text;
}

TEST(CheckLimits, rulesPastTheLimit_areAnErrorAtTheFirstOfThem)
{
    EXPECT_EQ(
        FrameFindings(Rules(32768), ""),
        Texts({"32770: error: too-many: The block has more than 32,767 rules, so the reader gets the box "
               "\"Overflow\" instead of a question: spread them over several topics."}));
    EXPECT_EQ(FrameFindings(Rules(32767), ""), Texts());
}

std::string Questions(int count)
{
    std::string text;
    for (int i = 1; i <= count; ++i) {
        text += "<Q ID=V" + Number(i) + "></Q>\r\n";
    }
    return text;
}

TEST(CheckLimits, questionsPastTheLimit_areAnErrorAtTheFirstOfThem)
{
    EXPECT_EQ(
        FrameFindings("", Questions(32768)),
        Texts({"32772: error: too-many: The block has more than 32,767 questions, so the reader gets the box "
               "\"Overflow\" instead of one: spread them over several topics."}));
    EXPECT_EQ(FrameFindings("", Questions(32767)), Texts());
}

std::string Lines(int count)
{
    std::string text = Header;
    for (int i = 1; i <= count; ++i) {
        text += "text\r\n";
    }
    return text;
}

TEST(CheckLimits, linesPastTheLimit_areAnErrorAtTheFirstOfThem)
{
    EXPECT_EQ(
        test::FindingsOf(Lines(32768)),
        Texts({"32770: error: too-many: The topic has more than 32,767 lines, so the reader gets the box "
               "\"Overflow\" and never sees those from here on: divide it."}));
    EXPECT_EQ(test::FindingsOf(Lines(32767)), Texts());
}

// Questions with two choices each, and a rule for every list of answers. The dialogue has 2^n - 1 states.
std::string Tree(int questions)
{
    std::string text = Header + std::string("<IXML>\r\n<LOGIC>\r\nTARGET G\r\n");
    for (int way = 0; way < 1 << questions; ++way) {
        text += "G(" + Number(way + 1000) + ")=";
        for (int i = 0; i < questions; ++i) {
            text += "V" + Number(10 + i) + "(" + Number(way >> i & 1) + ")";
        }
        text += "\r\n";
    }
    text += "</LOGIC>\r\n<DEFINITIONS>\r\n<Q ID=G></Q>\r\n";
    for (int way = 0; way < 1 << questions; ++way) {
        text += "<AV ID=G(" + Number(way + 1000) + ")>text</AV>\r\n";
    }
    for (int i = 0; i < questions; ++i) {
        text += "<Q ID=V" + Number(10 + i) + ">?</Q>\r\n";
    }
    return text + "</DEFINITIONS>\r\n</IXML>\r\n";
}

TEST(CheckLimits, dialogueOfMoreThanAThousandStates_saysThatTheSearchWasCut)
{
    EXPECT_EQ(test::FindingsOf(Tree(10)),
              Texts({"4: warning: search-cut: Only the first 1000 states of the dialogue were searched for "
                     "answers that leave the reader without a rule: try the later questions by hand."}));
    EXPECT_EQ(test::FindingsOf(Tree(9)), Texts());
}

TEST(CheckBook, progressThatCancels_givesWhatWasFoundSoFar)
{
    const std::string block = "<IXML>\r\n</IXML>\r\n";
    test::CheckedBook world(Header + block + "[Two]\r\n" + block);
    FileError error;
    test::StepProgress whole;
    EXPECT_EQ(CheckBook(world.book, world.seams.Get(), &whole, error).size(), 2U);
    EXPECT_EQ(whole.steps, 3);
    test::StepProgress cancelled(2);
    EXPECT_EQ(CheckBook(world.book, world.seams.Get(), &cancelled, error).size(), 1U);
    EXPECT_EQ(cancelled.steps, 2);
}

} // namespace
} // namespace ls
