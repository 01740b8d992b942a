#include "render/text/DisplayLines.h"

#include "book/BookFixture.h"
#include "render/text/CountAllocations.h"
#include "render/text/ShowTopic.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

TEST(DisplayLines, addLine_pastTheBound_growsToTheCountPlus999)
{
    DisplayLines lines;
    EXPECT_EQ(lines.Lines.UpperBound(), 0);
    *lines.AddLine() = "first";
    EXPECT_EQ(lines.Lines.UpperBound(), 1000);
    while (lines.Count < 1000) {
        ASSERT_NE(lines.AddLine(), nullptr);
    }
    EXPECT_EQ(lines.Lines.UpperBound(), 1000);
    ASSERT_NE(lines.AddLine(), nullptr);
    EXPECT_EQ(lines.Lines.UpperBound(), 2000);
    EXPECT_EQ(lines(1), "first");
}

TEST(DisplayLines, addLine_past32767_givesNone)
{
    DisplayLines lines;
    for (int i = 0; i < 32767; ++i) {
        ASSERT_NE(lines.AddLine(), nullptr);
    }
    EXPECT_EQ(lines.AddLine(), nullptr);
    EXPECT_EQ(lines.Count, 32767);
}

TEST(DisplayLines, clear_keepsMemoryButThatOfHugeLines)
{
    DisplayLines lines;
    *lines.AddLine() = std::string(200, 'x');
    *lines.AddLine() = std::string(1000000, 'x');
    lines.Clear();
    EXPECT_EQ(lines.Count, 0);
    EXPECT_GE(lines.AddLine()->capacity(), 200U);
    EXPECT_LT(lines.AddLine()->capacity(), 1000000U);
}

struct RewrapTest : BookFixture
{
    // The number of allocations when a topic of that many paragraphs is shown again at an earlier width.
    std::size_t AllocationsOfShowingAgain(int paragraphs)
    {
        std::string bytes = "LODESTAR BOOK V5.3\r\n[A]\r\n";
        for (int i = 0; i < paragraphs; ++i) {
            bytes += "- Some words that are wrapped to a few lines, since they are more than fit into one "
                     "of forty characters.\r\n";
        }
        EXPECT_TRUE(Scan(bytes));
        ShownTopic shown;
        std::size_t allocations = 0;
        for (int width : {40, 50, 60, 40, 50, 60, 50}) {
            const std::size_t before = test::AllocationCount();
            std::string name = "[A]";
            Count16 number = 1;
            EXPECT_EQ(ShowTopic(book, world.Get(), name, number, width, shown), ShowResult::Shown);
            allocations = test::AllocationCount() - before;
        }
        EXPECT_GE(shown.lines.Count, paragraphs * 3);
        return allocations;
    }
};

TEST_F(RewrapTest, showTopic_again_allocatesNothingForItsLines)
{
    // These allocations are for the cursor's block and for the log of the files in memory. Their number does
    // not depend on the topic's length.
    const std::size_t forAShortTopic = AllocationsOfShowingAgain(3);
    ResetBook(book);
    EXPECT_LE(AllocationsOfShowingAgain(1000), forAShortTopic + 8);
}

} // namespace
} // namespace ls
