#pragma once

#include "book/BookLoader.h"
#include "support/TestSeams.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

namespace ls::test {

/// The user's guide, opened and scanned as in the program.
class GuideFixture : public ::testing::Test
{
protected:
    void SetUp() override
    {
        std::ifstream file(LS_SAMPLES "/Guide.IDA", std::ios::binary);
        bytes.assign(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
        ASSERT_FALSE(bytes.empty());
        world.files["/work/Guide.IDA"] = bytes;
        book.BookPath = "/work/Guide.IDA";
        ASSERT_TRUE(OpenBook(book, world.Get()));
        ASSERT_TRUE(ScanBook(book, world.Get()));
    }

    std::string bytes;
    TestSeams world;
    Book book;
};

} // namespace ls::test
