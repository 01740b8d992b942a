#include "render/text/DrawLines.h"

#include "render/text/DisplayLines.h"
#include "render/text/RunList.h"
#include "support/RowName.h"

#include <gtest/gtest.h>

#include <vector>

namespace ls {
namespace {

using Strings = std::vector<std::string>;

DisplayLines MakeLines(const Strings& texts)
{
    DisplayLines lines;
    for (const std::string& text : texts) {
        *lines.AddLine() = text;
    }
    return lines;
}

std::string ColourName(Colour colour)
{
    if (colour == Black) {
        return "";
    }
    return " " + std::to_string(colour.red) + "," + std::to_string(colour.green) + "," +
           std::to_string(colour.blue);
}

// "line row:column {text} biu 127,0,0 /": styles and colour only if they are set, "/" if the row ends.
std::string Describe(const Run& run)
{
    std::string styles;
    styles += run.bold ? "b" : "";
    styles += run.italic ? "i" : "";
    styles += run.underline ? "u" : "";
    return std::to_string(run.displayLine) + " " + std::to_string(run.row) + ":" +
           std::to_string(run.firstColumn) + " {" + run.text + "}" + (styles.empty() ? "" : " " + styles) +
           ColourName(run.colour) + (run.endRow ? " /" : "");
}

Strings Describe(const RunList& surface)
{
    Strings runs;
    for (const Run& run : surface.Runs()) {
        runs.push_back(Describe(run));
    }
    return runs;
}

Strings Draw(const Strings& texts, int firstLine = 1, int rows = 100, float version = 5.0F)
{
    RunList surface;
    DrawRows(surface, MakeLines(texts), firstLine, rows, version);
    return Describe(surface);
}

struct Row
{
    const char* name;
    Strings lines;
    Strings runs;
};

class DrawTable : public testing::TestWithParam<Row>
{
};

TEST_P(DrawTable, drawRows_lines_givesRuns)
{
    EXPECT_EQ(Draw(GetParam().lines), GetParam().runs);
}

INSTANTIATE_TEST_SUITE_P(
    Entities, DrawTable,
    testing::Values(Row{"ampersand", {"x &AMP; y"}, {"1 1:1 {x &}", "1 1:4 { y} /"}},
                    Row{"lessAndGreaterAreNoTag", {"&LT;B&GT;"}, {"1 1:1 {<}", "1 1:2 {B>} /"}},
                    Row{"unknown", {"a&nbsp;b"}, {"1 1:1 {a?}", "1 1:3 {b} /"}},
                    Row{"otherCaseIsUnknown", {"&lt;"}, {"1 1:1 {?} /"}},
                    Row{"emptyName", {"&;x"}, {"1 1:1 {?}", "1 1:2 {x} /"}},
                    Row{"withoutEnd", {"Hello&there"}, {"1 1:1 {Hello&there} /"}},
                    Row{"lastOnTheLine", {"a&AMP;"}, {"1 1:1 {a&} /"}},
                    Row{"beginsBeforeATag", {"&<B>LT;x"}, {"1 1:1 {?}", "1 1:2 {x} /"}},
                    Row{"insideATag", {"a<A&LT;>b"}, {"1 1:1 {a}", "1 1:2 {b} /"}},
                    Row{"semicolonOnlyBefore", {"a;b&c"}, {"1 1:1 {a;b&c} /"}}),
    test::RowName());

INSTANTIATE_TEST_SUITE_P(
    Tags, DrawTable,
    testing::Values(
        Row{"boldInside", {"A <B>bold</B> end"}, {"1 1:1 {A }", "1 1:3 {bold} b", "1 1:7 { end} /"}},
        Row{"italic", {"<I>x</I>y"}, {"1 1:1 {x} i", "1 1:2 {y} /"}},
        Row{"underline", {"<U>x</U>y"}, {"1 1:1 {x} u", "1 1:2 {y} /"}},
        Row{"heading1", {"<H1>x</H1>y"}, {"1 1:1 {x} bu 127,0,0", "1 1:2 {y} /"}},
        Row{"heading2", {"<H2>x</H2>y"}, {"1 1:1 {x} b 0,127,0", "1 1:2 {y} /"}},
        Row{"heading3", {"<H3>x</H3>y"}, {"1 1:1 {x} i 0,0,127", "1 1:2 {y} /"}},
        Row{"headingEndsBoldAndUnderline",
            {"<H1><B><U><I>x</H1>y"},
            {"1 1:1 {x} biu 127,0,0", "1 1:2 {y} i /"}},
        Row{"heading2KeepsUnderline", {"<U><H2>x</H2>y"}, {"1 1:1 {x} bu 0,127,0", "1 1:2 {y} u /"}},
        Row{"heading3EndsItalicOnly", {"<B><I><H3>x</H3>y"}, {"1 1:1 {x} bi 0,0,127", "1 1:2 {y} b /"}},
        Row{"lowerCaseVanishes", {"<b>x</b>"}, {"1 1:1 {x} /"}},
        Row{"attributesVanish", {"a<A HREF=x>b<B >c"}, {"1 1:1 {a}", "1 1:2 {b}", "1 1:3 {c} /"}},
        Row{"emptyTagVanishes", {"a<>b"}, {"1 1:1 {a}", "1 1:2 {b} /"}},
        Row{"withoutEnd", {"a < b"}, {"1 1:1 {a < b} /"}}, Row{"closingOnly", {"a > b"}, {"1 1:1 {a > b} /"}},
        Row{"withoutEndBeforeEntity", {"a < b &AMP; c"}, {"1 1:1 {a < b &}", "1 1:8 { c} /"}},
        Row{"ampersandWithoutEndBeforeTag", {"a & b<B>c"}, {"1 1:1 {a & b}", "1 1:6 {c} b /"}},
        Row{"tagOverOpening", {"<B<I>x"}, {"1 1:1 {x} /"}},
        Row{"endsTheLine", {"x</B>", "y"}, {"1 1:1 {x} /", "2 2:1 {y} /"}},
        Row{"twoTagsEndTheLine", {"<B>x</B></I>", "y"}, {"1 1:1 {x} b", "2 1:2 {y} /"}}),
    test::RowName());

INSTANTIATE_TEST_SUITE_P(
    Rows, DrawTable,
    testing::Values(Row{"noLines", {}, {}}, Row{"emptyLine", {"", "x"}, {"1 1:1 {} /", "2 2:1 {x} /"}},
                    Row{"tagsOnlyEndNoRow", {"<B>", "x"}, {"2 1:1 {x} b /"}},
                    Row{"entityThenTagEndNoRow", {"a&AMP;</B>", "x"}, {"1 1:1 {a&}", "2 1:3 {x} /"}},
                    Row{"stylesGoOnOverLines",
                        {"<I>a", "b", "c</I>"},
                        {"1 1:1 {a} i /", "2 2:1 {b} i /", "3 3:1 {c} i /"}}),
    test::RowName());

TEST(DrawRows, drawRows_versionBelow5_printsLinesAsTheyStand)
{
    EXPECT_EQ(Draw({"<B>x</B> &AMP;", "<B>", "y"}, 1, 9, 4.9F),
              (Strings{"1 1:1 {<B>x</B> &AMP;} /", "2 2:1 {<B>} /", "3 3:1 {y} /"}));
    EXPECT_EQ(Draw({"<B>x"}, 1, 9, 0), (Strings{"1 1:1 {<B>x} /"}));
}

TEST(DrawRows, drawRows_fromALineInAStyle_beginsPlain)
{
    EXPECT_EQ(Draw({"<H1>a", "b", "c</H1>"}, 2), (Strings{"2 1:1 {b} /", "3 2:1 {c} /"}));
}

TEST(DrawRows, drawRows_lastLines_drawsOnlyTheRemainingOnes)
{
    EXPECT_EQ(Draw({"a", "b", "c"}, 3, 10), (Strings{"3 1:1 {c} /"}));
    EXPECT_EQ(Draw({"a", "b", "c"}, 4, 10), Strings{});
}

TEST(DrawRows, drawRows_rows_limitTheLinesCountingThoseOfTagsOnly)
{
    EXPECT_EQ(Draw({"a", "<B>", "c", "d"}, 1, 3), (Strings{"1 1:1 {a} /", "3 2:1 {c} b /"}));
    EXPECT_EQ(Draw({"a"}, 1, 0), Strings{});
}

TEST(DrawRows, drawRows_lineBeforeTheFirst_beginsWithTheFirst)
{
    EXPECT_EQ(Draw({"a", "b"}, 0, 1), (Strings{"1 1:1 {a} /"}));
}

TEST(DrawRows, drawRows_again_clearsAndBeginsPlain)
{
    RunList surface;
    const DisplayLines lines = MakeLines({"a", "<H1><I>b"});
    DrawRows(surface, lines, 1, 9, 5);
    DrawRows(surface, lines, 1, 1, 5);
    EXPECT_EQ(Describe(surface), (Strings{"1 1:1 {a} /"}));
}

TEST(DrawLines, drawLines_surface_drawsItsRowsRounded)
{
    const DisplayLines lines = MakeLines({"a", "b", "c", "d"});
    RunList surface(80, 2);
    DrawLines(surface, lines, 2, 5);
    EXPECT_EQ(Describe(surface), (Strings{"2 1:1 {b} /", "3 2:1 {c} /"}));
}

// A surface whose height is not a whole number of rows.
class HalfRows : public RunList
{
public:
    explicit HalfRows(double height) : m_height(height) {}
    [[nodiscard]] double InnerHeight() const override { return m_height; }
    [[nodiscard]] double TextHeight(std::string_view /*text*/) const override { return 10; }

private:
    double m_height;
};

TEST(DrawLines, drawLines_partOfARow_isDrawnWhenItIsMoreThanHalf)
{
    const DisplayLines lines = MakeLines({"a", "b", "c", "d"});
    for (const auto& [height, rows] : {std::pair(24.0, 2U), {25.0, 2U}, {26.0, 3U}, {35.0, 4U}}) {
        HalfRows surface(height);
        DrawLines(surface, lines, 1, 5);
        EXPECT_EQ(surface.Runs().size(), rows) << height;
    }
}

TEST(DrawLines, setPlain_stylesThatAreSet_endsThemAll)
{
    RunList surface;
    surface.SetBold(true);
    surface.SetItalic(true);
    surface.SetUnderline(true);
    surface.SetColour(DarkRed);
    SetPlain(surface);
    surface.Print("a", false);
    EXPECT_EQ(surface.Runs(), (std::vector<ls::Run>{{0, 1, 1, "a", false, false, false, Black, false}}));
}

TEST(RunList, metrics_areCharactersAndRows)
{
    const RunList surface(60, 20);
    EXPECT_EQ(surface.InnerWidth(), 60);
    EXPECT_EQ(surface.InnerHeight(), 20);
    EXPECT_EQ(surface.TextWidth("abc"), 3);
    EXPECT_EQ(surface.TextHeight("W"), 1);
}

} // namespace
} // namespace ls
