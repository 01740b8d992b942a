#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ls {

/// The text of a small file. Nothing when it is missing, no regular file, unreadable or above 4 MiB; people
/// and installers write such files, and only a broken one is that large.
[[nodiscard]] std::optional<std::string> ReadSmallFile(const std::string& path);

/// The value of a key in a text of "[group]" and "key=value" lines; the last one counts. Comments, other
/// lines and translations ("Name[de]=") are skipped.
[[nodiscard]] std::optional<std::string> KeyFileValue(std::string_view text, std::string_view group,
                                                      std::string_view key);

/// The parts of a list "a;b;c;" without the empty ones.
[[nodiscard]] std::vector<std::string> SplitList(std::string_view list, char separator = ';');

} // namespace ls
