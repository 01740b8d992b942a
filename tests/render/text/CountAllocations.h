#pragma once

#include <cstddef>

namespace ls::test {

/// The number of calls of `new` since the program began.
[[nodiscard]] std::size_t AllocationCount();

} // namespace ls::test
