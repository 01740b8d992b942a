#include "render/text/DisplayLines.h"

namespace ls {

namespace {

// A row of the widest pane needs a fraction of this. A line that did not break may take megabytes, which are
// freed before another topic is read.
constexpr std::size_t KeptCapacity = 16 * 1024;

} // namespace

std::string* DisplayLines::AddLine()
{
    if (!Count.Add()) {
        return nullptr;
    }
    const int number = Count;
    Lines.Grow(number, DisplayGrowthStep);
    return &Lines(number);
}

void DisplayLines::Clear()
{
    for (int number = 1; number <= Count; ++number) {
        std::string& line = Lines(number);
        if (line.capacity() > KeptCapacity) {
            std::string().swap(line);
        }
    }
    Count = 0;
}

} // namespace ls
