#include "reader/window/MainFixture.h"

namespace ls {
namespace {

constexpr const char* AskPlain = "question|Lodestar Advisor|The file you opened is not a Lodestar Book or "
                                 "Advice file. Do you want to view "
                                 "it as a single topic text file?|OKCancel";

struct BadFile
{
    const char* name;
    std::string bytes;
    Strings boxes;
    std::string onShow;
};

void PrintTo(const BadFile& row, std::ostream* stream)
{
    *stream << row.name;
}

struct BadFileTest : MainFixture, testing::WithParamInterface<BadFile>
{
};

TEST_P(BadFileTest, open_badFile_answersAndStaysUsable)
{
    if (!GetParam().boxes.empty() && GetParam().boxes.front() == AskPlain) {
        world.messages.replies = {Reply::Ok};
    }
    Open(GetParam().bytes, "/work/Bad.IDA");
    EXPECT_EQ(Boxes(), GetParam().boxes);
    EXPECT_EQ(OnShow(), GetParam().onShow);
    OpenThree();
    EXPECT_EQ(Boxes(), Strings{});
    EXPECT_EQ(OnShow(), "[A]|a");
}

INSTANTIATE_TEST_SUITE_P(
    Rows, BadFileTest,
    testing::Values(BadFile{"empty", "", {AskPlain}, ""}, //
                    BadFile{"oneByte", "x", {AskPlain}, "|x"}, BadFile{"oneBracket", "[", {AskPlain}, "|["},
                    BadFile{"nulBytes", std::string("\0\0\0", 3), {AskPlain}, "|" + std::string("\0\0\0", 3)},
                    BadFile{"unknownKey",
                            "LODESTAR BOOK V5.3 /TITLE=\"x\"\r\n[T]\r\nbody\r\n",
                            {"warning|Lodestar Advisor|Invalid Lodestar Book header: <<LODESTAR BOOK V5.3 "
                             "/TITLE=\"x\">>.  Some information may not be loaded."},
                            "[T]|body"},
                    BadFile{"oldVersion", "LODESTAR BOOK V3.9\r\n", {AskPlain}, "|LODESTAR BOOK V3.9"},
                    BadFile{"nulInBook",
                            "LODESTAR BOOK V5.3\r\n[T]\r\n" + std::string("a\0b", 3) + "\r\n",
                            {},
                            "[T]|" + std::string("a\0b", 3)},
                    BadFile{"noLastLineEnd", "LODESTAR BOOK V5.3\r\n[T]", {}, "[T]"},
                    BadFile{"indexSection",
                            "LODESTAR BOOK V5.3\r\n<INDEX>\r\n[T]\r\n",
                            {"information|Lodestar Advisor|There are no topics in this file."},
                            ""}),
    [](const testing::TestParamInfo<BadFile>& row) { return std::string(row.param.name); });

} // namespace
} // namespace ls
