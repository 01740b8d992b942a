#pragma once

#include <string>
#include <string_view>

namespace ls {

/// Book text in double quotes for a message, as UTF-8. Text of more than 60 characters is cut and ends in
/// "...".
[[nodiscard]] std::string Quoted(std::string_view bookText);

/// A path in angle brackets for a message, as UTF-8: "<</home/u/Guide.IDA>>".
[[nodiscard]] std::string InAngles(const std::string& path);

} // namespace ls
