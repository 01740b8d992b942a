#pragma once

#include <cstddef>

namespace ls::test {

/// How often memory was taken by `new` since the program began.
[[nodiscard]] std::size_t AllocationCount();

} // namespace ls::test
