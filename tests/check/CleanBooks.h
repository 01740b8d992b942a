#pragma once

#include <string>

namespace ls::test {

/// A book without a fault, and the same one for the same number: topics with markup, lists and references in
/// all their forms, and advisors with several questions, sub-goals, ASSUME, and questions of other topics.
///
/// An advisor is a tree: a variable, and for each of its values an advice or a smaller tree. Such rules have
/// an advice for every list of answers.
[[nodiscard]] std::string MakeCleanBook(unsigned number);

} // namespace ls::test
