#pragma once

#include <functional>

namespace ls {

/// Runs work in a thread of its own and returns when it is done. While long work runs, events are handled,
/// except those of keys and mouse, which wait. Nothing else may touch what the work uses until it is done.
/// Exceptions of the work reach the caller.
void RunBeside(const std::function<void()>& work);

} // namespace ls
