#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace ls {

/// A text of the core (UTF-8) for a control.
[[nodiscard]] QString Shown(std::string_view utf8);

/// Book text for a control.
[[nodiscard]] QString ShownBookText(const std::string& bookText);

} // namespace ls
