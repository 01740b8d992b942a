#pragma once

#include <functional>

namespace ls {

/// Runs work in a thread of its own and returns when it is done. During long work events are handled, but
/// those of keys and mouse wait. Until the work is done, nothing else may use its data. Exceptions of the
/// work reach the caller.
void RunBeside(const std::function<void()>& work);

} // namespace ls
