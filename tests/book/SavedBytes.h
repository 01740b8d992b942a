#pragma once

#include "book/Book.h"
#include "book/WriteBook.h"
#include "support/TestSeams.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace ls::test {

/// The bytes of the book as it would be saved now.
inline std::string SavedBytes(const Book& book, TestSeams& seams)
{
    std::unique_ptr<OutputFile> file;
    EXPECT_TRUE(seams.files.CreateNew("/work/Saved.IDA", file).Ok());
    EXPECT_EQ(WriteBook(book, seams.Get(), *file), WriteOutcome::Written);
    EXPECT_TRUE(file->Finish().Ok());
    return seams.files["/work/Saved.IDA"];
}

} // namespace ls::test
