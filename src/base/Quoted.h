#pragma once

#include <string>
#include <string_view>

namespace ls {

/// Book text in double quotes for a message, as UTF-8. More than 60 characters are cut and end in "...".
[[nodiscard]] std::string Quoted(std::string_view bookText);

} // namespace ls
