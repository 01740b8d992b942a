#pragma once

#include <string>

class QWidget;

namespace ls {

/// Tells the user something without stopping the work: a box that takes no keys from what is being typed, and
/// that goes when it is closed. It stands over the open form, else over `window`. The text is UTF-8.
void ShowNotice(QWidget* window, const std::string& text);

} // namespace ls
