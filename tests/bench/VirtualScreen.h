#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include <sys/types.h>

namespace ls::bench {

/// A display without a screen (Xvfb), with a window manager. Its picture is a file, so this program sees what
/// is painted without asking the display's server.
class VirtualScreen
{
public:
    /// Starts both, or ends the program if they do not start. The picture is in `folder`.
    explicit VirtualScreen(const std::string& folder);
    ~VirtualScreen();
    VirtualScreen(const VirtualScreen&) = delete;
    VirtualScreen& operator=(const VirtualScreen&) = delete;

    /// Such as ":7": DISPLAY for programs that show their windows here.
    [[nodiscard]] const std::string& Display() const { return m_display; }

    /// How many pixels have exactly this colour (0xRRGGBB) now.
    [[nodiscard]] int CountOf(std::uint32_t colour) const;

private:
    void MapPicture(const std::string& path);

    std::string m_display;
    pid_t m_server = 0;
    pid_t m_manager = 0;
    const std::uint32_t* m_pixels = nullptr;
    std::size_t m_count = 0;
};

} // namespace ls::bench
