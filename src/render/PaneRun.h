#pragma once

#include "render/TextSurface.h"

#include <cstddef>
#include <string>

namespace ls {

/// A piece of text that was printed in one style.
struct PaneRun
{
    int displayLine = 0;         ///< from 1; 0 when none was told
    int row = 0;                 ///< from 0
    std::size_t firstColumn = 0; ///< from 0
    std::string text;            ///< book text
    bool bold = false;
    bool italic = false;
    bool underline = false;
    Colour colour = Black;
    bool endRow = false;
};

} // namespace ls
