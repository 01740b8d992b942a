#pragma once

#include <cstdint>

namespace ls {

/// A byte position in a file. The first byte is 1; 0 means "none". 64 bits, because books may pass 2 GiB.
using FilePos = std::int64_t;

} // namespace ls
