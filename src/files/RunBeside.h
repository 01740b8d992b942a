#pragma once

#include <functional>

namespace ls {

/// Runs work in a thread of its own and returns when it is done; where that takes long, events go on
/// meanwhile, but for keys and the mouse, which wait. What the work touches must not be touched by others
/// until then. A fault of the work is the caller's.
void RunBeside(const std::function<void()>& work);

} // namespace ls
