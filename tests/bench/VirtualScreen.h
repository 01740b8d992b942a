#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include <sys/types.h>

namespace ls::bench {

/// A display without a screen (Xvfb) that keeps its picture in a file: what is painted can be seen without
/// asking the display's server for anything. A window manager runs on it.
class VirtualScreen
{
public:
    /// Starts both; ends the program when they do not come up. The picture is kept below `folder`.
    explicit VirtualScreen(const std::string& folder);
    ~VirtualScreen();
    VirtualScreen(const VirtualScreen&) = delete;
    VirtualScreen& operator=(const VirtualScreen&) = delete;

    /// ":7", for the environment of programs that are to show windows on it.
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
