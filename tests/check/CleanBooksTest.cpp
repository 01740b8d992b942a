#include "CleanBooks.h"

#include "CheckCases.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

using Texts = std::vector<std::string>;

TEST(CleanBooks, aThousandOfThem_noFindings)
{
    int advisors = 0;
    int defines = 0;
    for (unsigned number = 1; number <= 1000; ++number) {
        const std::string book = test::MakeCleanBook(number);
        const Texts found = test::FindingsOf(book);
        ASSERT_EQ(found, Texts()) << "book " << number << "\n" << book;
        advisors += book.find("<LOGIC>") != std::string::npos ? 1 : 0;
        defines += book.find("DEFINE ") != std::string::npos ? 1 : 0;
    }
    EXPECT_GT(advisors, 800);
    EXPECT_GT(defines, 200);
}

} // namespace
} // namespace ls
