#include "render/pane/SelectedRuns.h"

#include "render/text/DisplayLines.h"
#include "render/text/DrawLines.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

// What the pane recorded when it was drawn from `firstLine` on.
struct Drawn
{
    explicit Drawn(const std::vector<std::string>& texts, int firstLine = 1, int rows = 100)
    {
        DisplayLines lines;
        for (const std::string& text : texts) {
            *lines.AddLine() = text;
        }
        topic = TopicText(lines, 5.0F);
        DrawRows(surface, lines, firstLine, rows, 5.0F);
    }

    [[nodiscard]] std::size_t At(int row, int column) const
    {
        return OffsetAt(surface.Runs(), topic, {row, column});
    }
    [[nodiscard]] std::optional<CellPlace> Place(std::size_t offset) const
    {
        return PlaceOf(surface.Runs(), topic, offset);
    }
    // Pieces as "row:column {text}".
    [[nodiscard]] std::string Pieces(TextRange range) const
    {
        std::string all;
        for (const Run& run : SelectedRuns(surface.Runs(), topic, range)) {
            all += std::to_string(run.row) + ":" + std::to_string(run.firstColumn) + " {" + run.text + "}" +
                   (run.bold ? "b" : "") + " ";
        }
        return all;
    }

    TopicText topic;
    RunList surface;
};

const std::vector<std::string> Topic = {"one <B>two</B> &AMP;", "", "three",
                                        "four"}; // "one two &\n\nthree\nfour"

TEST(OffsetAt, everyPlace_givesTheNearest)
{
    const Drawn drawn(Topic);
    EXPECT_EQ(drawn.At(1, 1), 0U);
    EXPECT_EQ(drawn.At(1, 5), 4U);
    EXPECT_EQ(drawn.At(1, 6), 5U) << "in the second run";
    EXPECT_EQ(drawn.At(1, 80), 9U) << "after the row";
    EXPECT_EQ(drawn.At(1, -3), 0U);
    EXPECT_EQ(drawn.At(2, 7), 10U) << "an empty row";
    EXPECT_EQ(drawn.At(3, 3), 13U);
    EXPECT_EQ(drawn.At(0, 3), 2U) << "above";
    EXPECT_EQ(drawn.At(50, 3), 19U) << "below";
}

TEST(OffsetAt, drawnFromALaterLine_countsFromThatLine)
{
    const Drawn drawn(Topic, 3);
    EXPECT_EQ(drawn.At(1, 1), 11U);
    EXPECT_EQ(drawn.At(2, 5), 21U);
}

TEST(OffsetAt, nothingDrawn_isTheStart)
{
    EXPECT_EQ(Drawn({}).At(1, 1), 0U);
    EXPECT_EQ(Drawn(Topic, 9).At(1, 1), 0U);
}

TEST(PlaceOf, everyOffset_comesBack)
{
    const Drawn drawn(Topic);
    for (std::size_t offset = 0; offset <= drawn.topic.Length(); ++offset) {
        const std::optional<CellPlace> place = drawn.Place(offset);
        ASSERT_TRUE(place) << offset;
        EXPECT_EQ(drawn.At(place->row, place->column), offset);
    }
    EXPECT_EQ(drawn.Place(9), (CellPlace{1, 10})) << "a row's end is after its last character";
    EXPECT_EQ(drawn.Place(10), (CellPlace{2, 1}));
}

TEST(PlaceOf, lineThatWasNotDrawn_isNowhere)
{
    const Drawn drawn(Topic, 2, 2);
    EXPECT_EQ(drawn.Place(9), std::nullopt);
    EXPECT_EQ(drawn.Place(10), (CellPlace{1, 1}));
    EXPECT_EQ(drawn.Place(16), (CellPlace{2, 6}));
    EXPECT_EQ(drawn.Place(17), std::nullopt);
}

TEST(PlaceOf, rowOfTwoLines_isCountedThrough)
{
    const Drawn drawn({"ab</B></I>", "cd"}); // "abcd"
    EXPECT_EQ(drawn.Place(3), (CellPlace{1, 4}));
    EXPECT_EQ(drawn.At(1, 4), 3U);
    const Drawn fromTheSecond({"ab</B></I>", "cd"}, 2);
    EXPECT_EQ(fromTheSecond.Place(3), (CellPlace{1, 2}));
    EXPECT_EQ(fromTheSecond.At(1, 2), 3U);
}

TEST(SelectedRuns, range_isCutOutOfTheRuns)
{
    const Drawn drawn(Topic);
    EXPECT_EQ(drawn.Pieces({2, 6}), "1:3 {e } 1:5 {tw}b ");
    EXPECT_EQ(drawn.Pieces({8, 13}), "1:9 {&} 1:10 { } 2:1 { } 3:1 {th} ");
    EXPECT_EQ(drawn.Pieces({18, 21}), "4:2 {our} ");
    EXPECT_EQ(drawn.Pieces({9, 10}), "1:10 { } ") << "a row's end";
    EXPECT_EQ(drawn.Pieces({4, 4}), "");
}

TEST(SelectedRuns, rangeBeyondWhatWasDrawn_isItsPart)
{
    const Drawn drawn(Topic, 3, 1);
    EXPECT_EQ(drawn.Pieces({0, 21}), "1:1 {three} 1:6 { } ");
    EXPECT_EQ(drawn.Pieces({0, 5}), "");
}

} // namespace
} // namespace ls
