#pragma once

#include <string>

namespace ls::test {

/// Makes a book without faults. The same number gives the same book. Its topics have markup, lists and
/// references in all forms. Its advisors have several questions, sub-goals, ASSUME and questions of other
/// topics.
///
/// An advisor is a tree: a variable, and for each of its values an advice or a smaller tree. So its rules
/// have an advice for every list of answers.
[[nodiscard]] std::string MakeCleanBook(unsigned number);

} // namespace ls::test
