#include "render/pane/TextSelection.h"

#include "render/text/DisplayLines.h"
#include "support/RowName.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

// Offsets:            0         5      11 12    17
constexpr auto Rows = {"First row", "", "<B>in</B> it", "a much longer row"};

TopicText MakeTopic()
{
    DisplayLines lines;
    for (const char* row : Rows) {
        *lines.AddLine() = row;
    }
    return {lines, 5.0F};
}

struct Step
{
    const char* name;
    std::size_t from;
    CaretMove move;
    std::size_t to;
};

class MoveTable : public testing::TestWithParam<Step>
{
protected:
    const TopicText topic = MakeTopic(); // "First row\n\nin it\na much longer row"
    TextSelection selection;
};

TEST_P(MoveTable, move_fromAPlace_reachesTheOther)
{
    selection.MoveTo(GetParam().from, false);
    selection.Move(topic, GetParam().move, false, 2);
    EXPECT_EQ(selection.Caret(), GetParam().to);
    EXPECT_TRUE(selection.Range().Empty());
}

TEST_P(MoveTable, moveExtending_fromAPlace_selectsUpToTheOther)
{
    selection.MoveTo(GetParam().from, false);
    selection.Move(topic, GetParam().move, true, 2);
    const TextRange expected{std::min(GetParam().from, GetParam().to),
                             std::max(GetParam().from, GetParam().to)};
    EXPECT_EQ(selection.Range(), expected);
    EXPECT_EQ(selection.Caret(), GetParam().to);
    EXPECT_EQ(selection.Anchor(), GetParam().from);
}

INSTANTIATE_TEST_SUITE_P(
    Keys, MoveTable,
    testing::Values(
        Step{"left", 5, CaretMove::Left, 4}, Step{"leftAtTheStart", 0, CaretMove::Left, 0},
        Step{"leftOverARowEnd", 10, CaretMove::Left, 9}, Step{"right", 5, CaretMove::Right, 6},
        Step{"rightAtTheEnd", 34, CaretMove::Right, 34}, Step{"wordLeft", 8, CaretMove::WordLeft, 6},
        Step{"wordLeftFromAWordsStart", 6, CaretMove::WordLeft, 0},
        Step{"wordLeftOverRows", 11, CaretMove::WordLeft, 6},
        Step{"wordLeftAtTheStart", 0, CaretMove::WordLeft, 0}, Step{"wordRight", 1, CaretMove::WordRight, 6},
        Step{"wordRightOverRows", 6, CaretMove::WordRight, 11},
        Step{"wordRightAtTheEnd", 34, CaretMove::WordRight, 34}, Step{"up", 20, CaretMove::Up, 14},
        Step{"upInTheFirstRow", 3, CaretMove::Up, 0}, Step{"down", 13, CaretMove::Down, 19},
        Step{"downIntoAShorterRow", 5, CaretMove::Down, 10},
        Step{"downInTheLastRow", 20, CaretMove::Down, 34}, Step{"pageUp", 13, CaretMove::PageUp, 2},
        Step{"pageDown", 5, CaretMove::PageDown, 16},
        Step{"pageDownBeyondTheEnd", 13, CaretMove::PageDown, 34},
        Step{"rowStart", 13, CaretMove::RowStart, 11}, Step{"rowEnd", 13, CaretMove::RowEnd, 16},
        Step{"textStart", 13, CaretMove::TextStart, 0}, Step{"textEnd", 13, CaretMove::TextEnd, 34}),
    test::RowName());

TEST(TextSelection, moveUpAndDown_overShortRows_keepToTheColumn)
{
    const TopicText topic = MakeTopic();
    TextSelection selection;
    selection.MoveTo(8, false);
    std::vector<std::size_t> carets;
    for (const CaretMove move : {CaretMove::Down, CaretMove::Down, CaretMove::Down, CaretMove::Left,
                                 CaretMove::Up, CaretMove::Down}) {
        selection.Move(topic, move, false, 10);
        carets.push_back(selection.Caret());
    }
    EXPECT_EQ(carets, (std::vector<std::size_t>{10, 16, 25, 24, 16, 24}));
}

TEST(TextSelection, selectBetween_takesBothPartsWhole)
{
    TextSelection selection;
    const auto between = [&](TextRange first, TextRange last) {
        selection.SelectBetween(first, last);
        return std::vector<std::size_t>{selection.Anchor(), selection.Caret()};
    };
    EXPECT_EQ(between({4, 6}, {8, 9}), (std::vector<std::size_t>{4, 9}));
    EXPECT_EQ(between({4, 6}, {1, 2}), (std::vector<std::size_t>{6, 1}));
    EXPECT_EQ(between({4, 6}, {4, 6}), (std::vector<std::size_t>{4, 6}));
    EXPECT_EQ(between({4, 6}, {5, 5}), (std::vector<std::size_t>{4, 6})) << "an empty part within the first";
    EXPECT_EQ(between({4, 4}, {7, 7}), (std::vector<std::size_t>{4, 7})) << "characters";
    EXPECT_EQ(between({4, 4}, {2, 2}), (std::vector<std::size_t>{4, 2}));
}

TEST(TextSelection, leftAndRight_somethingSelected_goToItsEnds)
{
    const TopicText topic = MakeTopic();
    TextSelection selection;
    selection.Select({2, 5});
    EXPECT_EQ(selection.Caret(), 5U);
    selection.Move(topic, CaretMove::Left, false, 10);
    EXPECT_EQ(selection.Range(), (TextRange{2, 2}));
    selection.Select({2, 5});
    selection.Move(topic, CaretMove::Right, false, 10);
    EXPECT_EQ(selection.Range(), (TextRange{5, 5}));
    selection.Select({2, 5});
    selection.Move(topic, CaretMove::Left, true, 10);
    EXPECT_EQ(selection.Range(), (TextRange{2, 4}));
}

TEST(TextSelection, moveTo_extending_turnsAroundItsAnchor)
{
    TextSelection selection;
    selection.MoveTo(5, false);
    selection.MoveTo(8, true);
    selection.MoveTo(2, true);
    EXPECT_EQ(selection.Range(), (TextRange{2, 5}));
    EXPECT_EQ(selection.Caret(), 2U);
    selection.MoveTo(3, false);
    EXPECT_EQ(selection.Range(), (TextRange{3, 3}));
}

TEST(WordAt, everyPlace_givesWhatStandsTogether)
{
    constexpr std::string_view text = "caf\xE9  a_1, 'x'\n\nend";
    EXPECT_EQ(WordAt(text, 2), (TextRange{0, 4}));
    EXPECT_EQ(WordAt(text, 4), (TextRange{4, 6})) << "blanks";
    EXPECT_EQ(WordAt(text, 7), (TextRange{6, 9}));
    EXPECT_EQ(WordAt(text, 9), (TextRange{9, 10})) << "a sign";
    EXPECT_EQ(WordAt(text, 14), (TextRange{13, 14})) << "the row's end";
    EXPECT_EQ(WordAt(text, 15), (TextRange{15, 15})) << "an empty row";
    EXPECT_EQ(WordAt(text, 19), (TextRange{16, 19})) << "the end";
    EXPECT_EQ(WordAt("", 3), (TextRange{0, 0}));
}

} // namespace
} // namespace ls
