#pragma once

#include "base/FileSystem.h"
#include "base/PathRules.h"

#include <string>
#include <string_view>

namespace ls {

/// A path with the differences of case taken out, for comparing: as people read it, letters with accents have
/// no case either, as far as the code page knows them; in paths that it lacks characters of, only A to Z.
[[nodiscard]] std::string WithoutCase(std::string_view path);

/// The real spelling of a path that may be written in another case.
///
/// The path as given wins when it exists. Otherwise each level is looked up in its folder, first as spelled,
/// then without regard to (ASCII) case; the first match in byte order is taken. Where nothing matches, the
/// path comes back as given, so that an error names what the user wrote. On a system that does not tell cases
/// apart the first test always decides.
[[nodiscard]] std::string FindSpelling(FileSystem& files, PathRules rules, const std::string& path);

} // namespace ls
