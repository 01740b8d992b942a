#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ls {

/// The text of a small regular file; nothing when it is missing, no regular file, unreadable or above 4 MiB.
/// Such files are written by hand and by installers: none of them comes near that size unless it is broken.
[[nodiscard]] std::optional<std::string> ReadSmallFile(const std::string& path);

/// The value of a key in a text of "[group]" and "key=value" lines; of several the last counts. Comments,
/// lines that are neither, and translations ("Name[de]=") are passed over.
[[nodiscard]] std::optional<std::string> KeyFileValue(std::string_view text, std::string_view group,
                                                      std::string_view key);

/// The parts of a list "a;b;c;", empty ones left out.
[[nodiscard]] std::vector<std::string> SplitList(std::string_view list, char separator = ';');

} // namespace ls
