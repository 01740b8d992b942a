#include "render/text/EightBytes.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace ls {
namespace {

TEST(EightBytes, findLastBlank_oneBlankAnywhere_findsIt)
{
    for (std::size_t size = 1; size <= 20; ++size) {
        for (std::size_t at = 0; at < size; ++at) {
            std::string row(size, 'x');
            row[at] = ' ';
            EXPECT_EQ(FindLastBlank(row), at) << "of " << size;
        }
    }
}

// Most of these characters are easy to confuse with a blank: they differ from it in one bit, or a carry from
// the next byte could change them.
TEST(EightBytes, findLastBlank_randomRows_asAPlainSearch)
{
    const std::string characters("x !\"$(0@`\xA0\xA1\x00\x01\x1F\x7F\x80\xFF", 17);
    std::mt19937 random(8);
    for (int round = 0; round < 200000; ++round) {
        std::string row;
        for (auto left = random() % 24; left > 0; --left) {
            row += characters[random() % characters.size()];
        }
        ASSERT_EQ(FindLastBlank(row), row.rfind(' ')) << "row <<" << row << ">>";
    }
}

} // namespace
} // namespace ls
