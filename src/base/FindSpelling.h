#pragma once

#include "base/FileSystem.h"
#include "base/PathRules.h"

#include <string>
#include <string_view>

namespace ls {

/// A path in capital letters, for comparing paths without regard to case. Letters with accents change too. If
/// the path has a character that the code page lacks, only a to z change.
[[nodiscard]] std::string WithoutCase(std::string_view path);

/// The real spelling of a path that may be written in another case.
///
/// 1. If the path exists as given, it is the result. On systems that ignore case this step always decides.
/// 2. Otherwise each level is looked up in its folder: first as spelled, then without regard to case (see
///    `WithoutCase`). The first match in byte order is taken.
/// 3. If nothing matches, the result is the path as given, so that an error shows what the user wrote.
[[nodiscard]] std::string FindSpelling(FileSystem& files, PathRules rules, const std::string& path);

} // namespace ls
