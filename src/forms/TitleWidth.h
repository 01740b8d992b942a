#pragma once

class QString;

namespace ls {

/// The width, in device-independent pixels, at which a window's title bar shows the whole title. An estimate:
/// the window manager draws the title in its own font; this assumes the desktop's font in bold, and the usual
/// buttons and picture.
[[nodiscard]] int TitleWidth(const QString& title);

} // namespace ls
