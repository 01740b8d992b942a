#pragma once

#include "base/Seams.h"

#include <functional>

namespace ls {

/// Runs a user's command and lets no exception out, because the event loop that calls it cannot pass one on.
/// Exhausted memory is reported and the program goes on; any other exception is a fault and ends the program.
void RunGuarded(const std::function<void()>& command, const Seams& seams);

} // namespace ls
