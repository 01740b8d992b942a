#pragma once

#include <string_view>

namespace ls {

/// The program's own web site, as messages name it.
inline constexpr std::string_view ProgramsWebSite = "http://www.lodestar-advisor.example/";

} // namespace ls
