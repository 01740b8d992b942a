#pragma once

#include <string>

class QWidget;

namespace ls {

/// Shows a box that does not interrupt the user: it takes no keys and stays until it is closed. It is over
/// the open form, else over `window`. The text is UTF-8.
void ShowNotice(QWidget* window, const std::string& text);

} // namespace ls
