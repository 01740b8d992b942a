#pragma once

#include <cstdint>

namespace ls {

/// A byte position in a file: the first byte is 1, and 0 means "none". 64 bits: books may pass 2 GiB.
using FilePos = std::int64_t;

} // namespace ls
