#include "bench/VirtualScreen.h"

#include "bench/Measure.h"
#include "bench/StartedProgram.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ls::bench {

namespace {

constexpr int Width = 1280;
constexpr int Height = 1024;

// A number of the picture's header, in big-endian order.
std::uint32_t NumberAt(const unsigned char* header, std::size_t index)
{
    const unsigned char* at = header + 4 * index;
    return static_cast<std::uint32_t>(at[0]) << 24 | static_cast<std::uint32_t>(at[1]) << 16 |
           static_cast<std::uint32_t>(at[2]) << 8 | at[3];
}

// The server writes its number into a file once programs can connect.
std::string WaitForNumber(const std::string& path)
{
    for (int i = 0; i < 1000; ++i) {
        std::ifstream file(path);
        if (std::string number; std::getline(file, number) && !file.eof()) {
            return number;
        }
        usleep(10000);
    }
    Require(false, "the virtual display comes up");
    return {};
}

} // namespace

VirtualScreen::VirtualScreen(const std::string& folder)
{
    const std::string number = folder + "/display";
    std::filesystem::create_directories(folder);
    std::filesystem::remove(number);
    m_server = StartProgram({"sh", "-c",
                             "exec Xvfb -displayfd 3 -screen 0 " + std::to_string(Width) + "x" +
                                 std::to_string(Height) + "x24 -nolisten tcp -fbdir '" + folder + "' 3>'" +
                                 number + "'"},
                            {});
    m_display = ":" + WaitForNumber(number);
    MapPicture(folder + "/Xvfb_screen0");
    m_manager = StartProgram({"openbox", "--sm-disable"}, {"DISPLAY=" + m_display, "HOME=" + folder});
    usleep(1000000); // nothing reports that the window manager is ready
}

VirtualScreen::~VirtualScreen()
{
    EndProgram(m_manager);
    EndProgram(m_server);
}

int VirtualScreen::CountOf(std::uint32_t colour) const
{
    return static_cast<int>(std::count_if(m_pixels, m_pixels + m_count, [colour](std::uint32_t pixel) {
        return (pixel & 0xFFFFFFU) == colour;
    }));
}

// The file is an X window dump: a header, a table of colours, the pixels.
void VirtualScreen::MapPicture(const std::string& path)
{
    constexpr std::size_t colourSize = 12;
    enum Field : std::size_t
    {
        HeaderSize = 0,
        BitsPerPixel = 11,
        BytesPerLine = 12,
        Colours = 19
    };
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    struct stat status
    {
    };
    Require(file >= 0 && fstat(file, &status) == 0, "the display's picture is there");
    void* mapped = mmap(nullptr, static_cast<std::size_t>(status.st_size), PROT_READ, MAP_SHARED, file, 0);
    close(file);
    Require(mapped != MAP_FAILED, "the display's picture can be looked at");
    const auto* bytes = static_cast<const unsigned char*>(mapped);
    Require(NumberAt(bytes, BitsPerPixel) == 32 && NumberAt(bytes, BytesPerLine) == 4U * Width,
            "the picture has the form that is read here");
    const std::size_t start = NumberAt(bytes, HeaderSize) + NumberAt(bytes, Colours) * colourSize;
    m_pixels = reinterpret_cast<const std::uint32_t*>(bytes + start);
    m_count = static_cast<std::size_t>(Width) * Height;
    Require(start + 4 * m_count <= static_cast<std::size_t>(status.st_size), "the picture is whole");
}

} // namespace ls::bench
