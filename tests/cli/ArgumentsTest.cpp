#include "cli/Arguments.h"
#include "support/RowName.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

using Strings = std::vector<std::string>;

// A command with one option of each kind.
CommandSpec Sample()
{
    return {
        "sample",
        "BOOK TITLE",
        1,
        2,
        "",
        "",
        {{"--json", "", ""}, {"--width", "W", "", 11, 80}, {"--page", "W H", "", 0, 100}, {"-o", "FILE", ""}},
        nullptr};
}

TEST(Arguments, optionsAndOperands_mixInAnyOrder)
{
    Arguments arguments;
    EXPECT_EQ(arguments.Read(Sample(), {"--json", "a.IDA", "--width", "40", "Title", "--page", "1", "2"}),
              "");
    EXPECT_EQ(arguments.Operands(), (Strings{"a.IDA", "Title"}));
    EXPECT_TRUE(arguments.Has("--json"));
    EXPECT_EQ(arguments.Number("--width", 80), 40);
    EXPECT_EQ(arguments.Values("--page"), (Strings{"1", "2"}));
}

TEST(Arguments, optionNotGiven_hasNoValueAndKeepsTheFallback)
{
    Arguments arguments;
    EXPECT_EQ(arguments.Read(Sample(), {"a.IDA"}), "");
    EXPECT_FALSE(arguments.Has("--width"));
    EXPECT_EQ(arguments.Values("--width"), Strings{});
    EXPECT_EQ(arguments.Number("--width", 80), 80);
}

TEST(Arguments, valueBehindEqualsSign_isTaken)
{
    Arguments arguments;
    EXPECT_EQ(arguments.Read(Sample(), {"a.IDA", "--width=40", "--page=1", "2"}), "");
    EXPECT_EQ(arguments.Number("--width", 80), 40);
    EXPECT_EQ(arguments.Values("--page"), (Strings{"1", "2"}));
}

TEST(Arguments, behindTwoDashes_allAreOperands)
{
    Arguments arguments;
    EXPECT_EQ(arguments.Read(Sample(), {"--", "--json", "-title"}), "");
    EXPECT_EQ(arguments.Operands(), (Strings{"--json", "-title"}));
    EXPECT_FALSE(arguments.Has("--json"));
}

TEST(Arguments, loneDashAndEmptyText_areOperands)
{
    Arguments arguments;
    EXPECT_EQ(arguments.Read(Sample(), {"-", ""}), "");
    EXPECT_EQ(arguments.Operands(), (Strings{"-", ""}));
}

TEST(Arguments, valueThatBeginsWithADash_isTheValue)
{
    Arguments arguments;
    EXPECT_EQ(arguments.Read(Sample(), {"a.IDA", "-o", "--json"}), "");
    EXPECT_EQ(arguments.Values("-o"), Strings{"--json"});
    EXPECT_FALSE(arguments.Has("--json"));
}

struct WrongRow
{
    const char* name;
    Strings arguments;
    const char* expected;
};

class WrongArguments : public testing::TestWithParam<WrongRow>
{
};

TEST_P(WrongArguments, areNamed)
{
    Arguments arguments;
    EXPECT_EQ(arguments.Read(Sample(), GetParam().arguments), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, WrongArguments,
    testing::Values(
        WrongRow{"noOperand", {"--json"}, "BOOK is missing"},
        WrongRow{"operandTooMany", {"a", "b", "c d"}, "unexpected argument \"c d\""},
        WrongRow{"unknownOption", {"a", "--jsn"}, "unknown option \"--jsn\""},
        WrongRow{"unknownShortOption", {"a", "-x"}, "unknown option \"-x\""},
        WrongRow{"unknownOptionWithValue", {"a", "--colour=red"}, "unknown option \"--colour\""},
        WrongRow{"givenTwice", {"a", "--json", "--json"}, "--json is given twice"},
        WrongRow{"switchWithValue", {"a", "--json=1"}, "--json takes no value"},
        WrongRow{"valueMissing", {"a", "--width"}, "--width needs W"},
        WrongRow{"secondValueMissing", {"a", "--page", "1"}, "--page needs W and H"},
        WrongRow{
            "noNumber", {"a", "--width", "wide"}, "--width needs a whole number from 11 to 80, not \"wide\""},
        WrongRow{"emptyNumber", {"a", "--width="}, "--width needs a whole number from 11 to 80, not \"\""},
        WrongRow{"numberWithTail",
                 {"a", "--width", "40x"},
                 "--width needs a whole number from 11 to 80, not \"40x\""},
        WrongRow{
            "belowRange", {"a", "--width", "10"}, "--width needs a whole number from 11 to 80, not \"10\""},
        WrongRow{
            "aboveRange", {"a", "--width", "81"}, "--width needs a whole number from 11 to 80, not \"81\""},
        WrongRow{"beyondAnyNumber",
                 {"a", "--width", "99999999999999"},
                 "--width needs a whole number from 11 to 80, not \"99999999999999\""},
        WrongRow{"secondValueOutOfRange",
                 {"a", "--page", "1", "101"},
                 "--page needs a whole number from 0 to 100, not \"101\""},
        WrongRow{"bytesThatAreNoUtf8", {"a", "--\xFF"}, "unknown option \"--\xEF\xBF\xBD\""}),
    test::RowName());

} // namespace
} // namespace ls
