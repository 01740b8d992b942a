#include "CheckCases.h"

#include "check/CheckBook.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

using Texts = std::vector<std::string>;
using test::CrLf;

const char* const Book = "LODESTAR BOOK V5.3\r\n"
                         "[One]\r\n"
                         "[Two]\r\n"
                         "<IXML>\r\n<LOGIC>\r\nAV(X)=B(1)\r\n<DEFINITIONS>\r\n<Q ID=B>B?</Q>\r\n"
                         "</DEFINITIONS>\r\n</IXML>\r\n";

const char* const Missing = "5: error: define-no-question: The topic \"TWO\" has no question for C, so the "
                            "reader's dialogue stops when it comes up: add <Q ID=C> there.";

std::string Block(const char* define)
{
    return CrLf({"<IXML>", "<LOGIC>", "</LOGIC>", "TARGET G", define, "G(1) = C(1)", "G(2) = C(2)",
                 "<DEFINITIONS>", "<Q ID=G></Q>", "<AV ID=G(1)>one</AV>", "<AV ID=G(2)>two</AV>",
                 "</DEFINITIONS>", "</IXML>"});
}

TEST(CheckLogicText, textBeingEdited_findingsByItsOwnLines)
{
    test::CheckedBook world(Book);
    const std::vector<Finding> found =
        CheckLogicText(world.book, world.seams.Get(), 1, Block("DEFINE C@Two"));
    ASSERT_EQ(test::Lines(found), Texts({Missing}));
    EXPECT_EQ(found.front().topic, "One");
    EXPECT_EQ(found.front().file, "");
}

TEST(CheckLogicText, otherTopicEditedInMemory_itsEditedBlockCounts)
{
    test::CheckedBook world(Book);
    world.book.TopicRecs(2).Logic = CrLf(
        {"<IXML>", "<LOGIC>", "AV(X)=C(1)", "<DEFINITIONS>", "<Q ID=C>C?</Q>", "</DEFINITIONS>", "</IXML>"});
    EXPECT_EQ(test::Lines(CheckLogicText(world.book, world.seams.Get(), 1, Block("DEFINE C@Two"))), Texts());
}

TEST(CheckLogicText, questionThatNoRuleOfTheBlockUses_isNoFindingSinceOtherTopicsMayUseIt)
{
    test::CheckedBook world(Book);
    const std::string text =
        CrLf({"<IXML>", "<LOGIC>", "TARGET G", "G(1)=A(1)", "G(2)=A(2)", "</LOGIC>", "<DEFINITIONS>",
              "<Q ID=G></Q>", "<Q ID=A>A?</Q>", "<Q ID=B>B?</Q>", "<AV ID=G(1)>one</AV>",
              "<AV ID=G(2)>two</AV>", "</DEFINITIONS>", "</IXML>"});
    EXPECT_EQ(test::Lines(CheckLogicText(world.book, world.seams.Get(), 1, text)), Texts());
}

TEST(CheckLogicText, bookWithoutAFile_isCheckedAsFarAsItGoes)
{
    test::TestSeams seams;
    ls::Book book;
    book.TopicCount = 1;
    book.TopicNames(1) = "[New]";
    EXPECT_EQ(
        test::Lines(CheckLogicText(book, seams.Get(), 1, Block("DEFINE C@Two"))),
        Texts({"5: error: define-missing-topic: No topic has the title \"TWO\", so the line is passed over "
               "and the reader is told that C cannot be found: write the title as it stands in the book."}));
}

TEST(CheckLogicText, noBlock_noFindings)
{
    test::CheckedBook world(Book);
    EXPECT_EQ(test::Lines(CheckLogicText(world.book, world.seams.Get(), 1, "")), Texts());
}

} // namespace
} // namespace ls
