#pragma once

#include "base/FileSystem.h"

namespace ls {

/// The file of a book that was never saved; reads as an empty file.
class NoFile : public BookFile
{
public:
    FileError ReadAt(FilePos /*pos*/, char* /*buffer*/, std::size_t /*size*/, std::size_t& got) override
    {
        got = 0;
        return {};
    }
    FileError Size(FilePos& size) override
    {
        size = 0;
        return {};
    }
};

} // namespace ls
