#pragma once

class QString;

namespace ls {

/// How wide a window must be, in device-independent pixels, so that its title bar shows the whole title. The
/// window manager draws that in a font of its own; this is for one like the desktop's, in bold, beside the
/// usual buttons and picture.
[[nodiscard]] int TitleWidth(const QString& title);

} // namespace ls
