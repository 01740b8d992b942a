#pragma once

namespace ls {

/// Sets the program's style: the desktop's own, but where that is the toolkit's plain one, boxes and circles
/// to be checked get an edge that is seen on a dark desktop, too.
void SetFormStyle();

} // namespace ls
