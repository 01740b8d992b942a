#pragma once

#include "base/PathRules.h"

#include <string>
#include <string_view>

namespace ls {

/// The type of a book's file.
inline constexpr std::string_view BookType = ".IDA";

/// The next name to save a book under, with a number in parentheses: "Guide.IDA" gives "Guide (001).IDA", and
/// that gives "Guide (002).IDA". The folder stays.
///
/// The number in the name's first parentheses counts; what follows them is dropped. The type is always
/// `BookType`. A book without a path becomes "Ideas (001).ida". A file of the new name may exist already.
[[nodiscard]] std::string NumberedName(PathRules rules, const std::string& bookPath);

} // namespace ls
