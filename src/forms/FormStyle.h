#pragma once

namespace ls {

/// Sets the program's style to the desktop's own. If that is the toolkit's plain style, check boxes and
/// option circles get an edge that is visible on a dark desktop.
void SetFormStyle();

} // namespace ls
