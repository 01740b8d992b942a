#pragma once

#include "base/PathRules.h"

#include <string>
#include <string_view>

namespace ls {

/// The type of a book's file.
inline constexpr std::string_view BookType = ".IDA";

/// The name that a book is to be saved under, by counting up a number in parentheses: beside "Guide.IDA" that
/// is "Guide (001).IDA", and from there "Guide (002).IDA", "Guide (003).IDA" and so on. The folder stays.
///
/// The number that counts is the one in the name's first parentheses, and what stands behind them is dropped.
/// The type is always `BookType`. A book without a path becomes "Ideas (001).ida". Whether the name is free
/// is not tested.
[[nodiscard]] std::string NumberedName(PathRules rules, const std::string& bookPath);

} // namespace ls
