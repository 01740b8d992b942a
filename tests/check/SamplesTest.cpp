#include "CheckCases.h"

#include "support/Json.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

using Texts = std::vector<std::string>;

TEST(Samples, everyBook_isClean)
{
    for (const char* name : {"Guide.IDA", "Advice.IDA"}) {
        SCOPED_TRACE(name);
        EXPECT_EQ(test::FindingsOf(test::ReadWholeFile(std::string(LS_SAMPLES "/") + name)), Texts());
    }
}

} // namespace
} // namespace ls
