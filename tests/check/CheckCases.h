#pragma once

#include "book/Book.h"
#include "check/Finding.h"
#include "support/TestSeams.h"

#include <string>
#include <vector>

namespace ls::test {

/// A book from a data file and the findings that `check` must give.
struct CheckCase
{
    std::string name; ///< the rule to test; "near RULE ..." for a book in which the rule must find nothing
    std::string book; ///< the bytes of the book
    std::vector<std::string> findings; ///< "line: severity: rule: text"
};

/// All cases of the files in tests/data/check. "== NAME" begins a case, "--" ends its book, and the expected
/// findings follow. A book that begins with a topic gets a header line. "{XX}" is a byte, "{xN}" is N times
/// "x", and a line that ends in "{}" is joined with the next one.
[[nodiscard]] std::vector<CheckCase> ReadCheckCases();

/// A book in memory, open and scanned.
struct CheckedBook
{
    explicit CheckedBook(const std::string& bytes);

    TestSeams seams;
    Book book;
};

/// Findings in the form of the data files.
[[nodiscard]] std::vector<std::string> Lines(const std::vector<Finding>& findings);

/// The findings of a book.
[[nodiscard]] std::vector<std::string> FindingsOf(const std::string& bytes);

} // namespace ls::test
