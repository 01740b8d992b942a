#include "platform/windows/ExecuteText.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

using namespace std::string_view_literals;

struct ExecuteCase
{
    const char* name;
    std::string_view data;
    bool wide;
    std::string_view bytes;
};

class ReadExecuteTextTest : public testing::TestWithParam<ExecuteCase>
{
};

TEST_P(ReadExecuteTextTest, data_isToldByItsBytes)
{
    const ExecuteText text = ReadExecuteText(GetParam().data);
    EXPECT_EQ(text.wide, GetParam().wide);
    EXPECT_EQ(text.bytes, GetParam().bytes);
}

INSTANTIATE_TEST_SUITE_P(
    Data, ReadExecuteTextTest,
    testing::Values(ExecuteCase{"narrow", "PUSH A\0"sv, false, "PUSH A"sv},
                    ExecuteCase{"narrowWithoutNul", "PUSH A"sv, false, "PUSH A"sv},
                    ExecuteCase{"narrowWithRestBehind", "PUSH\0xyz"sv, false, "PUSH"sv},
                    ExecuteCase{"wide", "P\0U\0\0\0"sv, true, "P\0U\0"sv},
                    ExecuteCase{"wideWithoutNul", "P\0U\0"sv, true, "P\0U\0"sv},
                    ExecuteCase{"wideWithRestBehind", "P\0\0\0U\0"sv, true, "P\0"sv},
                    ExecuteCase{"wideEndsInHalfACharacter", "P\0U\0S"sv, true, "P\0U\0"sv},
                    ExecuteCase{"wideLetterWhoseLowByteIs0", "P\0\0\1U\0\0\0"sv, true, "P\0\0\1U\0"sv},
                    ExecuteCase{"oneNarrowLetter", "P\0"sv, false, "P"sv},
                    ExecuteCase{"nulOnly", "\0"sv, false, ""sv}, ExecuteCase{"nothing", ""sv, false, ""sv}),
    [](const auto& row) { return row.param.name; });

} // namespace
} // namespace ls
