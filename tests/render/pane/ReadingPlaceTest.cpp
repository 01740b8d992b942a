#include "render/pane/ReadingPlace.h"

#include "render/text/DisplayLines.h"
#include "render/text/TopicText.h"
#include "support/RowName.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

TopicText MakeTopic(const std::vector<std::string>& texts)
{
    DisplayLines lines;
    for (const std::string& text : texts) {
        *lines.AddLine() = text;
    }
    return {lines, 5.0F};
}

TEST(ReadingPlace, linesBrokenAnew_keepsThePlace)
{
    const TopicText narrow = MakeTopic({"1. one", "   two", "", "three", "four"});
    const TopicText wide = MakeTopic({"1. one two", "", "three four"});
    const auto lineIn = [](const TopicText& to, const TopicText& from, int line) {
        return LineOfPlace(to, ReadingPlace(from, from.LineStart(line)));
    };
    std::vector<int> toWide;
    for (int line = 1; line <= narrow.LineCount(); ++line) {
        toWide.push_back(lineIn(wide, narrow, line));
    }
    EXPECT_EQ(toWide, (std::vector<int>{1, 1, 3, 3, 3})) << "an empty line counts with the next text";
    EXPECT_EQ(lineIn(narrow, wide, 1), 1);
    EXPECT_EQ(lineIn(narrow, wide, 3), 4);
}

TEST(ReadingPlace, placeBehindTheText_isTheLastLine)
{
    const TopicText topic = MakeTopic({"one", "two"});
    EXPECT_EQ(ReadingPlace(topic, 7), 6U);
    EXPECT_EQ(ReadingPlace(topic, 99), 6U);
    EXPECT_EQ(LineOfPlace(topic, 6), 2);
    EXPECT_EQ(LineOfPlace(topic, 99), 2);
    EXPECT_EQ(LineOfPlace(MakeTopic({}), 5), 1);
}

TEST(ReadingPlace, tab_isABlank)
{
    EXPECT_EQ(ReadingPlace(MakeTopic({"a\tb"}), 2), 1U);
}

TEST(ReadingPlace, offsets_areNextToTheGap)
{
    const TopicText topic = MakeTopic({"ab  cd"});
    EXPECT_EQ(OffsetOfPlace(topic, 2), 4U);
    EXPECT_EQ(EndBeforePlace(topic, 2), 2U);
    EXPECT_EQ(OffsetOfPlace(topic, 4), 6U);
    EXPECT_EQ(EndBeforePlace(topic, 0), 0U);
    EXPECT_EQ(EndBeforePlace(topic, 99), 6U);
}

struct KeptRow
{
    const char* name;
    std::size_t anchor; // in "  1. one", "     two", "", "three": rows at 0, 9, 18 and 19
    std::size_t caret;
    std::size_t newAnchor; // in "  1. one two", "", "three": rows at 0, 13 and 14
    std::size_t newCaret;
};

class KeptSelectionTable : public testing::TestWithParam<KeptRow>
{
};

TEST_P(KeptSelectionTable, in_linesBrokenAnew_areTheSameCharacters)
{
    const TopicText narrow = MakeTopic({"  1. one", "     two", "", "three"});
    const TopicText wide = MakeTopic({"  1. one two", "", "three"});
    const KeptRow& row = GetParam();
    TextSelection selection;
    selection.MoveTo(row.anchor, false);
    selection.MoveTo(row.caret, true);
    const TextSelection kept = KeptSelection(narrow, selection).In(wide);
    EXPECT_EQ(kept.Anchor(), row.newAnchor);
    EXPECT_EQ(kept.Caret(), row.newCaret);
}

INSTANTIATE_TEST_SUITE_P(
    Selections, KeptSelectionTable,
    testing::Values(KeptRow{"all", 0, 24, 0, 19}, KeptRow{"allBackwards", 24, 0, 19, 0},
                    KeptRow{"oneWord", 14, 17, 9, 12}, KeptRow{"overARowEnd", 5, 17, 5, 12},
                    KeptRow{"backwards", 17, 5, 12, 5}, KeptRow{"blanksAtTheEnds", 8, 18, 9, 12},
                    KeptRow{"blanksOnly", 9, 12, 9, 9}, KeptRow{"start", 0, 0, 0, 0},
                    KeptRow{"end", 24, 24, 19, 19}, KeptRow{"caretBeforeAWord", 14, 14, 9, 9},
                    KeptRow{"caretBehindAWord", 8, 8, 8, 8}, KeptRow{"caretInAWord", 15, 15, 10, 10}),
    test::RowName());

TEST(KeptSelection, in_anEmptyText_isEmpty)
{
    TextSelection selection;
    selection.Select({1, 2});
    EXPECT_EQ(KeptSelection(MakeTopic({"abc"}), selection).In(MakeTopic({})).Range(), (TextRange{0, 0}));
}

} // namespace
} // namespace ls
